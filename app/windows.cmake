# What the program for Windows carries in itself: icon, version, manifest.
kelvora_icon(pictures)
find_program(ICOTOOL icotool REQUIRED)
add_custom_command(
    OUTPUT kelvora.ico
    COMMAND ${ICOTOOL} --create --output kelvora.ico ${pictures}
    DEPENDS ${pictures}
    VERBATIM)
configure_file(kelvora.manifest.in kelvora.manifest @ONLY)
configure_file(kelvora.rc.in kelvora.rc @ONLY)
target_sources(kelvora PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/kelvora.rc)
set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/kelvora.rc
    PROPERTIES OBJECT_DEPENDS "${CMAKE_CURRENT_BINARY_DIR}/kelvora.ico;${CMAKE_CURRENT_BINARY_DIR}/kelvora.manifest")
