# Installs BUILD into the empty folder TREE, looks for what a desktop needs, and draws an installed sample with the
# installed program.

file(REMOVE_RECURSE ${TREE})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${TREE} OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
foreach(file bin/tessaplot share/applications/tessaplot.desktop share/mime/packages/tessaplot.xml
        share/icons/hicolor/scalable/apps/tessaplot.svg share/tessaplot/help.ini
        share/man/man1/tessaplot.1.gz share/bash-completion/completions/tessaplot-cli share/tessaplot/samples/chart.bmp)
  if(NOT EXISTS ${TREE}/${file})
    message(FATAL_ERROR "${file} is not installed")
  endif()
endforeach()

foreach(picture sphere.png sphere.jpg)
  execute_process(COMMAND ${TREE}/bin/tessaplot-cli render ${TREE}/share/tessaplot/samples/sphere.tsp ${TREE}/${picture}
                          --size 80x60 COMMAND_ERROR_IS_FATAL ANY)
  if(NOT EXISTS ${TREE}/${picture})
    message(FATAL_ERROR "the installed program draws no ${picture}")
  endif()
endforeach()
