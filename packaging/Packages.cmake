# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT

# The Debian packages, one for each component. Those for programs are made with Qt 6, that for System
# Settings with the Qt of the release's Plasma; make-packages makes them all.
set(CPACK_COMPONENTS_ALL)
if(QT_MAJOR_VERSION EQUAL 6)
    list(APPEND CPACK_COMPONENTS_ALL qvtblt qvtblt-dev tdsg-driver tdsg-driver-access)
endif()
if(TARGET kcm_qvtblt)
    list(APPEND CPACK_COMPONENTS_ALL kcm-qvtblt)
endif()

# In a machine-readable copyright file, an empty line is a dot.
file(READ ${PROJECT_SOURCE_DIR}/LICENSE QVTBLT_LICENSE)
string(REGEX REPLACE "^MIT License\n+Copyright[^\n]*\n+" "" QVTBLT_LICENSE "${QVTBLT_LICENSE}")
string(STRIP "${QVTBLT_LICENSE}" QVTBLT_LICENSE)
string(REPLACE "\n\n" "\n.\n" QVTBLT_LICENSE "${QVTBLT_LICENSE}")
string(REPLACE "\n" "\n " QVTBLT_LICENSE " ${QVTBLT_LICENSE}")
configure_file(copyright.in copyright @ONLY)
foreach(package IN LISTS CPACK_COMPONENTS_ALL)
    set(documents ${CMAKE_INSTALL_DATADIR}/doc/${package})
    qvtblt_install_gzipped(changelog ${documents} changelog ${package})
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/copyright DESTINATION ${documents}
        COMPONENT ${package})
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME qvtblt)
set(CPACK_PACKAGE_CONTACT "The QVTblt developers <qvtblt@quorvia.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)

# What the programs need at run time without linking to it: the session bus, over which panel and
# driver communicate, and the index of their icon theme. Qt's plug-ins come with Qt, except those
# for Wayland.
set(bus "default-dbus-session-bus | dbus-session-bus")

set(CPACK_DEBIAN_QVTBLT_PACKAGE_NAME qvtblt)
set(CPACK_DEBIAN_QVTBLT_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_QVTBLT_PACKAGE_DEPENDS "${bus}, hicolor-icon-theme")
set(CPACK_DEBIAN_QVTBLT_PACKAGE_RECOMMENDS "qt6-translations-l10n, qt6-wayland, tdsg-driver")
set(CPACK_DEBIAN_QVTBLT_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_SOURCE_DIR}/postinst)
set(CPACK_DEBIAN_QVTBLT_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_QVTBLT_DESCRIPTION "settings panel of the Quorvia pen tablet
Sets what each button of the tablet and the pen does, how the pen responds to
pressure, and which part of the screen the tablet covers. Every change takes
effect at once.

This package contains the panel in a window of its own, and qvtbltctl, which
does the same from the command line.")

# The module shares texts, pictures and the udev rule with the window, and the one for Plasma 6 also
# the panel itself, so it depends on the package qvtblt of the same version.
set(CPACK_DEBIAN_KCM-QVTBLT_PACKAGE_NAME kcm-qvtblt)
set(CPACK_DEBIAN_KCM-QVTBLT_PACKAGE_SECTION kde)
set(CPACK_DEBIAN_KCM-QVTBLT_PACKAGE_DEPENDS "qvtblt (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_KCM-QVTBLT_PACKAGE_RECOMMENDS systemsettings)
set(CPACK_DEBIAN_KCM-QVTBLT_DESCRIPTION "settings panel of the Quorvia pen tablet for KDE
Sets what each button of the tablet and the pen does, how the pen responds to
pressure, and which part of the screen the tablet covers. Every change takes
effect at once.

This package contains the panel as the module Quorvia Tablet of System
Settings.")

set(CPACK_DEBIAN_QVTBLT-DEV_PACKAGE_NAME qvtblt-dev)
set(CPACK_DEBIAN_QVTBLT-DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_QVTBLT-DEV_PACKAGE_DEPENDS "libexpat1-dev, qt6-base-dev, qvtblt (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_QVTBLT-DEV_DESCRIPTION "settings panel of the Quorvia pen tablet, for developers
Sets what each button of the tablet and the pen does, how the pen responds to
pressure, and which part of the screen the tablet covers. Every change takes
effect at once.

This package contains what a program needs to show the panel in a window of its
own, as a package for CMake, and the driver's D-Bus interfaces.")

set(CPACK_DEBIAN_TDSG-DRIVER_PACKAGE_NAME tdsg-driver)
set(CPACK_DEBIAN_TDSG-DRIVER_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TDSG-DRIVER_PACKAGE_DEPENDS "${bus}, hicolor-icon-theme")
# gio starts the applications that keys open.
set(CPACK_DEBIAN_TDSG-DRIVER_PACKAGE_RECOMMENDS "libglib2.0-bin, qt6-wayland")
set(CPACK_DEBIAN_TDSG-DRIVER_PACKAGE_SUGGESTS tdsg-driver-access)
set(CPACK_DEBIAN_TDSG-DRIVER_PACKAGE_ENHANCES "kcm-qvtblt, qvtblt")
set(CPACK_DEBIAN_TDSG-DRIVER_DESCRIPTION "driver of the Quorvia pen tablet
Has a pen tablet obey its settings, and serves the settings panel on the
session bus. Any tablet works for which the kernel has an event device.

It needs access to the tablet and to /dev/uinput, which the package
tdsg-driver-access gives. Without a tablet, it can simulate one, which can be
used with the mouse in a window.")

set(CPACK_DEBIAN_TDSG-DRIVER-ACCESS_PACKAGE_NAME tdsg-driver-access)
set(CPACK_DEBIAN_TDSG-DRIVER-ACCESS_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TDSG-DRIVER-ACCESS_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_TDSG-DRIVER-ACCESS_PACKAGE_DEPENDS tdsg-driver)
set(CPACK_DEBIAN_TDSG-DRIVER-ACCESS_PACKAGE_CONTROL_EXTRA
    ${CMAKE_CURRENT_SOURCE_DIR}/access/postinst)
set(CPACK_DEBIAN_TDSG-DRIVER-ACCESS_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_TDSG-DRIVER-ACCESS_DESCRIPTION "access to pen tablets for tdsg-driver
Lets the user at the machine read the events of pen tablets and make virtual
input devices, and starts tdsg-driver when a tablet is plugged in.

This holds for every program of that user, not just for the driver: any of them
can then read what the pen does, and can type and click as if it were the user,
also where the desktop would prevent it. Install it only if all programs that
you run may do so.")
include(CPack)
