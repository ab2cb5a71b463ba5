# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT

find_program(QVTBLT_GZIP gzip REQUIRED)

# Installs a compressed document, such as a manual page or a changelog, to a folder below the
# prefix.
function(qvtblt_install_gzipped source folder name component)
    cmake_path(ABSOLUTE_PATH source)
    set(result ${QVTBLT_STAGE}/${folder}/${name}.gz)
    cmake_path(GET result PARENT_PATH result_folder)
    # Without name and time, the result is reproducible.
    add_custom_command(OUTPUT ${result} DEPENDS ${source}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${result_folder}
        COMMAND ${QVTBLT_GZIP} -9nc ${source} > ${result} VERBATIM)
    add_custom_target(${component}-${name} ALL DEPENDS ${result})
    install(FILES ${result} DESTINATION ${folder} COMPONENT ${component})
endfunction()
