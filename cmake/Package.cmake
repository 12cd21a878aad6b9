# The libraries that other projects link, in this tree and installed: Zorvane::Core, and Zorvane::Qt
# with the widget. Each is made of the objects of its floors and is shared when BUILD_SHARED_LIBS says
# so. Programs and tests of the tree link the floors, as they use what the libraries keep to themselves.
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

if(BUILD_SHARED_LIBS AND WIN32)
    message(FATAL_ERROR "The libraries are static on Windows.")
endif()

set(ZORVANE_QT_PLUGINS "${CMAKE_INSTALL_LIBDIR}/qt6/plugins" CACHE STRING
    "Where plug-ins for Qt are installed, below the prefix")
set(zorvane_package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/Zorvane")
configure_file(cmake/package/version.h.in include/zorvane/version.h @ONLY)

# zorvane_library(<Name> DESCRIPTION <text> FLOORS <name>... HEADERS <file>... [USES <target>...]
#                 [USES_PRIVATELY <target>...] [PC_REQUIRES <module>...] [PC_REQUIRES_PRIVATE <module>...])
# The headers are the promised ones and what these include; the include root is the tree's.
function(zorvane_library name)
    cmake_parse_arguments(PARSE_ARGV 1 LIB "" "DESCRIPTION"
        "FLOORS;HEADERS;USES;USES_PRIVATELY;PC_REQUIRES;PC_REQUIRES_PRIVATE")
    string(TOLOWER "${name}" lower)
    set(library zorvane-${lower})
    set(target Zorvane${name})

    add_library(${target})
    add_library(Zorvane::${name} ALIAS ${target})
    foreach(floor IN LISTS LIB_FLOORS)
        target_sources(${target} PRIVATE $<TARGET_OBJECTS:zorvane_${floor}>)
    endforeach()
    target_include_directories(${target} INTERFACE
        "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR};${PROJECT_BINARY_DIR}/include>"
        "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/zorvane>")
    target_compile_features(${target} PUBLIC cxx_std_20)
    if(NOT BUILD_SHARED_LIBS)
        target_link_options(${target} INTERFACE "$<$<PLATFORM_ID:Linux>:LINKER:--gc-sections>")
    endif()
    target_link_libraries(${target} PUBLIC ${LIB_USES} PRIVATE ${LIB_USES_PRIVATELY} $<BUILD_INTERFACE:zorvane_options>)
    set_target_properties(${target} PROPERTIES
        LINKER_LANGUAGE CXX
        OUTPUT_NAME ${library}
        EXPORT_NAME ${name}
        INSTALL_RPATH "\$ORIGIN" # the Qt library finds the core in any prefix
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})

    set_property(GLOBAL APPEND PROPERTY ZORVANE_HEADERS ${LIB_HEADERS})
    if(NOT ZORVANE_INSTALL)
        return()
    endif()
    install(TARGETS ${target} EXPORT Zorvane${name}Targets
        RUNTIME COMPONENT ${name}
        LIBRARY COMPONENT ${name} NAMELINK_COMPONENT Development
        ARCHIVE COMPONENT Development)
    foreach(header IN LISTS LIB_HEADERS)
        get_filename_component(folder "${header}" DIRECTORY)
        install(FILES "${header}"
            DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/zorvane/${folder}" COMPONENT Development)
    endforeach()
    install(EXPORT Zorvane${name}Targets NAMESPACE Zorvane::
        DESTINATION "${zorvane_package_folder}" COMPONENT Development)

    set(pc_name "Zorvane ${name}")
    set(pc_description "${LIB_DESCRIPTION}")
    set(pc_library ${library})
    list(JOIN LIB_PC_REQUIRES " " pc_requires)
    list(JOIN LIB_PC_REQUIRES_PRIVATE " " pc_requires_private)
    file(RELATIVE_PATH pc_prefix
        "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
    configure_file(cmake/package/zorvane.pc.in ${library}.pc @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/${library}.pc"
        DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT Development)
endfunction()

zorvane_library(Core
    DESCRIPTION "Plate diagram control: the core, which knows no toolkit"
    FLOORS runtime calibration platform platform_memory support model control drawing
    HEADERS
        calibration/StageCalibration.h
        control/Elements.h
        control/InputRouter.h
        control/LegendLabels.h
        control/Plate.h
        control/PlateFields.h
        control/PlateObserver.h
        control/PlateTypes.h
        control/Surface.h
        control/WellNames.h
        control/cmFocus.h
        control/panel/PanelElements.h
        drawing/Canvas.h
        drawing/Palette.h
        drawing/PlatePainter.h
        drawing/PlatePicture.h
        drawing/SvgCanvas.h
        model/CompoundWell.h
        model/Coordinate.h
        model/DropCentre.h
        model/WellDetails.h
        model/WellStyle.h
        model/WellValues.h
        model/cmPlate.h
        platetext/LibraryIndex.h
        platetext/PlateFunctions.h
        platetext/ReadResult.h
        platform/DrawingContext.h
        platform/HostSite.h
        platform/InputBox.h
        platform/InvertingOverlay.h
        platform/MessageDisplay.h
        platform/Outline.h
        platform/PopupMenu.h
        platform/Process.h
        platform/PropertyStore.h
        platform/Registry.h
        platform/Screen.h
        platform/ShowError.h
        platform/memory/MemoryProcess.h
        platform/memory/MemoryPropertyStore.h
        platform/memory/MemoryRegistry.h
        platform/memory/MemorySite.h
        runtime/Export.h
        runtime/Geometry.h
        runtime/KeyedStore.h
        runtime/RuntimeError.h
        runtime/Text.h
        runtime/TextFile.h
        runtime/TextFunctions.h
        runtime/Types.h
        support/RegistryFunctions.h
        support/SectionSlots.h
        support/StringEntry.h
        support/StringList.h
        support/TStringPair.h
        support/TStringPairList.h
        support/XMLBuffer.h
        support/XMLFile.h)

if(ZORVANE_BUILD_QT)
    find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets)
    if(ZORVANE_WITH_SQLITE)
        find_package(SQLite3 REQUIRED)
        set(registry_floor platform_sqlite)
        set(registry_library SQLite::SQLite3)
        set(registry_module sqlite3)
    endif()
    zorvane_library(Qt
        DESCRIPTION "Plate diagram control as a Qt widget"
        FLOORS qt ${registry_floor}
        HEADERS
            hosts/qt/PlateImage.h
            hosts/qt/PlateWidget.h
            hosts/qt/SettingsStore.h
        USES Zorvane::Core Qt6::Widgets
        USES_PRIVATELY ${registry_library}
        PC_REQUIRES zorvane-core Qt6Widgets
        PC_REQUIRES_PRIVATE ${registry_module})
endif()

if(ZORVANE_INSTALL)
    set(ZORVANE_QT_VERSION 6.4)
    # A program that links the static library links SQLite as well.
    set(ZORVANE_STATIC_SQLITE FALSE)
    if(ZORVANE_WITH_SQLITE AND NOT BUILD_SHARED_LIBS)
        set(ZORVANE_STATIC_SQLITE TRUE)
    endif()
    configure_package_config_file(cmake/package/ZorvaneConfig.cmake.in ZorvaneConfig.cmake
        INSTALL_DESTINATION "${zorvane_package_folder}")
    write_basic_package_version_file("${PROJECT_BINARY_DIR}/ZorvaneConfigVersion.cmake"
        COMPATIBILITY SameMinorVersion)
    install(FILES "${PROJECT_BINARY_DIR}/include/zorvane/version.h"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/zorvane/zorvane" COMPONENT Development)
    install(FILES "${PROJECT_BINARY_DIR}/ZorvaneConfig.cmake" "${PROJECT_BINARY_DIR}/ZorvaneConfigVersion.cmake"
        DESTINATION "${zorvane_package_folder}" COMPONENT Development)
endif()
