# Checks that everything a desktop user needs is where the program, the desktop and man look
# for it: installed with cmake --install into a scratch prefix (PARTE=instalacion), or as the
# Debian package unpacks (PARTE=paquete). LIBDIR is the build's own; SIMULADA and FIRMWARE say
# whether the simulated board and the firmware were built, and so are installed.
cmake_minimum_required(VERSION 3.25)

function(comprobar raiz)
  set(programa ${raiz}/${LIBDIR}/eeprog)
  set(manuales ${raiz}/share/man/man1/eeprog.1.gz ${raiz}/share/man/man1/eeprog-cli.1.gz
    ${raiz}/share/man/man1/eeprog-placa.1.gz)
  set(esperados
    ${programa}/eeprog
    ${programa}/circuito/Eeprog.bmp
    ${programa}/circuito/at28c64b.hex
    ${programa}/skins/B-Studio.skn ${programa}/skins/galaxy.skn ${programa}/skins/green.skn
    ${programa}/skins/Mac.skn ${programa}/skins/Media.skn ${programa}/skins/metallic.skn
    ${programa}/skins/Paper.skn ${programa}/skins/TopSecret.skn ${programa}/skins/Web-II.skn
    ${programa}/skins/winaqua.skn ${programa}/skins/Zhelezo.skn
    ${raiz}/bin/eeprog-cli
    ${raiz}/bin/eeprog-placa
    ${raiz}/share/applications/eeprog.desktop
    ${raiz}/share/metainfo/eeprog.metainfo.xml
    ${raiz}/share/doc/eeprog/copyright
    ${raiz}/share/doc/eeprog/changelog.gz
    ${raiz}/share/icons/hicolor/48x48/apps/eeprog.png
    ${raiz}/share/icons/hicolor/scalable/apps/eeprog.svg
    ${manuales})
  if(SIMULADA)
    list(APPEND manuales ${raiz}/share/man/man1/eeprog-simplaca.1.gz)
    list(APPEND esperados ${raiz}/bin/eeprog-simplaca ${raiz}/share/man/man1/eeprog-simplaca.1.gz)
  endif()
  if(FIRMWARE)
    list(APPEND esperados ${programa}/circuito/eeprog-placa.elf)
  endif()
  foreach(archivo IN LISTS esperados)
    if(NOT EXISTS ${archivo})
      message(FATAL_ERROR "not installed: ${archivo}")
    endif()
  endforeach()

  # gzip's magic, deflate, no flags and a zero time (RFC 1952): compressed with -n.
  foreach(manual IN LISTS manuales)
    file(READ ${manual} cabecera LIMIT 8 HEX)
    if(NOT cabecera STREQUAL "1f8b080000000000")
      message(FATAL_ERROR "${manual} is not compressed with gzip -n: ${cabecera}")
    endif()
  endforeach()

  # The command is a link, so the program's directory is the one that holds the skins.
  set(enlace ${raiz}/bin/eeprog)
  if(NOT IS_SYMLINK ${enlace})
    message(FATAL_ERROR "${enlace} is not a link to the program")
  endif()
  file(REAL_PATH ${enlace} real)
  file(REAL_PATH ${programa}/eeprog esperado)
  if(NOT real STREQUAL esperado)
    message(FATAL_ERROR "${enlace} leads to ${real}, not ${esperado}")
  endif()

  # Installed elsewhere than the prefix it was configured for, the simulated board still finds
  # its firmware from its own place, and starts: its first line is its terminal.
  if(SIMULADA AND FIRMWARE)
    execute_process(COMMAND ${raiz}/bin/eeprog-simplaca TIMEOUT 3 OUTPUT_VARIABLE salida ERROR_VARIABLE errores)
    if(NOT salida MATCHES "^/dev/")
      message(FATAL_ERROR "the installed eeprog-simplaca does not start: ${errores}")
    endif()
  endif()

  file(STRINGS ${raiz}/share/applications/eeprog.desktop entrada)
  foreach(clave "Exec=eeprog" "Icon=eeprog" "Type=Application")
    if(NOT clave IN_LIST entrada)
      message(FATAL_ERROR "eeprog.desktop lacks ${clave}")
    endif()
  endforeach()
endfunction()

function(ejecutar)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE resultado OUTPUT_VARIABLE salida ERROR_VARIABLE salida)
  if(NOT resultado EQUAL 0)
    message(FATAL_ERROR "${ARGN} failed (${resultado}):\n${salida}")
  endif()
  set(salida "${salida}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${DESTINO})
if(PARTE STREQUAL "instalacion")
  ejecutar(${CMAKE_COMMAND} --install ${BUILD} --prefix ${DESTINO})
  comprobar(${DESTINO})
  return()
endif()

find_program(DPKG_DEB dpkg-deb)
find_program(DPKG_SHLIBDEPS dpkg-shlibdeps)
if(NOT DPKG_DEB OR NOT DPKG_SHLIBDEPS)
  message("SKIPPED: building the package needs dpkg-deb and dpkg-shlibdeps (dpkg-dev)")
  return()
endif()
ejecutar(dpkg --print-architecture)
string(STRIP "${salida}" arquitectura)
ejecutar(${CPACK} -G DEB -B ${DESTINO} --config ${BUILD}/CPackConfig.cmake)
set(paquete ${DESTINO}/eeprog_2.0_${arquitectura}.deb)

ejecutar(${DPKG_DEB} --field ${paquete} Depends)
foreach(dependencia "libqt6widgets6" "libqt6serialport6" "qt6-qpa-plugins")
  if(NOT salida MATCHES "(^|, )${dependencia}[ ,\n]")
    message(FATAL_ERROR "the package does not depend on ${dependencia}: ${salida}")
  endif()
endforeach()

# The unpacked tree is exactly the package's file list.
ejecutar(${DPKG_DEB} --extract ${paquete} ${DESTINO}/raiz)
comprobar(${DESTINO}/raiz/usr)
ejecutar(${DESTINO}/raiz/usr/bin/eeprog-cli --version)
if(NOT salida STREQUAL "eeprog-cli 2.0\n")
  message(FATAL_ERROR "eeprog-cli --version from the package says: ${salida}")
endif()
