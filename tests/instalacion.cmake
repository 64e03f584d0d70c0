# Installs the build into a scratch prefix and checks that everything a desktop user needs
# is where the program and the desktop look for it.
cmake_minimum_required(VERSION 3.25)
file(REMOVE_RECURSE ${DESTINO})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${DESTINO} RESULT_VARIABLE resultado
  OUTPUT_QUIET)
if(NOT resultado EQUAL 0)
  message(FATAL_ERROR "cmake --install failed: ${resultado}")
endif()

include(GNUInstallDirs)
set(programa ${DESTINO}/${CMAKE_INSTALL_LIBDIR}/eeprog)
set(esperados
  ${programa}/eeprog
  ${programa}/circuito/Eeprog.bmp
  ${programa}/circuito/at28c64b.hex
  ${programa}/skins/B-Studio.skn ${programa}/skins/galaxy.skn ${programa}/skins/green.skn
  ${programa}/skins/Mac.skn ${programa}/skins/Media.skn ${programa}/skins/metallic.skn
  ${programa}/skins/Paper.skn ${programa}/skins/TopSecret.skn ${programa}/skins/Web-II.skn
  ${programa}/skins/winaqua.skn ${programa}/skins/Zhelezo.skn
  ${DESTINO}/${CMAKE_INSTALL_BINDIR}/eeprog-placa
  ${DESTINO}/${CMAKE_INSTALL_DATADIR}/applications/eeprog.desktop
  ${DESTINO}/${CMAKE_INSTALL_DATADIR}/icons/hicolor/48x48/apps/eeprog.png
  ${DESTINO}/${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps/eeprog.svg)
foreach(archivo IN LISTS esperados)
  if(NOT EXISTS ${archivo})
    message(FATAL_ERROR "not installed: ${archivo}")
  endif()
endforeach()

# The command is a link, so the program's directory is the one that holds the skins.
set(enlace ${DESTINO}/${CMAKE_INSTALL_BINDIR}/eeprog)
if(NOT IS_SYMLINK ${enlace})
  message(FATAL_ERROR "${enlace} is not a link to the program")
endif()
file(REAL_PATH ${enlace} real)
file(REAL_PATH ${programa}/eeprog esperado)
if(NOT real STREQUAL esperado)
  message(FATAL_ERROR "${enlace} leads to ${real}, not ${esperado}")
endif()

file(STRINGS ${DESTINO}/${CMAKE_INSTALL_DATADIR}/applications/eeprog.desktop entrada)
foreach(clave "Exec=eeprog" "Icon=eeprog" "Type=Application")
  if(NOT clave IN_LIST entrada)
    message(FATAL_ERROR "eeprog.desktop lacks ${clave}")
  endif()
endforeach()
