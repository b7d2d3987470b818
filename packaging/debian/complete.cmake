# Puts Debian's documents beside the packed files, and compresses what Debian wants compressed.
cmake_policy(VERSION 3.25)
set(share ${CPACK_TEMPORARY_DIRECTORY}/usr/share)
set(documents ${share}/doc/tromelo)

file(MAKE_DIRECTORY ${documents})
file(COPY_FILE ${CPACK_TROMELO_SOURCE}/packaging/debian/copyright ${documents}/copyright)
file(COPY_FILE ${CPACK_TROMELO_SOURCE}/CHANGELOG.md ${documents}/changelog)

# Of when it was packed, or of the source where the packer says so.
string(TIMESTAMP now "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(WRITE ${documents}/changelog.Debian
"tromelo (${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium

  * Packed from its source; changelog.gz tells what is new.

 -- ${CPACK_DEBIAN_PACKAGE_MAINTAINER}  ${now}
")
execute_process(
  COMMAND gzip -9n ${documents}/changelog ${documents}/changelog.Debian ${share}/man/man1/tromelo.1
  COMMAND_ERROR_IS_FATAL ANY)
file(CHMOD ${documents}/copyright ${documents}/changelog.gz ${documents}/changelog.Debian.gz
  ${share}/man/man1/tromelo.1.gz
  PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
