# The game's assets, for the top CMakeLists.txt to include().
#
#   TESELARI_ACTIVOS_QRC      the Qt resource file with the two strips, the
#                             chronometer face, the cursors, the clips and
#                             the help book (":/teselari/ayuda/indice.html"...):
#                             add it to the sources of the executable (with
#                             AUTORCC, or qt_add_resources). Resource paths
#                             are ":/teselari/botones.png", ":/teselari/varios.png", ":/teselari/
#                             cursores/manoindice.png", ":/teselari/sonidos/1.wav"...
#   TESELARI_MUESTRAS         the sample pictures (123.BMP ... TRANVIA.JPG).
#   teselari_copia_muestras(target)
#                             copies the sample pictures beside the target's
#                             executable after each build of it.
#   teselari_instala_muestras(destino)
#                             installs them into the folder `destino`.

set(TESELARI_ACTIVOS_DIR "${CMAKE_CURRENT_LIST_DIR}")
set(TESELARI_ACTIVOS_QRC "${TESELARI_ACTIVOS_DIR}/teselari.qrc")
set(TESELARI_MUESTRAS)
foreach(_muestra 123.BMP FORMAS.BMP CAMPANA.JPG CASA.JPG CATEDRAL.JPG FUENTE.JPG
                 PALMERAS.JPG PUERTA.JPG TRANVIA.JPG)
  list(APPEND TESELARI_MUESTRAS "${TESELARI_ACTIVOS_DIR}/muestras/${_muestra}")
endforeach()

function(teselari_copia_muestras target)
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${TESELARI_MUESTRAS}
            "$<TARGET_FILE_DIR:${target}>"
    COMMENT "Copying the sample pictures beside ${target}"
    VERBATIM)
endfunction()

function(teselari_instala_muestras destino)
  install(FILES ${TESELARI_MUESTRAS} DESTINATION "${destino}")
endfunction()
