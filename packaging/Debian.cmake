# The Debian package, by CPack. What the program links with is found by itself; what it loads while
# it runs is named here.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tromelo)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Tromelo developers <tromelo@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "video player whose window is all picture")
set(CPACK_PACKAGE_DESCRIPTION
"Tromelo plays local video files in a borderless, dark window. Its controls
float over the picture and hide themselves while the video plays.

Several files opened together play as a queue. There are chapters, audio and
subtitle tracks, subtitles to one's own taste, and a key for everything.
Decoding and rendering are libmpv's, over Vulkan, on Wayland and X11.")

# With a destination directory the program is told where it will lie, not where it is packed.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
  GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION video)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(loaded
  fonts-inter
  fonts-material-design-icons-iconfont
  hicolor-icon-theme
  "libmpv2 (>= 0.38)"
  libqt6sql6-sqlite
  libqt6svg6
  "mesa-vulkan-drivers | vulkan-icd"
  qml6-module-qtqml-workerscript
  qml6-module-qtquick
  qml6-module-qtquick-layouts
  qml6-module-qtquick-shapes
  qml6-module-qtquick-templates
  qml6-module-qtquick-window
  qt6-wayland
  shared-mime-info
  xkb-data)
set(welcome
  "default-dbus-session-bus | dbus-session-bus"
  fonts-noto-core
  libgl1-mesa-dri
  qt6-gtk-platformtheme
  qt6-translations-l10n
  "va-driver-all | va-driver"
  xdg-utils)
list(JOIN loaded ", " CPACK_DEBIAN_PACKAGE_DEPENDS)
list(JOIN welcome ", " CPACK_DEBIAN_PACKAGE_RECOMMENDS)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "fonts-noto-cjk, xdg-desktop-portal")

# What Debian wants of a package beyond the program's own files.
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/debian/complete.cmake)
set(CPACK_TROMELO_SOURCE ${PROJECT_SOURCE_DIR})
include(CPack)
