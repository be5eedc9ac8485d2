# Functions that declare targets: a name, its files and its dependencies.
include_guard()

# The precompiled header of all targets that are compiled with the options of the preset.
file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/precompiled.cpp CONTENT "")
add_library(velmora_precompiled OBJECT ${CMAKE_BINARY_DIR}/precompiled.cpp)
set_target_properties(velmora_precompiled PROPERTIES AUTOMOC OFF)
target_link_libraries(velmora_precompiled PRIVATE velmora_options Qt6::Core QCoro6::Core)
target_precompile_headers(velmora_precompiled PRIVATE <Precompiled.h>)

# _velmora_common(<target> [PRECOMPILED <the target whose precompiled header it shares>]
#                 [HEADERS <further headers of a precompiled header of its own>])
function(_velmora_common target)
    cmake_parse_arguments(ARG "" "PRECOMPILED" "HEADERS" ${ARGN})
    target_link_libraries(${target} PRIVATE velmora_options)
    target_link_libraries(${target} PRIVATE QCoro6::Core)
    if(ARG_HEADERS)
        target_precompile_headers(${target} PRIVATE <Precompiled.h> ${ARG_HEADERS})
    elseif(ARG_PRECOMPILED)
        target_precompile_headers(${target} REUSE_FROM ${ARG_PRECOMPILED})
    else()
        target_precompile_headers(${target} REUSE_FROM velmora_precompiled)
    endif()
endfunction()

# velmora_library(<name> SOURCES <files> [DEPENDS <targets that its headers include>]
#                 [USES <targets that only its sources include>])
function(velmora_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS;USES" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC ${ARG_DEPENDS} PRIVATE ${ARG_USES})
    _velmora_common(${name})
endfunction()

# velmora_qml_module(<name> URI <uri> [QML <files>] [SINGLETONS <files>] [SOURCES <files>] [RESOURCES <files>]
#                    [IMPORTS <uris>] [DEPENDS <targets>] [USES <targets>])
function(velmora_qml_module name)
    cmake_parse_arguments(ARG "" "URI" "QML;SINGLETONS;SOURCES;RESOURCES;IMPORTS;DEPENDS;USES" ${ARGN})
    set_source_files_properties(${ARG_SINGLETONS} PROPERTIES QT_QML_SINGLETON_TYPE TRUE)
    add_library(${name} STATIC)
    qt_add_qml_module(${name}
        URI ${ARG_URI}
        VERSION 1.0
        RESOURCE_PREFIX /qt/qml
        # Not IMPORTS: the engine resolves those again for every document that imports the module, a seventh of the start.
        DEPENDENCIES ${ARG_IMPORTS}
        QML_FILES ${ARG_QML} ${ARG_SINGLETONS}
        RESOURCES ${ARG_RESOURCES}
        SOURCES ${ARG_SOURCES})
    # With the full ahead-of-time compiler of Qt 6.4 a failed type lookup is an endless loop; with bytecode it is not.
    set_target_properties(${name} PROPERTIES QT_QMLCACHEGEN_ARGUMENTS "--only-bytecode")
    target_link_libraries(${name} PUBLIC Qt6::Qml ${ARG_DEPENDS} PRIVATE ${ARG_USES})
    # Each QML file becomes a small source, and all of them include the same headers: several are compiled together. Ours
    # are compiled together only where the preset asks for it.
    set_target_properties(${name} PROPERTIES UNITY_BUILD ON)
    if(NOT CMAKE_UNITY_BUILD)
        set_source_files_properties(${ARG_SOURCES} ${CMAKE_CURRENT_BINARY_DIR}/${name}_qmltyperegistrations.cpp
            PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    endif()
    # The generated registration code includes headers without their folders.
    foreach(source ${ARG_SOURCES})
        cmake_path(GET source PARENT_PATH folder)
        target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
    endforeach()
    _velmora_common(${name})
    if(TARGET ${name}plugin)
        target_link_libraries(${name}plugin PRIVATE velmora_options)
        target_compile_options(${name}plugin PRIVATE -Wno-error)
        # A generated source of a few lines would otherwise parse more of Qt than most of ours.
        target_precompile_headers(${name}plugin REUSE_FROM velmora_precompiled)
    endif()
    # What Qt generates beside the module contains no objects of ours.
    get_property(targets DIRECTORY PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target ${targets})
        if(target MATCHES "^${name}(plugin_init|_qmlcache|_resources_[0-9]+)$")
            set_target_properties(${target} PROPERTIES AUTOMOC OFF)
        endif()
        if(target MATCHES "^${name}plugin_init$")
            target_precompile_headers(${target} REUSE_FROM velmora_precompiled)
        endif()
    endforeach()
endfunction()

# velmora_test(<name> [OPTIMISED] [FIXTURE <a header below tests/ that most of its sources include; it is precompiled>]
#              SOURCES <files> DEPENDS <targets>): one GoogleTest program, one ctest entry.
function(velmora_test name)
    cmake_parse_arguments(ARG "OPTIMISED" "FIXTURE" "SOURCES;DEPENDS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_DEPENDS} test_support)
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    # Most code of a test runs once: optimising it takes longer than running it.
    if(ARG_OPTIMISED)
        _velmora_common(${name})
    elseif(ARG_FIXTURE)
        _velmora_common(${name} HEADERS <gtest/gtest.h> <${ARG_FIXTURE}>)
        # It includes headers of this checkout by their paths: no other checkout may get it from the cache.
        target_compile_definitions(${name} PRIVATE VELMORA_CHECKOUT="${CMAKE_SOURCE_DIR}")
        # The templates that the fixture needs are instantiated once, with the header.
        target_compile_options(${name} PRIVATE -O0 -fpch-instantiate-templates)
    else()
        _velmora_common(${name} PRECOMPILED test_precompiled)
        target_compile_options(${name} PRIVATE -O0)
    endif()
    add_test(NAME ${name} COMMAND ${name})
    # A limit for what hangs: the longest test takes 240 s of processor time with sanitizers, and a machine with ten busy
    # programs gave it a third of a core.
    set_tests_properties(${name} PROPERTIES TIMEOUT 1500 LABELS unit
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_QUICK_BACKEND=software;LANG=C;LC_ALL=C;TZ=Europe/Paris")
endfunction()
