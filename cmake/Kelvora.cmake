# Every folder of the house is one library. Its include path is its own folder and, through the libraries that it
# links, theirs: a header of a folder that is not linked is not found. What it links as PRIVATE its own users do not find,
# and where it has a FACE they find that part of it alone.
function(kelvora_library name)
    cmake_parse_arguments(ARG "" "FACE" "SOURCES;LINK;PRIVATE" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR}/${ARG_FACE} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE ${ARG_PRIVATE})
    kelvora_warnings(${name})
endfunction()

# Settles whether a part that nobody has decided on is built: where all these variables are true. Otherwise a line says what
# is left out, which of Debian's packages it needs and how to insist.
function(kelvora_part part what packages)
    if(NOT ${part} STREQUAL AUTO)
        return()
    endif()
    set(${part} ON)
    foreach(found ${ARGN})
        if(NOT ${found})
            set(${part} OFF)
        endif()
    endforeach()
    if(NOT ${part})
        message(NOTICE "Without ${what}: they need ${packages} (-D${part}=ON insists, -D${part}=OFF hides this line)")
    endif()
    set(${part} ${${part}} PARENT_SCOPE)
endfunction()

set(KELVORA_CONVERSION_WARNING -Wconversion)

function(kelvora_warnings target)
    if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow ${KELVORA_CONVERSION_WARNING}
                                                 -Wnon-virtual-dtor -Woverloaded-virtual)
    endif()
endfunction()

# For sources with Q_OBJECT. What is made of them is the target `generated`, for whoever reads sources without building.
set(CMAKE_AUTOGEN_ORIGIN_DEPENDS OFF)
add_custom_target(generated)
function(kelvora_automoc target)
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    add_dependencies(generated ${target}_autogen)
endfunction()

# A screen of the size that school computers have, without a display; on Windows that of the machine and its style.
if(NOT WIN32)
    set(KELVORA_TEST_SCREEN
        QT_STYLE_OVERRIDE=Fusion QT_QPA_PLATFORM=offscreen:configfile=${PROJECT_SOURCE_DIR}/tests/support/screen.json)
endif()

set(KELVORA_TEST_TIMEOUT 1200 CACHE STRING "Seconds after which a test counts as failed")

# A test that needs no display, with what is to be set in its environment beyond the usual.
function(kelvora_inprocess test)
    set_tests_properties(${test} PROPERTIES
        TIMEOUT ${KELVORA_TEST_TIMEOUT}
        LABELS "inprocess;quick"
        RESOURCE_GROUPS processors:1
        ENVIRONMENT "${KELVORA_TEST_SCREEN};QT_FONT_DPI=96;LC_ALL=C.UTF-8;${ARGN}")
endfunction()

# A Qt Test executable of one source file, run without a display. It links the libraries that it tests and no others.
function(kelvora_test name)
    cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
    add_executable(${name} ${name}.cpp)
    kelvora_automoc(${name})
    target_link_libraries(${name} PRIVATE ${ARG_LINK} Qt6::Test)
    kelvora_warnings(${name})
    add_test(NAME ${name} COMMAND ${name})
    kelvora_inprocess(${name})
endfunction()

# The same of every tst_*.cpp of the calling folder.
function(kelvora_tests)
    file(GLOB sources CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} tst_*.cpp)
    foreach(source ${sources})
        cmake_path(REMOVE_EXTENSION source OUTPUT_VARIABLE name)
        kelvora_test(${name} ${ARGN})
    endforeach()
endfunction()

# What each test on a desktop finds in its environment, and which programs have to be built before. They are the target
# `desktop`.
function(kelvora_desktop_program name variable)
    add_dependencies(desktop ${name})
    set_property(GLOBAL APPEND PROPERTY KELVORA_DESKTOP_ENVIRONMENT "${variable}=$<TARGET_FILE:${name}>")
endfunction()

# The tests of a suite of Python in the calling folder that use the program on a desktop, each alone, as
# LABEL_CLASS_TEST. They wait for most of their time, so that several share a processor. On another desktop than the usual
# one, DISPLAY, only those that match USUAL are run where nobody asks for that desktop.
function(kelvora_desktop_tests label)
    cmake_parse_arguments(ARG "" "DISPLAY;USUAL" "SUITES" DISPLAY x11 USUAL . ${ARGN})
    get_property(environment GLOBAL PROPERTY KELVORA_DESKTOP_ENVIRONMENT)
    foreach(suite ${ARG_SUITES})
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${suite}.py)
        file(STRINGS ${suite}.py lines REGEX "^class |^    def test_")
        foreach(line ${lines})
            if(line MATCHES "^class ([A-Za-z0-9_]+)")
                set(class ${CMAKE_MATCH_1})
            elseif(line MATCHES "def (test_([A-Za-z0-9_]+))")
                set(test ${label}_${class}_${CMAKE_MATCH_2})
                add_test(NAME ${test}
                    COMMAND ${PROJECT_SOURCE_DIR}/tests/support/alone /usr/bin/python3 -m unittest -v
                            ${suite}.${class}.${CMAKE_MATCH_1}
                    WORKING_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR})
                if(test MATCHES "${ARG_USUAL}")
                    set(when desktop)
                else()
                    set(when unusual)
                endif()
                set(desktops 1)
                if(ARG_DISPLAY MATCHES "mutter|kwin") # they draw, and the keys reach Orca by a longer way than the program
                    set(desktops 2)
                endif()
                set_tests_properties(${test} PROPERTIES
                    TIMEOUT ${KELVORA_TEST_TIMEOUT}
                    LABELS "${label};${when}"
                    RESOURCE_GROUPS desktops:${desktops}
                    COST 60 # begun before what is short
                    ENVIRONMENT "${environment};KELVORA_DISPLAY=${ARG_DISPLAY};LOCPATH=${PROJECT_BINARY_DIR}/locales;KELVORA_QT=${Qt6_VERSION};VERSION=${PROJECT_VERSION};KELVORA_MANUAL=${KELVORA_MANUAL};PYTHONDONTWRITEBYTECODE=1")
            endif()
        endforeach()
    endforeach()
endfunction()

# A test that something does not compile with what a library gives, and that the compiler says why.
function(kelvora_forbidden name)
    cmake_parse_arguments(ARG "" "FROM;CODE;REASON" "" ${ARGN})
    file(GENERATE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp CONTENT "${ARG_CODE}\n")
    add_library(${name} OBJECT EXCLUDE_FROM_ALL ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
    target_link_libraries(${name} PRIVATE ${ARG_FROM})
    add_test(NAME ${name} COMMAND ${CMAKE_COMMAND} --build ${CMAKE_BINARY_DIR} --target ${name})
    kelvora_inprocess(${name} LC_ALL=C)
    set_tests_properties(${name} PROPERTIES RESOURCE_LOCK build PASS_REGULAR_EXPRESSION "${ARG_REASON}")
endfunction()

# The same of a header of another folder.
function(kelvora_forbidden_include name)
    cmake_parse_arguments(ARG "" "FROM;HEADER" "" ${ARGN})
    kelvora_forbidden(${name}
        FROM ${ARG_FROM}
        CODE "#include \"${ARG_HEADER}\""
        REASON "${ARG_HEADER}: No such file|${ARG_HEADER}' file not found")
endfunction()

# The icon in all sizes, as files of the calling folder's build: SIZE.png.
function(kelvora_icon files)
    find_program(RSVG_CONVERT rsvg-convert REQUIRED)
    set(icon ${PROJECT_SOURCE_DIR}/data/org.kelvora.kelvora.svg)
    foreach(size 16 22 24 32 48 64 128 256)
        if(size EQUAL 16)
            set(drawn ${PROJECT_SOURCE_DIR}/data/org.kelvora.kelvora-16.svg)
        else()
            set(drawn ${icon})
        endif()
        add_custom_command(
            OUTPUT ${size}.png
            COMMAND ${RSVG_CONVERT} --width ${size} --height ${size} --output ${size}.png ${drawn}
            DEPENDS ${drawn}
            VERBATIM)
        list(APPEND pictures ${size}.png)
    endforeach()
    set(${files} ${pictures} PARENT_SCOPE)
endfunction()
