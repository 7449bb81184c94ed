# What is installed, and the Debian package of it.
include(GNUInstallDirs)

set(made ${CMAKE_CURRENT_BINARY_DIR}/packaging)
configure_file(packaging/corvalis.1.in ${made}/corvalis.1 @ONLY)
configure_file(packaging/corvalis-coder.1.in ${made}/corvalis-coder.1 @ONLY)
configure_file(packaging/corvalis-send.1.in ${made}/corvalis-send.1 @ONLY)
configure_file(packaging/corvalis-radio.1.in ${made}/corvalis-radio.1 @ONLY)
configure_file(packaging/org.example.corvalis.metainfo.xml.in
  ${made}/org.example.corvalis.metainfo.xml @ONLY)
configure_file(packaging/changelog.in ${made}/changelog @ONLY)
# Compressed without a name and a time, so that two builds are alike.
foreach(page corvalis.1 corvalis-coder.1 corvalis-send.1 corvalis-radio.1 changelog)
  execute_process(COMMAND gzip -9nc ${made}/${page} OUTPUT_FILE ${made}/${page}.gz)
endforeach()

install(TARGETS corvalis corvalis-coder corvalis-send corvalis-radio RUNTIME)
install(FILES ${made}/corvalis.1.gz ${made}/corvalis-coder.1.gz ${made}/corvalis-send.1.gz
  ${made}/corvalis-radio.1.gz
  DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
# The service that sends, which nobody has enabled.
install(FILES packaging/corvalis-send.service DESTINATION lib/systemd/system)
install(FILES packaging/corvalis.desktop packaging/corvalis-radio.desktop
  DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${made}/org.example.corvalis.metainfo.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES packaging/corvalis.svg DESTINATION ${icons}/scalable/apps)
foreach(size 16 32 48 64 128 256)
  install(FILES packaging/icons/${size}.png DESTINATION ${icons}/${size}x${size}/apps
    RENAME corvalis.png)
endforeach()
# The sample station says where the files of its in-house pages are.
set(samples ${CMAKE_INSTALL_DATADIR}/corvalis/examples)
execute_process(
  COMMAND sed "s#;examples;#;${CMAKE_INSTALL_PREFIX}/${samples};#"
    ${CMAKE_CURRENT_SOURCE_DIR}/examples/station.rds
  OUTPUT_FILE ${made}/station.rds)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS examples/station.rds)
install(DIRECTORY examples/ DESTINATION ${samples} PATTERN station.rds EXCLUDE)
install(FILES ${made}/station.rds DESTINATION ${samples})
# Where the program looks for it.
install(DIRECTORY docs/guide DESTINATION ${CMAKE_INSTALL_DATADIR}/corvalis
  FILES_MATCHING PATTERN "*.md" PATTERN "*.png")
install(FILES packaging/copyright ${made}/changelog.gz CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME corvalis)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Corvalis developers <corvalis@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "prepare what an RDS encoder puts on the air")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"A broadcast engineer prepares here everything that an RDS encoder at an FM
transmitter puts on the air, keeps it in one file, and sends it to the encoder
or reads it back over a serial line: a local two-way line, a dialled modem, or
a one-way satellite path. A simulated encoder comes with it, and a radio that
shows what listeners receive and holds it against the file.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION hamradio)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The face of the program, and the fixed-width one of its codes and tables.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-inter, fonts-dejavu-core")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
include(CPack)
