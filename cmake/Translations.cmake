# Catalogues of translated texts, translations/<name>_<language>.ts. Without Qt's tools for them the
# programs speak English only.
find_package(Qt6LinguistTools 6.4 QUIET)

# zorvane_embed_catalogues(<target> <name>): puts them into the target as :/<name>/translations.
function(zorvane_embed_catalogues target name)
    if(NOT Qt6LinguistTools_FOUND)
        return()
    endif()
    file(GLOB sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/translations/${name}_*.ts")
    set(files "")
    foreach(source IN LISTS sources)
        get_filename_component(catalogue "${source}" NAME_WLE)
        set(built "${CMAKE_CURRENT_BINARY_DIR}/${catalogue}.qm")
        add_custom_command(OUTPUT "${built}"
            COMMAND Qt6::lrelease -silent "${source}" -qm "${built}" DEPENDS "${source}")
        string(APPEND files "<file>${catalogue}.qm</file>")
    endforeach()
    set(resource "${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc")
    file(CONFIGURE OUTPUT "${resource}" CONTENT
        "<RCC><qresource prefix=\"/${name}/translations\">${files}</qresource></RCC>\n")
    qt_add_resources(embedded "${resource}")
    target_sources(${target} PRIVATE ${embedded})
    target_compile_definitions(${target} PRIVATE ZORVANE_HAS_CATALOGUES)
endfunction()
