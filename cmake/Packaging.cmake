# SPDX-License-Identifier: MIT
# What is installed where, and the Debian package.
set(kestrel_id example.kestrel_sudoku.KestrelSudoku)
set(kestrel_share ${CMAKE_INSTALL_DATADIR}/kestrel-sudoku)

foreach(program kestrel-sudoku kestrel-sudoku-cli kestrel-sudoku-script)
  if(TARGET ${program})
    install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  endif()
endforeach()

install(FILES docs/man/kestrel-sudoku-cli.1 docs/man/kestrel-sudoku-script.1
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
if(TARGET kestrel-sudoku)
  install(FILES docs/man/kestrel-sudoku.6 DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
endif()

install(FILES data/sudstock.kpz DESTINATION ${kestrel_share})
install(DIRECTORY data/ DESTINATION ${kestrel_share} FILES_MATCHING PATTERN "*.wav" PATTERN "*.GIF"
        PATTERN "*.html" PATTERN "*.css" PATTERN "*.png" PATTERN "icons" EXCLUDE PATTERN "examples" EXCLUDE)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME copyright)

if(TARGET kestrel-sudoku)
  install(FILES packaging/${kestrel_id}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES packaging/${kestrel_id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  install(FILES data/icons/kestrel-sudoku.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
          OPTIONAL)
  foreach(size 16 24 32 48 64 128 256)
    install(FILES data/icons/kestrel-sudoku-${size}.png
            DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps
            RENAME kestrel-sudoku.png OPTIONAL)
  endforeach()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kestrel-sudoku)
set(CPACK_PACKAGE_VENDOR "The Kestrel Sudoku authors")
set(CPACK_PACKAGE_CONTACT "The Kestrel Sudoku authors <maintainers@kestrel-sudoku.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Sudoku with a logic solver that rates, hints and teaches")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_PACKAGE_FILE_NAME kestrel-sudoku_${PROJECT_VERSION})
include(CPack)
