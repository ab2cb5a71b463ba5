# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
#
# Included into the project by the tests of the tests: compiles the headers of the system and of the
# libraries once for each target, since they are most of a source's compile time.
function(qvtblt_precompile folder)
    get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target IN LISTS targets)
        get_target_property(type ${target} TYPE)
        if(type MATCHES "^(STATIC_LIBRARY|EXECUTABLE)$")
            target_precompile_headers(${target} PRIVATE ${QVTBLT_PRECOMPILED_HEADER})
        endif()
    endforeach()
    get_property(subfolders DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
    foreach(subfolder IN LISTS subfolders)
        qvtblt_precompile(${subfolder})
    endforeach()
endfunction()
cmake_language(DEFER CALL qvtblt_precompile ${CMAKE_CURRENT_SOURCE_DIR})
