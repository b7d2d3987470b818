# Every library the program stands on, with the oldest version that serves.
find_package(Qt6 QUIET COMPONENTS
  Core Gui Widgets DBus Network Qml Quick QuickControls2 ShaderTools Sql LinguistTools)
if(NOT Qt6_FOUND OR Qt6_VERSION VERSION_LESS 6.8)
  message(FATAL_ERROR "Tromelo needs Qt 6.8 or newer with Qt Quick; found ${Qt6_VERSION}.")
endif()
qt_standard_project_setup(REQUIRES 6.8)
set(CMAKE_INSTALL_RPATH "")  # the libraries are the system's
set(QT_QML_GENERATE_QMLLS_INI OFF)
set(QT_QML_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml)

find_package(PkgConfig REQUIRED)

# "loadfile" with an index, "sub-border-style" and "video-target-params" came with this client API.
pkg_check_modules(MPV QUIET IMPORTED_TARGET mpv>=2.3)
if(NOT MPV_FOUND)
  pkg_check_modules(MPV_ANY QUIET mpv)
  message(FATAL_ERROR
    "Tromelo needs libmpv 0.38 or newer (client API 2.3); found API '${MPV_ANY_VERSION}'.")
endif()

# What libmpv reads files with: its headers; the libraries are opened where they are needed.
pkg_check_modules(AV REQUIRED libavformat libavcodec libavutil)

pkg_check_modules(GLIB REQUIRED IMPORTED_TARGET glib-2.0 gio-2.0)
pkg_search_module(WLROOTS QUIET IMPORTED_TARGET wlroots-0.19 wlroots-0.18)
if(NOT WLROOTS_FOUND)
  message(FATAL_ERROR "Tromelo needs wlroots 0.18 or 0.19 with its development files.")
endif()

pkg_check_modules(XCB REQUIRED IMPORTED_TARGET xcb)
pkg_check_modules(ICU REQUIRED IMPORTED_TARGET icu-uc)
pkg_check_modules(WAYLAND_SERVER REQUIRED IMPORTED_TARGET wayland-server)
pkg_check_modules(WAYLAND_CLIENT REQUIRED IMPORTED_TARGET wayland-client>=1.23)
pkg_check_modules(PIXMAN REQUIRED IMPORTED_TARGET pixman-1)
pkg_check_modules(DRM REQUIRED IMPORTED_TARGET libdrm)
pkg_check_modules(EGL REQUIRED IMPORTED_TARGET egl)
pkg_check_modules(GLES REQUIRED IMPORTED_TARGET glesv2)
pkg_check_modules(VULKAN REQUIRED vulkan)  # its headers; the loader is opened where it is needed
pkg_get_variable(WAYLAND_SCANNER wayland-scanner wayland_scanner)
pkg_check_modules(WAYLAND_PROTOCOLS REQUIRED wayland-protocols>=1.41)  # colour management
pkg_get_variable(WAYLAND_PROTOCOLS_DIR wayland-protocols pkgdatadir)

if(BUILD_TESTING)
  find_package(GTest REQUIRED)
  find_package(Qt6 REQUIRED COMPONENTS Test)
endif()
