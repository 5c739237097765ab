# What the program for any Linux carries in itself: Qt's parts for Wayland and for input methods, and the fonts, whose files
# are taken as they are, without being unpacked into the memory of each program.
find_package(Qt6 REQUIRED COMPONENTS WaylandClient)
target_link_libraries(kelvora PRIVATE Qt6::WaylandClient)
qt_import_plugins(kelvora INCLUDE
    Qt6::QComposePlatformInputContextPlugin Qt6::QIbusPlatformInputContextPlugin
    Qt6::QWaylandIntegrationPlugin Qt6::QWaylandXdgShellIntegrationPlugin Qt6::QWaylandBradientDecorationPlugin)

set(fonts
    opentype/comic-neue/ComicNeue-Regular.otf opentype/comic-neue/ComicNeue-Bold.otf
    truetype/liberation/LiberationSans-Regular.ttf truetype/liberation/LiberationSans-Bold.ttf
    truetype/liberation/LiberationSansNarrow-Regular.ttf
    truetype/liberation/LiberationMono-Regular.ttf truetype/liberation/LiberationMono-Bold.ttf
    truetype/dejavu/DejaVuSans.ttf truetype/dejavu/DejaVuSans-Bold.ttf)
foreach(font ${fonts})
    cmake_path(GET font FILENAME alias)
    set_source_files_properties(/usr/share/fonts/${font} PROPERTIES QT_RESOURCE_ALIAS ${alias})
    list(APPEND files /usr/share/fonts/${font})
endforeach()
qt_add_resources(kelvora fonts PREFIX /fonts BIG_RESOURCES OPTIONS --no-compress FILES ${files})
set_target_properties(kelvora_fonts_obj PROPERTIES INTERPROCEDURAL_OPTIMIZATION OFF) # rcc writes into the compiled file
