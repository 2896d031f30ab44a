# A folder of sources becomes a target by its name; files added to it need no edit here or in a list.

set(plandeskStandardHeaders
    <algorithm> <functional> <map> <memory> <optional> <span> <string> <string_view> <utility> <vector>)

function(plandesk_sources result folder)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${folder}/*.cpp ${PROJECT_SOURCE_DIR}/${folder}/*.qrc)
    set(${result} ${sources} PARENT_SCOPE)
endfunction()

function(plandesk_precompile target)
    if(PLANDESK_PRECOMPILE)
        target_precompile_headers(${target} PRIVATE ${plandeskStandardHeaders} ${ARGN})
    endif()
endfunction()

# plandesk_library(FOLDER USED...): the static library plandesk_FOLDER of src/FOLDER. A folder without sources yet only
# hands on what it uses.
function(plandesk_library folder)
    list(TRANSFORM ARGN PREPEND plandesk_)
    plandesk_sources(sources src/${folder})
    if(NOT sources)
        add_library(plandesk_${folder} INTERFACE)
        target_link_libraries(plandesk_${folder} INTERFACE ${ARGN})
        target_include_directories(plandesk_${folder} INTERFACE ${PROJECT_SOURCE_DIR}/src)
        return()
    endif()
    add_library(plandesk_${folder} STATIC ${sources})
    target_link_libraries(plandesk_${folder} PUBLIC ${ARGN})
    target_include_directories(plandesk_${folder} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    plandesk_precompile(plandesk_${folder})
endfunction()

# Code that only tests: it is compiled more often than it pays to optimise it, and it is not what is fuzzed.
function(plandesk_test_code target)
    if(PLANDESK_SANITIZERS)
        target_compile_options(${target} PRIVATE -O0 -fno-sanitize=fuzzer-no-link)
    else()
        target_compile_options(${target} PRIVATE -Og)
    endif()
endfunction()

# CMake does not look into a file that was added for what the toolkit's code generator has to do; it looks into all of
# them when its mark of the last time is gone.
function(plandesk_generated target)
    set(known ${CMAKE_CURRENT_BINARY_DIR}/${target}.sources)
    set(before)
    if(EXISTS ${known})
        file(READ ${known} before)
    endif()
    if(NOT before STREQUAL "${ARGN}")
        file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/timestamp)
        file(WRITE ${known} "${ARGN}")
    endif()
endfunction()

# Links a library from outside for the own use of plandesk_FOLDER.
function(plandesk_link folder)
    get_target_property(type plandesk_${folder} TYPE)
    if(NOT type STREQUAL "INTERFACE_LIBRARY")
        target_link_libraries(plandesk_${folder} PRIVATE ${ARGN})
    endif()
endfunction()

# plandesk_program(NAME FOLDER LINKS targets... [LIBRARY NAME] [PRECOMPILE headers...]): the executable of FOLDER, or
# nothing while the folder has no sources. With LIBRARY, all but main.cpp is a library that tests can link too.
function(plandesk_program name folder)
    cmake_parse_arguments(ARG "" "LIBRARY" "LINKS;PRECOMPILE" ${ARGN})
    plandesk_sources(sources ${folder})
    if(NOT sources)
        return()
    endif()
    if(ARG_LIBRARY)
        list(REMOVE_ITEM sources ${PROJECT_SOURCE_DIR}/${folder}/main.cpp)
        add_library(${ARG_LIBRARY} STATIC ${sources})
        target_link_libraries(${ARG_LIBRARY} PUBLIC ${ARG_LINKS})
        target_include_directories(${ARG_LIBRARY} PUBLIC ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/tests)
        set_target_properties(${ARG_LIBRARY} PROPERTIES AUTOMOC ${PLANDESK_DESKTOP} AUTORCC ${PLANDESK_DESKTOP})
        plandesk_generated(${ARG_LIBRARY} ${sources})
        plandesk_precompile(${ARG_LIBRARY} ${ARG_PRECOMPILE})
        set(sources ${PROJECT_SOURCE_DIR}/${folder}/main.cpp)
        set(ARG_LINKS ${ARG_LIBRARY})
        set(ARG_PRECOMPILE)
    endif()
    add_executable(${name} ${sources})
    plandesk_generated(${name} ${sources})
    target_link_libraries(${name} PRIVATE ${ARG_LINKS})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/tests)
    if(ARG_PRECOMPILE)
        plandesk_precompile(${name} ${ARG_PRECOMPILE})
    endif()
endfunction()
