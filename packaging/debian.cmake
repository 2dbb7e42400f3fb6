# The Debian package. Its version and who answers for it stand in debian/changelog alone.
file(STRINGS debian/changelog entry REGEX "^melvor |^ -- ")
list(GET entry 0 head)
list(GET entry 1 foot)
string(REGEX MATCH "^melvor \\(([0-9.]+)-([^)]+)\\)" head "${head}")
if(NOT CMAKE_MATCH_1 STREQUAL PROJECT_VERSION)
  message(FATAL_ERROR "packaging/debian/changelog begins with another version than ${PROJECT_VERSION}")
endif()
set(CPACK_DEBIAN_PACKAGE_RELEASE ${CMAKE_MATCH_2})
string(REGEX REPLACE "^ -- (.*>).*" "\\1" CPACK_DEBIAN_PACKAGE_MAINTAINER "${foot}")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME melvor)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SECTION sound)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "editor for the Roland JX-8P and MKS-70 synthesizers")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"MELVOR shows the programmer of a Roland JX-8P, or of its rack relative
MKS-70, on screen. Every slider, switch and knob is a parameter of the tone,
and every move goes to the instrument at once as MIDI System Exclusive.

Beside the panel it has a window for patch parameters, a generator of random
tones, an oscillator that sweeps a parameter along a drawn curve, a step
sequencer, and a file browser that plays tones and sequences while one looks
through them. It speaks to MIDI devices through ALSA and JACK.")

# The toolkit's plug-ins for X11 and for SVG come with the libraries that the program is linked with.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-dejavu-core, hicolor-icon-theme")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "jackd2 | pipewire-jack, qt6-wayland")

set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
include(CPack)
