# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT

# The layout below QVTBLT_STAGE is that of the installation, so that every program finds the others
# by the same relative paths, installed or not.
set(QVTBLT_STAGE ${PROJECT_BINARY_DIR}/stage)

# Below the prefix:
set(QVTBLT_MODULE_DIR ${CMAKE_INSTALL_LIBDIR}/qvtblt/qt${QT_MAJOR_VERSION})
set(QVTBLT_RESOURCES_DIR ${CMAKE_INSTALL_DATADIR}/qvtblt)
set(QVTBLT_DRIVER_TEXTS_DIR ${CMAKE_INSTALL_DATADIR}/tdsg-driver)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${QVTBLT_STAGE}/${CMAKE_INSTALL_BINDIR})

# Defines macros for a host: the path of the module, relative to the host's folder below the prefix,
# and the path of the resources, relative to the module.
function(qvtblt_host_paths target host_dir)
    file(RELATIVE_PATH module /${host_dir} /${QVTBLT_MODULE_DIR}/QVTblt.so)
    file(RELATIVE_PATH resources /${QVTBLT_MODULE_DIR} /${QVTBLT_RESOURCES_DIR})
    target_compile_definitions(${target} PRIVATE QVTBLT_MODULE_PATH="${module}"
        QVTBLT_RESOURCES_PATH="${resources}")
endfunction()
