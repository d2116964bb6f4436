# How every module, program and test of this project is built.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")

add_compile_options(-Wall -Wextra -Wpedantic -Wno-unused-parameter -fdiagnostics-color=auto)
if(VOREL_SANITIZE)
	add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-sanitize=vptr)
	add_link_options(-fsanitize=address,undefined)
endif()

# vorel_module(Name PUBLIC dep... PRIVATE dep...)
# A static library of all sources below the calling folder's Public/ and Private/. With REGISTERED the whole archive is linked into
# every program that uses it, so that the static that announces the module to the module manager is not dropped.
function(vorel_module name)
	cmake_parse_arguments(arg "REGISTERED" "" "PUBLIC;PRIVATE" ${ARGN})
	file(GLOB_RECURSE sources CONFIGURE_DEPENDS
		"${CMAKE_CURRENT_SOURCE_DIR}/Public/*.h" "${CMAKE_CURRENT_SOURCE_DIR}/Private/*.h" "${CMAKE_CURRENT_SOURCE_DIR}/Private/*.cpp")
	if(NOT sources)
		add_library(${name} INTERFACE)
		target_link_libraries(${name} INTERFACE ${arg_PUBLIC})
		return()
	endif()
	add_library(${name} STATIC ${sources})
	set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
	if(IS_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}/Public")
		target_include_directories(${name} PUBLIC Public)
	endif()
	target_include_directories(${name} PRIVATE Private)
	target_link_libraries(${name} PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE})
	if(arg_REGISTERED)
		set_property(GLOBAL APPEND PROPERTY VOREL_REGISTERED_MODULES ${name})
	endif()
endfunction()

# vorel_link_modules(target module...)
# Links registered modules whole, each once: their objects go in directly, so that nothing of the archives is asked for any more.
function(vorel_link_modules target)
	foreach(module IN LISTS ARGN)
		target_link_libraries(${target} PRIVATE ${module})
		target_sources(${target} PRIVATE $<TARGET_OBJECTS:${module}>)
	endforeach()
endfunction()

# vorel_test(Folder dep...)
# One test program of all sources below Tests/<Folder>, run by ctest under the folder's name.
function(vorel_test folder)
	string(REPLACE "/" "." name "${folder}")
	file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h")
	add_executable(Tests.${name} ${sources})
	target_include_directories(Tests.${name} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
	target_link_libraries(Tests.${name} PRIVATE ${ARGN})
	add_test(NAME ${name} COMMAND Tests.${name})
	set_tests_properties(${name} PROPERTIES TIMEOUT 600 ENVIRONMENT "QT_QPA_PLATFORM=offscreen;ASAN_OPTIONS=detect_leaks=0")
endfunction()
