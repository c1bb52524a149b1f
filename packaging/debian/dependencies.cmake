# Read by CPack. Asks Debian's tool which packages the libraries come from: those of the programs are needed,
# those of the video plugin only recommended, since without the plugin a panel stays blank and nothing else.
set(folder ${CPACK_PACKAGE_DIRECTORY}/dependencies)
file(WRITE ${folder}/debian/control "") # the tool insists on one
set(command dpkg-shlibdeps -O -dDepends -e${CPACK_QISMORA_PROGRAMS}/qismora
            -e${CPACK_QISMORA_PROGRAMS}/qismora-divide)
set(plugin ${CPACK_QISMORA_PROGRAMS}/qismora_video.so)
if(EXISTS ${plugin})
  list(APPEND command -dRecommends -e${plugin})
endif()
execute_process(COMMAND ${command} WORKING_DIRECTORY ${folder} OUTPUT_VARIABLE found ERROR_VARIABLE told)
file(REMOVE_RECURSE ${folder})

if(NOT found MATCHES "shlibs:Depends=([^\n]*)")
  message(FATAL_ERROR "dpkg-shlibdeps names no package that the program depends on.\n${told}")
endif()
# No library names the plugin that reads the pictures.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "${CMAKE_MATCH_1}, libqt6svg6")

# What no library tells: windows on Wayland, the way to a viewer, and a viewer of the documents.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, xdg-utils, evince | pdf-viewer")
if(found MATCHES "shlibs:Recommends=([^\n]*)")
  string(PREPEND CPACK_DEBIAN_PACKAGE_RECOMMENDS "${CMAKE_MATCH_1}, ")
endif()
