# Desktop integration, manual pages, the Debian documentation files, and the Debian package
# (cpack -G DEB in the build folder makes zavoren_<version>_<arch>.deb).

install(FILES resources/io.github.zavoren.Zavoren.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES resources/io.github.zavoren.Zavoren.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

# Manual pages and Debian's documentation files, compressed as Debian wants them.
find_program(ZAVOREN_GZIP gzip REQUIRED)
set(doc_outputs)
foreach(page zavoren.1 zavoren-db.1 zavoren-sheet.1)
    add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/man/${page}.gz
        COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/man
        COMMAND ${ZAVOREN_GZIP} -9nc ${CMAKE_SOURCE_DIR}/resources/man/${page} > ${CMAKE_BINARY_DIR}/man/${page}.gz
        DEPENDS ${CMAKE_SOURCE_DIR}/resources/man/${page})
    list(APPEND doc_outputs ${CMAKE_BINARY_DIR}/man/${page}.gz)
    install(FILES ${CMAKE_BINARY_DIR}/man/${page}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()
add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/doc/changelog.gz
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/doc
    COMMAND ${ZAVOREN_GZIP} -9nc ${CMAKE_SOURCE_DIR}/resources/debian/changelog > ${CMAKE_BINARY_DIR}/doc/changelog.gz
    DEPENDS ${CMAKE_SOURCE_DIR}/resources/debian/changelog)
list(APPEND doc_outputs ${CMAKE_BINARY_DIR}/doc/changelog.gz)
add_custom_target(documentation ALL DEPENDS ${doc_outputs})
install(FILES ${CMAKE_BINARY_DIR}/doc/changelog.gz resources/debian/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/zavoren)

# The Debian package.
execute_process(COMMAND dpkg --print-architecture OUTPUT_VARIABLE ZAVOREN_DEB_ARCH OUTPUT_STRIP_TRAILING_WHITESPACE
    ERROR_QUIET)
if(NOT ZAVOREN_DEB_ARCH)
    set(ZAVOREN_DEB_ARCH amd64)
endif()
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zavoren)
set(CPACK_PACKAGE_VENDOR "Quelmar Software")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "learn to write Japanese kanji stroke by stroke")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Zavoren! teaches the Japanese kanji by writing. A lesson shows each
character being written stroke by stroke and has the learner copy it with
the mouse, a pen or a finger; every stroke is checked at once for place,
size, shape, direction and order, and a stroke that does not match is wiped
with the reason. Tests ask for the ON and KUN readings and have the learner
write each character from its readings and meaning. A progress window
charts the learner's history. Several learners share one installation.

The interface speaks English, French, Spanish, Portuguese, German and
Russian. Stroke data come from KanjiVG, readings and meanings from KANJIDIC2.")
set(CPACK_DEBIAN_FILE_NAME "zavoren_${PROJECT_VERSION}_${ZAVOREN_DEB_ARCH}.deb")
set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE ${ZAVOREN_DEB_ARCH})
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Zavoren! developers <maintainers@quelmar.example.org>")
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://quelmar.example.org/zavoren")
# The libraries the program and its module link (found by dpkg-shlibdeps), a CJK font for the
# characters, the platform plugins, and Qt's own translations.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# SQLite is loaded when the history is first opened, not linked: shlibdeps cannot see it. The
# handwriting model of Find a character is a data package (libzinnia0 comes from shlibdeps).
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libsqlite3-0, fonts-ipafont-gothic | fonts-noto-cjk, qt6-qpa-plugins, qt6-translations-l10n, tegaki-zinnia-japanese")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)

# The package is made from the ordinary build; the sanitizer build is not packaged.
if(ZAVOREN_BUILD_TESTS AND NOT ZAVOREN_SANITIZE)
    add_test(NAME debian_package COMMAND bash ${CMAKE_SOURCE_DIR}/resources/debian/check_package.sh
        ${CMAKE_BINARY_DIR} ${PROJECT_VERSION})
    # cpack installs the whole build into a staging folder: not alongside the other tests.
    set_tests_properties(debian_package PROPERTIES RUN_SERIAL TRUE TIMEOUT 600)
endif()
