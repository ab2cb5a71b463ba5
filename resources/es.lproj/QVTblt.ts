<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>OpenPanel</name>
    <message>
        <source>Choose an application</source>
        <translation>Elegir una aplicación</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Aplicaciones</translation>
    </message>
    <message>
        <source>This is not an application: choose a desktop entry, an AppImage or an application bundle.</source>
        <translation>Esto no es una aplicación: elija una entrada de escritorio, una AppImage o un paquete de aplicación.</translation>
    </message>
</context>
<context>
    <name>PaneShell</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Go back to the saved settings</source>
        <translation>Volver a los ajustes guardados</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save the current settings</source>
        <translation>Guardar los ajustes actuales</translation>
    </message>
    <message>
        <source>The settings were not saved: %1</source>
        <translation>Los ajustes no se han guardado: %1</translation>
    </message>
    <message>
        <source>The tablet&apos;s settings cannot be loaded, so the pages do not show them: %1</source>
        <translation>No se pueden cargar los ajustes de la tableta, por lo que las páginas no los muestran: %1</translation>
    </message>
    <message>
        <source>The tablet&apos;s driver has not accepted the last change. Is it running?</source>
        <translation>El controlador de la tableta no ha aceptado el último cambio. ¿Está en marcha?</translation>
    </message>
    <message>
        <source>Tr&amp;y Again</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>Send A&amp;gain</source>
        <translation>&amp;Enviar de nuevo</translation>
    </message>
    <message>
        <source>The tablet&apos;s settings could not be saved: %1</source>
        <translation>No se pudieron guardar los ajustes de la tableta: %1</translation>
    </message>
    <message>
        <source>Close the window and discard the changes?</source>
        <translation>¿Cerrar la ventana y descartar los cambios?</translation>
    </message>
    <message>
        <source>&amp;Keep Open</source>
        <translation>&amp;Mantener abierta</translation>
    </message>
    <message>
        <source>The previous tablet&apos;s settings were not saved: %1</source>
        <translation>Los ajustes de la tableta anterior no se han guardado: %1</translation>
    </message>
</context>
<context>
    <name>QVCalibrateView</name>
    <message>
        <source>Cross 1 of 4, at the upper left.</source>
        <translation>Cruz 1 de 4, arriba a la izquierda.</translation>
    </message>
    <message>
        <source>Cross 2 of 4, at the upper right.</source>
        <translation>Cruz 2 de 4, arriba a la derecha.</translation>
    </message>
    <message>
        <source>Cross 3 of 4, at the lower right.</source>
        <translation>Cruz 3 de 4, abajo a la derecha.</translation>
    </message>
    <message>
        <source>Cross 4 of 4, at the lower left.</source>
        <translation>Cruz 4 de 4, abajo a la izquierda.</translation>
    </message>
    <message>
        <source>Calibration finished</source>
        <translation>Calibración terminada</translation>
    </message>
    <message>
        <source>Calibration failed</source>
        <translation>Calibración fallida</translation>
    </message>
</context>
<context>
    <name>QVCalibrateWin</name>
    <message>
        <source>Calibration</source>
        <translation>Calibración</translation>
    </message>
</context>
<context>
    <name>QVDrawView</name>
    <message>
        <source>Pressure %1 %</source>
        <translation>Presión %1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>QVKeyComboBox</name>
    <message>
        <source>No action</source>
        <translation>Ninguna acción</translation>
    </message>
    <message>
        <source>Left mouse button</source>
        <translation>Botón izquierdo del ratón</translation>
    </message>
    <message>
        <source>Right mouse button</source>
        <translation>Botón derecho del ratón</translation>
    </message>
    <message>
        <source>Middle mouse button</source>
        <translation>Botón central del ratón</translation>
    </message>
    <message>
        <source>Back mouse button</source>
        <translation>Botón Atrás del ratón</translation>
    </message>
    <message>
        <source>Open an application…</source>
        <translation>Abrir una aplicación…</translation>
    </message>
    <message>
        <source>Press keys…</source>
        <translation>Pulsar teclas…</translation>
    </message>
    <message>
        <source>Go to the next display</source>
        <translation>Ir a la pantalla siguiente</translation>
    </message>
    <message>
        <source>Move finely while held</source>
        <translation>Precisión (mantener)</translation>
    </message>
    <message>
        <source>Pause the tablet</source>
        <translation>Pausar la tableta</translation>
    </message>
</context>
<context>
    <name>QVKeySetClass</name>
    <message>
        <source>Key Combination</source>
        <translation>Combinación de teclas</translation>
    </message>
    <message>
        <source>Choose up to three keys, in the order in which they are held</source>
        <translation>Elija hasta tres teclas, en el orden en que se pulsan</translation>
    </message>
    <message>
        <source>Chosen keys</source>
        <translation>Teclas elegidas</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Borrar</translation>
    </message>
    <message>
        <source>Remove the last key</source>
        <translation>Quitar la última tecla</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Escape</translation>
    </message>
    <message>
        <source>Minus</source>
        <translation>Menos</translation>
    </message>
    <message>
        <source>Plus</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retroceso</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Control</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Retroceder página</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Avanzar página</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
</context>
<context>
    <name>QVKeyView</name>
    <message>
        <source>There is no picture of this model.</source>
        <translation>No hay ninguna imagen de este modelo.</translation>
    </message>
    <message>
        <source>%1. Each key has the number of its list.</source>
        <translation>%1. Cada tecla lleva el número de su lista.</translation>
    </message>
</context>
<context>
    <name>QVMonitorView</name>
    <message>
        <source>%1: %2 by %3 points, its upper left corner at %4, %5.</source>
        <translation>%1: %2 por %3 puntos, con la esquina superior izquierda en %4, %5.</translation>
    </message>
    <message>
        <source>The tablet is mapped to %1.</source>
        <translation>La tableta está asignada a: %1.</translation>
    </message>
    <message>
        <source>Choose one display first: all displays cannot be calibrated together.</source>
        <translation>Elija primero una pantalla: no se pueden calibrar todas juntas.</translation>
    </message>
</context>
<context>
    <name>QVPenStats</name>
    <message>
        <source>Pressure %1 %</source>
        <translation>Presión %1&#xa0;%</translation>
    </message>
    <message>
        <source>Tilt %1° right, %2° down</source>
        <translation>Inclinación %1° a la derecha, %2° hacia abajo</translation>
    </message>
    <message>
        <source>Rotation %1°</source>
        <translation>Rotación %1°</translation>
    </message>
    <message>
        <source>At %1, %2 on the desktop</source>
        <translation>En %1, %2 del escritorio</translation>
    </message>
    <message>
        <source>Pen number %1</source>
        <translation>Lápiz número %1</translation>
    </message>
</context>
<context>
    <name>QVPressView</name>
    <message>
        <source>Eraser</source>
        <translation>Goma</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Lápiz</translation>
    </message>
    <message>
        <source>Eraser, serial number %1</source>
        <translation>Goma, número de serie %1</translation>
    </message>
    <message>
        <source>Pen, serial number %1</source>
        <translation>Lápiz, número de serie %1</translation>
    </message>
    <message>
        <source>No pen in range</source>
        <translation>Ningún lápiz al alcance</translation>
    </message>
    <message>
        <source>Threshold %1 of 200. Programs receive %2 % of the full pressure at a quarter of it, %3 % at half and %4 % at three quarters.</source>
        <translation>Umbral %1 de 200. Los programas reciben el %2&#xa0;% de la presión máxima a un cuarto de ella, el %3&#xa0;% a la mitad y el %4&#xa0;% a tres cuartos.</translation>
    </message>
</context>
<context>
    <name>QVTblt_prefPanePref</name>
    <message>
        <source>Quorvia Tablet</source>
        <translation>Tableta Quorvia</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Teclas</translation>
    </message>
    <message>
        <source>Picture of the tablet</source>
        <translation>Imagen de la tableta</translation>
    </message>
    <message>
        <source>Express key 1</source>
        <translation>Tecla rápida 1</translation>
    </message>
    <message>
        <source>Express key 2</source>
        <translation>Tecla rápida 2</translation>
    </message>
    <message>
        <source>Express key 3</source>
        <translation>Tecla rápida 3</translation>
    </message>
    <message>
        <source>Express key 4</source>
        <translation>Tecla rápida 4</translation>
    </message>
    <message>
        <source>&amp;Left scroll strip</source>
        <translation>Banda táctil &amp;izquierda</translation>
    </message>
    <message>
        <source>Express key 5</source>
        <translation>Tecla rápida 5</translation>
    </message>
    <message>
        <source>Express key 6</source>
        <translation>Tecla rápida 6</translation>
    </message>
    <message>
        <source>Express key 7</source>
        <translation>Tecla rápida 7</translation>
    </message>
    <message>
        <source>Express key 8</source>
        <translation>Tecla rápida 8</translation>
    </message>
    <message>
        <source>Express key 9</source>
        <translation>Tecla rápida 9</translation>
    </message>
    <message>
        <source>Express key 10</source>
        <translation>Tecla rápida 10</translation>
    </message>
    <message>
        <source>Express key 11</source>
        <translation>Tecla rápida 11</translation>
    </message>
    <message>
        <source>Express key 12</source>
        <translation>Tecla rápida 12</translation>
    </message>
    <message>
        <source>&amp;Right scroll strip</source>
        <translation>Banda táctil &amp;derecha</translation>
    </message>
    <message>
        <source>Express key 13</source>
        <translation>Tecla rápida 13</translation>
    </message>
    <message>
        <source>Express key 14</source>
        <translation>Tecla rápida 14</translation>
    </message>
    <message>
        <source>Express key 15</source>
        <translation>Tecla rápida 15</translation>
    </message>
    <message>
        <source>Express key 16</source>
        <translation>Tecla rápida 16</translation>
    </message>
    <message>
        <source>Scroll &amp;speed:</source>
        <translation>Despla&amp;zamiento:</translation>
    </message>
    <message>
        <source>Scroll speed</source>
        <translation>Velocidad de desplazamiento</translation>
    </message>
    <message>
        <source>&amp;Upper pen button:</source>
        <translation>Lápiz, botón &amp;superior:</translation>
    </message>
    <message>
        <source>Upper pen button</source>
        <translation>Botón superior del lápiz</translation>
    </message>
    <message>
        <source>L&amp;ower pen button:</source>
        <translation>Lápiz, botón i&amp;nferior:</translation>
    </message>
    <message>
        <source>Lower pen button</source>
        <translation>Botón inferior del lápiz</translation>
    </message>
    <message>
        <source>P&amp;en</source>
        <translation>&amp;Lápiz</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Presión</translation>
    </message>
    <message>
        <source>Light: a gentle touch has a strong effect. Heavy: you press harder for the same effect.</source>
        <translation>Suave: un toque ligero ya produce mucho efecto. Fuerte: hay que apretar más para el mismo efecto.</translation>
    </message>
    <message>
        <source>↑ What programs receive</source>
        <translation>↑ Lo que reciben los programas</translation>
    </message>
    <message>
        <source>Pressure curve</source>
        <translation>Curva de presión</translation>
    </message>
    <message>
        <source>How hard you press →</source>
        <translation>Fuerza con que aprieta →</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Suave</translation>
    </message>
    <message>
        <source>Pressure, from light to heavy</source>
        <translation>Presión, de suave a fuerte</translation>
    </message>
    <message>
        <source>Heavy</source>
        <translation>Fuerte</translation>
    </message>
    <message>
        <source>Try the pen</source>
        <translation>Probar el lápiz</translation>
    </message>
    <message>
        <source>&amp;Width follows pressure</source>
        <translation>Gr&amp;osor según la presión</translation>
    </message>
    <message>
        <source>&amp;Opacity follows pressure</source>
        <translation>Op&amp;acidad según la presión</translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <translation>&amp;Borrar</translation>
    </message>
    <message>
        <source>Clear the drawing pad</source>
        <translation>Borrar la zona de dibujo</translation>
    </message>
    <message>
        <source>Drawing pad</source>
        <translation>Zona de dibujo</translation>
    </message>
    <message>
        <source>Draw here with the pen or the mouse.</source>
        <translation>Dibuje aquí con el lápiz o el ratón.</translation>
    </message>
    <message>
        <source>Pressure, of 65535:</source>
        <translation>Presión, de 65535:</translation>
    </message>
    <message>
        <source>&amp;Display</source>
        <translation>&amp;Pantalla</translation>
    </message>
    <message>
        <source>&amp;Map the tablet to:</source>
        <translation>&amp;Asignar la tableta a:</translation>
    </message>
    <message>
        <source>Map the tablet to</source>
        <translation>Asignar la tableta a</translation>
    </message>
    <message>
        <source>The part of the desktop that the pen reaches.</source>
        <translation>La parte del escritorio que alcanza el lápiz.</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <translation>&amp;Orientación:</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientación</translation>
    </message>
    <message>
        <source>Turn the tablet to have its keys under the other hand.</source>
        <translation>Gire la tableta para que sus teclas queden bajo la otra mano.</translation>
    </message>
    <message>
        <source>Rotated by 180°</source>
        <translation>Girada 180°</translation>
    </message>
    <message>
        <source>Not rotated</source>
        <translation>Sin girar</translation>
    </message>
    <message>
        <source>&amp;Report speed:</source>
        <translation>&amp;Velocidad de envío:</translation>
    </message>
    <message>
        <source>Report speed</source>
        <translation>Velocidad de envío</translation>
    </message>
    <message>
        <source>Fast follows the hand more closely. The setting is also sent to the tablet itself, over USB.</source>
        <translation>«Rápida» sigue la mano más de cerca. El ajuste se envía también a la propia tableta por USB.</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rápida</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Use the &amp;whole tablet</source>
        <translation>&amp;Usar toda la tableta</translation>
    </message>
    <message>
        <source>Maps the whole tablet to the chosen part of the desktop.</source>
        <translation>Toda la tableta abarca la parte elegida del escritorio.</translation>
    </message>
    <message>
        <source>Keep &amp;proportions</source>
        <translation>&amp;Mantener las proporciones</translation>
    </message>
    <message>
        <source>Leaves a strip of the tablet unused, so that circles stay round.</source>
        <translation>Deja sin usar una franja de la tableta, para que los círculos sigan siendo redondos.</translation>
    </message>
    <message>
        <source>Cali&amp;brate…</source>
        <translation>Cali&amp;brar…</translation>
    </message>
    <message>
        <source>Touch four crosses on the chosen display to align the pointer with the pen.</source>
        <translation>Toque cuatro cruces en la pantalla elegida para que el puntero coincida con el lápiz.</translation>
    </message>
    <message>
        <source>Picture of the displays and the tablet</source>
        <translation>Imagen de las pantallas y la tableta</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Go back to the saved settings</source>
        <translation>Volver a los ajustes guardados</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save the current settings</source>
        <translation>Guardar los ajustes actuales</translation>
    </message>
    <message>
        <source>Is the tablet connected? Is its driver running? The settings appear here as soon as both are available.</source>
        <translation>¿Está conectada la tableta? ¿Está en marcha su controlador? Los ajustes aparecerán aquí en cuanto ambos estén disponibles.</translation>
    </message>
    <message>
        <source>Unknown tablet, product %1</source>
        <translation>Tableta desconocida, producto %1</translation>
    </message>
</context>
</TS>
