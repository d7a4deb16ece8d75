# SPDX-License-Identifier: MIT
# What is installed where. The Debian package is made from debian/.
set(kestrel_id example.kestrel_sudoku.KestrelSudoku)
set(kestrel_share ${CMAKE_INSTALL_DATADIR}/kestrel-sudoku)

# A folder beside that of the other programs, so that the way from each to the data is the same.
set(KESTREL_GAMES_DIR ${CMAKE_INSTALL_BINDIR} CACHE STRING "Where the window's program is installed, for example games")
foreach(program kestrel-sudoku-cli kestrel-sudoku-script)
  install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endforeach()
if(TARGET kestrel-sudoku)
  install(TARGETS kestrel-sudoku RUNTIME DESTINATION ${KESTREL_GAMES_DIR})
endif()

# Man pages and the list of changes are installed compressed, without a time stamp in them.
find_program(KESTREL_GZIP gzip)
function(kestrel_install_text file name folder)
  if(KESTREL_GZIP)
    set(packed ${PROJECT_BINARY_DIR}/packed/${name}.gz)
    add_custom_command(OUTPUT ${packed} COMMAND ${KESTREL_GZIP} -9nc ${PROJECT_SOURCE_DIR}/${file} > ${packed}
                       DEPENDS ${file})
    add_custom_target(pack-${name} ALL DEPENDS ${packed})
    install(FILES ${packed} DESTINATION ${folder})
  else()
    install(FILES ${file} DESTINATION ${folder} RENAME ${name})
  endif()
endfunction()
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/packed)
set(kestrel_pages kestrel-sudoku-cli.1 kestrel-sudoku-script.1)
if(TARGET kestrel-sudoku)
  list(APPEND kestrel_pages kestrel-sudoku.6)
endif()
foreach(page IN LISTS kestrel_pages)
  string(REGEX REPLACE ".*[.]" "man" section ${page})
  kestrel_install_text(docs/man/${page} ${page} ${CMAKE_INSTALL_MANDIR}/${section})
endforeach()
kestrel_install_text(CHANGELOG.md changelog ${CMAKE_INSTALL_DOCDIR})

install(FILES data/sudstock.kpz DESTINATION ${kestrel_share})
# The icons and the logo travel inside the program; examples are what the help pages are made from.
install(DIRECTORY data/ DESTINATION ${kestrel_share} FILES_MATCHING PATTERN "*.wav" PATTERN "*.GIF"
        PATTERN "*.html" PATTERN "*.css" PATTERN "*.svg" PATTERN "icons" EXCLUDE PATTERN "examples" EXCLUDE)
set(kestrel_completions packaging/completions)
install(FILES ${kestrel_completions}/kestrel-sudoku-cli.bash RENAME kestrel-sudoku-cli
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES ${kestrel_completions}/_kestrel-sudoku-cli DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
install(FILES ${kestrel_completions}/kestrel-sudoku-cli.fish
        DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
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

# Each description is checked by its validator, where that is installed.
if(KESTREL_TESTS)
  set(packaging ${PROJECT_SOURCE_DIR}/packaging)
  find_program(KESTREL_DESKTOP_FILE_VALIDATE desktop-file-validate)
  find_program(KESTREL_APPSTREAMCLI appstreamcli)
  find_program(KESTREL_MANDOC mandoc)
  if(KESTREL_DESKTOP_FILE_VALIDATE)
    add_test(NAME package.desktop_file COMMAND ${KESTREL_DESKTOP_FILE_VALIDATE} ${packaging}/${kestrel_id}.desktop)
  endif()
  if(KESTREL_APPSTREAMCLI)
    add_test(NAME package.metainfo COMMAND ${KESTREL_APPSTREAMCLI} validate --no-net
                                           ${packaging}/${kestrel_id}.metainfo.xml)
  endif()
  if(KESTREL_MANDOC)
    file(GLOB pages ${PROJECT_SOURCE_DIR}/docs/man/*)
    add_test(NAME package.man_pages COMMAND ${KESTREL_MANDOC} -T lint -W warning ${pages})
  endif()
  find_program(KESTREL_PYTHON python3)
  if(KESTREL_PYTHON)
    add_test(NAME package.completions_fit COMMAND ${KESTREL_PYTHON} ${PROJECT_SOURCE_DIR}/tools/make_completions.py --check
                                                  $<TARGET_FILE:kestrel-sudoku-cli>)
  endif()
  add_test(NAME package.metainfo_tells_this_version
           COMMAND grep -m 1 -F "<release version=\"${PROJECT_VERSION}\"" ${packaging}/${kestrel_id}.metainfo.xml)
endif()
