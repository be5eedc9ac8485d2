# Functions that declare targets: a name, its files and its dependencies.
include_guard()

# _velmora_common(<target> [PRECOMPILED <the target whose precompiled header it shares>]
#                 [HEADERS <further headers of its own precompiled header>])
function(_velmora_common target)
    cmake_parse_arguments(ARG "" "PRECOMPILED" "HEADERS" ${ARGN})
    target_link_libraries(${target} PRIVATE velmora_options)
    target_link_libraries(${target} PRIVATE QCoro6::Core)
    if(ARG_PRECOMPILED)
        target_precompile_headers(${target} REUSE_FROM ${ARG_PRECOMPILED})
    else()
        target_precompile_headers(${target} PRIVATE <Precompiled.h> ${ARG_HEADERS})
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
    # The generated registration code includes headers without their folders.
    foreach(source ${ARG_SOURCES})
        cmake_path(GET source PARENT_PATH folder)
        target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
    endforeach()
    _velmora_common(${name})
    if(TARGET ${name}plugin)
        target_link_libraries(${name}plugin PRIVATE velmora_options)
        target_compile_options(${name}plugin PRIVATE -Wno-error)
    endif()
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
