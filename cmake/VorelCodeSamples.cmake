# vorel_code_samples(target)
# Tells a target where C++ of other people lies, as lists of folders: VOREL_CODE_FOLDERS has the headers of Qt and the sources of GoogleTest,
# VOREL_LONG_CODE_FOLDERS the standard library, whose files are longer. All are there wherever this project is built with its tests.
function(vorel_code_samples target)
	get_target_property(qt_folders Qt6::Core INTERFACE_INCLUDE_DIRECTORIES)
	foreach(folder IN LISTS qt_folders)
		if(IS_DIRECTORY "${folder}/QtCore")
			set(qt_folder "${folder}")
		endif()
	endforeach()
	list(GET CMAKE_CXX_IMPLICIT_INCLUDE_DIRECTORIES 0 standard_folder)
	find_path(VOREL_GTEST_SOURCES googletest/src/gtest.cc PATHS /usr/src/googletest /usr/src/gtest NO_DEFAULT_PATH)
	set(folders "${qt_folder}")
	if(VOREL_GTEST_SOURCES)
		string(APPEND folders ":${VOREL_GTEST_SOURCES}")
	endif()
	target_compile_definitions(${target} PRIVATE "VOREL_CODE_FOLDERS=\"${folders}\""
		"VOREL_LONG_CODE_FOLDERS=\"${standard_folder}\"")
endfunction()
