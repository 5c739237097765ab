# Every folder of the house is one library. Its include path is its own folder and, through the libraries that it
# links, theirs: a header of a folder that is not linked is not found.
function(kelvora_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ARG_LINK})
    kelvora_warnings(${name})
endfunction()

set(KELVORA_CONVERSION_WARNING -Wconversion)

function(kelvora_warnings target)
    if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow ${KELVORA_CONVERSION_WARNING}
                                                 -Wnon-virtual-dtor -Woverloaded-virtual)
    endif()
endfunction()

# A screen of the size that school computers have, without a display; on Windows that of the machine and its style.
if(NOT WIN32)
    set(KELVORA_TEST_SCREEN
        QT_STYLE_OVERRIDE=Fusion QT_QPA_PLATFORM=offscreen:configfile=${PROJECT_SOURCE_DIR}/tests/support/screen.json)
endif()

# A Qt Test executable of one source file, run without a display. It links the libraries that it tests and no others.
function(kelvora_test name)
    cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
    add_executable(${name} ${name}.cpp)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_link_libraries(${name} PRIVATE ${ARG_LINK} Qt6::Test)
    kelvora_warnings(${name})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT 300
        LABELS inprocess
        ENVIRONMENT "${KELVORA_TEST_SCREEN};QT_FONT_DPI=96;LC_ALL=C.UTF-8")
endfunction()

# Suites of Python in the calling folder that use the program on a desktop, as LABEL_SUITE. The bus of the session is the
# test's own, and Orca's modules and those that ask the accessibility bus are those of the system's Python.
function(kelvora_session_tests label)
    find_program(DBUS_RUN_SESSION dbus-run-session REQUIRED)
    foreach(suite ${ARGN})
        add_test(NAME ${label}_${suite}
            COMMAND ${DBUS_RUN_SESSION} -- /usr/bin/python3 -m unittest -v ${suite}
            WORKING_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR})
        set_tests_properties(${label}_${suite} PROPERTIES
            TIMEOUT 1200
            LABELS ${label}
            RUN_SERIAL ON
            ENVIRONMENT "KELVORA=$<TARGET_FILE:kelvora>;KELVORA_MUTE=$<TARGET_FILE:kelvora_mute>;KELVORA_QT=${Qt6_VERSION};PYTHONDONTWRITEBYTECODE=1")
    endforeach()
endfunction()

# A test that a header of another folder cannot be included from this one.
function(kelvora_forbidden_include name)
    cmake_parse_arguments(ARG "" "FROM;HEADER" "" ${ARGN})
    file(GENERATE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp CONTENT "#include \"${ARG_HEADER}\"\n")
    add_library(${name} OBJECT EXCLUDE_FROM_ALL ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
    target_link_libraries(${name} PRIVATE ${ARG_FROM})
    add_test(NAME ${name} COMMAND ${CMAKE_COMMAND} --build ${CMAKE_BINARY_DIR} --target ${name})
    set_tests_properties(${name} PROPERTIES
        LABELS inprocess
        RUN_SERIAL ON
        ENVIRONMENT "LC_ALL=C"
        PASS_REGULAR_EXPRESSION "${ARG_HEADER}: No such file|${ARG_HEADER}' file not found")
endfunction()

# The icon in all sizes, as files of the calling folder's build: SIZE.png.
function(kelvora_icon files)
    find_program(RSVG_CONVERT rsvg-convert REQUIRED)
    set(icon ${PROJECT_SOURCE_DIR}/data/org.kelvora.kelvora.svg)
    foreach(size 16 22 24 32 48 64 128 256)
        add_custom_command(
            OUTPUT ${size}.png
            COMMAND ${RSVG_CONVERT} --width ${size} --height ${size} --output ${size}.png ${icon}
            DEPENDS ${icon}
            VERBATIM)
        list(APPEND pictures ${size}.png)
    endforeach()
    set(${files} ${pictures} PARENT_SCOPE)
endfunction()
