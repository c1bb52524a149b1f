# Read by CPack. Asks dpkg-shlibdeps which packages contain the libraries. The package depends on those of the programs
# and of printing, and only recommends those of the video plugin: without the plugin, the video panel stays blank and all else works.
set(folder ${CPACK_PACKAGE_DIRECTORY}/dependencies)
file(WRITE ${folder}/debian/control "") # dpkg-shlibdeps requires one
set(command dpkg-shlibdeps -O -dDepends -e${CPACK_QISMORA_PROGRAMS}/qismora
            -e${CPACK_QISMORA_PROGRAMS}/qismora-divide -e${CPACK_QISMORA_PROGRAMS}/qismora_print.so)
set(plugin ${CPACK_QISMORA_PROGRAMS}/qismora_video.so)
if(EXISTS ${plugin})
  list(APPEND command -dRecommends -e${plugin})
endif()
execute_process(COMMAND ${command} WORKING_DIRECTORY ${folder} OUTPUT_VARIABLE found ERROR_VARIABLE errors)
file(REMOVE_RECURSE ${folder})

if(NOT found MATCHES "shlibs:Depends=([^\n]*)")
  message(FATAL_ERROR "dpkg-shlibdeps found no package that the program depends on.\n${errors}")
endif()
# dpkg-shlibdeps does not find the plugin that loads the pictures.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "${CMAKE_MATCH_1}, libqt6svg6")

# What libraries do not show: the Wayland plugin, fonts for Arabic and Urdu, the command that opens a viewer, and a PDF
# viewer.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, fonts-noto-core, fonts-hosny-amiri, xdg-utils, evince | pdf-viewer")
if(found MATCHES "shlibs:Recommends=([^\n]*)")
  string(PREPEND CPACK_DEBIAN_PACKAGE_RECOMMENDS "${CMAKE_MATCH_1}, ")
endif()
