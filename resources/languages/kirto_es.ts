<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>CoreText</name>
    <message>
        <source>the frame</source>
        <translation>el fotograma</translation>
    </message>
    <message>
        <source>both frames</source>
        <translation>ambos fotogramas</translation>
    </message>
    <message>
        <source>all %1 frames</source>
        <translation>los %1 fotogramas</translation>
    </message>
    <message>
        <source>%1 of %2 frames</source>
        <translation>%1 de %2 fotogramas</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>sin fin</translation>
    </message>
    <message>
        <source>once</source>
        <translation>una vez</translation>
    </message>
    <message>
        <source>%1 times</source>
        <translation>%1 veces</translation>
    </message>
    <message>
        <source>less than 1 %</source>
        <translation>menos del 1 %</translation>
    </message>
    <message>
        <source>more than 99 %</source>
        <translation>más del 99 %</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>el %1 %</translation>
    </message>
    <message>
        <source>1 pixel</source>
        <translation>1 píxel</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 píxeles</translation>
    </message>
    <message>
        <source>, by %1 of 255 on average</source>
        <translation>, en %1 de 255 de media</translation>
    </message>
    <message>
        <source>browsers will play 1 frame slower: its pause is below 0.02 seconds</source>
        <translation>los navegadores reproducirán 1 fotograma más despacio: su pausa es menor de 0,02 segundos</translation>
    </message>
    <message>
        <source>browsers will play %1 frames slower: their pauses are below 0.02 seconds</source>
        <translation>los navegadores reproducirán %1 fotogramas más despacio: sus pausas son menores de 0,02 segundos</translation>
    </message>
    <message>
        <source>the animation will have %1 x %2 pixels</source>
        <translation>la animación tendrá %1 x %2 píxeles</translation>
    </message>
    <message>
        <source>no frame will be shown</source>
        <translation>no se mostrará ningún fotograma</translation>
    </message>
    <message>
        <source>%1 frame(s) will be shown instead of %2</source>
        <translation>se mostrarán %1 fotograma(s) en lugar de %2</translation>
    </message>
    <message>
        <source>%1 will show trails, of up to %2</source>
        <translation>%1 dejarán rastros, de hasta %2</translation>
    </message>
    <message>
        <source>%1 will show trails</source>
        <translation>%1 dejarán rastros</translation>
    </message>
    <message>
        <source>%1 will show pixels of others, too few to be seen: up to %2</source>
        <translation>%1 mostrarán píxeles de otros, demasiado pocos para verse: hasta %2</translation>
    </message>
    <message>
        <source>%1 will show pixels of others, too few to be seen</source>
        <translation>%1 mostrarán píxeles de otros, demasiado pocos para verse</translation>
    </message>
    <message>
        <source>%1 will not be transparent: no color stands for that</source>
        <translation>%1 no serán transparentes: ningún color lo indica</translation>
    </message>
    <message>
        <source>%1 will lack pixels</source>
        <translation>faltarán píxeles en %1</translation>
    </message>
    <message>
        <source>%1 of the pixels lost their color%2: %3 colors</source>
        <translation>%1 de los píxeles perdió su color%2: %3 colores</translation>
    </message>
    <message>
        <source>%1 will be shown for another time</source>
        <translation>%1 se mostrarán durante otro tiempo</translation>
    </message>
    <message>
        <source>the animation will play %1 instead of %2</source>
        <translation>la animación se reproducirá %1 en lugar de %2</translation>
    </message>
    <message>
        <source>Move Frames</source>
        <translation>Mover fotogramas</translation>
    </message>
    <message>
        <source>Copy Frames</source>
        <translation>Copiar fotogramas</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Forward and Back</source>
        <translation>Ida y vuelta</translation>
    </message>
    <message>
        <source>Remove Duplicates</source>
        <translation>Quitar duplicados</translation>
    </message>
    <message>
        <source>Drop Every Nth</source>
        <translation>Quitar uno de cada n</translation>
    </message>
    <message>
        <source>Shift Start</source>
        <translation>Desplazar el inicio</translation>
    </message>
    <message>
        <source>Set Pause</source>
        <translation>Fijar la pausa</translation>
    </message>
    <message>
        <source>Change Palette</source>
        <translation>Cambiar la paleta</translation>
    </message>
    <message>
        <source>Change Frame Palette</source>
        <translation>Cambiar la paleta del fotograma</translation>
    </message>
    <message>
        <source>The video can&apos;t be written because the program ffmpeg was not found. Install the package &quot;ffmpeg&quot;.</source>
        <translation>No se puede escribir el vídeo porque no se encontró el programa ffmpeg. Instale el paquete «ffmpeg».</translation>
    </message>
    <message>
        <source>There is no frame to export.</source>
        <translation>No hay ningún fotograma que exportar.</translation>
    </message>
    <message>
        <source>The animation is too large for a %1 file.</source>
        <translation>La animación es demasiado grande para un archivo %1.</translation>
    </message>
    <message>
        <source>There is nothing here that writes %1 files.</source>
        <translation>Aquí no hay nada que escriba archivos %1.</translation>
    </message>
    <message>
        <source>Out of memory.</source>
        <translation>Memoria insuficiente.</translation>
    </message>
    <message>
        <source>The program that writes videos has failed.</source>
        <translation>El programa que escribe vídeos ha fallado.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be made so small.</source>
        <translation>La animación no puede hacerse tan pequeña.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Detenido.</translation>
    </message>
    <message>
        <source>What is on the clipboard can&apos;t be pasted because it was damaged or is unsupported.</source>
        <translation>No se puede pegar el contenido del portapapeles porque está dañado o no es compatible.</translation>
    </message>
    <message>
        <source>This file can&apos;t be inserted because it does not describe a sheet: %1</source>
        <translation>No se puede insertar este archivo porque no describe una hoja: %1</translation>
    </message>
    <message>
        <source>This file can&apos;t be inserted because a frame is not on the sheet: %1</source>
        <translation>No se puede insertar este archivo porque un fotograma no está en la hoja: %1</translation>
    </message>
    <message>
        <source>Insert Animation</source>
        <translation>Insertar animación</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insertar</translation>
    </message>
    <message>
        <source>Insert Tiled</source>
        <translation>Insertar mosaico</translation>
    </message>
    <message>
        <source>Remove Frame</source>
        <translation>Quitar fotograma</translation>
    </message>
    <message>
        <source>Move Frame Up</source>
        <translation>Subir fotograma</translation>
    </message>
    <message>
        <source>Move Frame Down</source>
        <translation>Bajar fotograma</translation>
    </message>
    <message>
        <source>Reverse All</source>
        <translation>Invertir todo</translation>
    </message>
    <message>
        <source>Fit Frames</source>
        <translation>Ajustar fotogramas</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Fundido</translation>
    </message>
    <message>
        <source>Unable to open or create a settings file. Default values will be used instead, but may not be saved.</source>
        <translation>No se puede abrir ni crear un archivo de ajustes. Se usarán los valores predeterminados, pero quizá no se guarden.</translation>
    </message>
    <message>
        <source>The settings file was damaged. It has been put aside as &quot;%1&quot;, and default values will be used instead.</source>
        <translation>El archivo de ajustes estaba dañado. Se ha apartado como «%1» y se usarán los valores predeterminados.</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>Estado: %1</translation>
    </message>
    <message>
        <source>canceled, %1 new frame(s) kept</source>
        <translation>cancelado, se conservan %1 fotograma(s) nuevo(s)</translation>
    </message>
    <message>
        <source>Do you wish to insert this image into the current animation or open it as a new animation?</source>
        <translation>¿Desea insertar esta imagen en la animación actual o abrirla como animación nueva?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>The animation can&apos;t be opened because this file type is unsupported.</source>
        <translation>No se puede abrir la animación porque este tipo de archivo no es compatible.</translation>
    </message>
    <message>
        <source>Do you want to save your changes?</source>
        <translation>¿Desea guardar los cambios?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>The palette can&apos;t be loaded because the file was corrupted or unreadable.</source>
        <translation>No se puede cargar la paleta porque el archivo está dañado o no se puede leer.</translation>
    </message>
    <message>
        <source>Another program has changed the file &quot;%1&quot; since it was opened or saved. Do you want to overwrite it?</source>
        <translation>Otro programa ha cambiado el archivo «%1» desde que se abrió o guardó. ¿Desea sobrescribirlo?</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sobrescribir</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Guardar como...</translation>
    </message>
    <message>
        <source>saving was canceled, the file is as it was before</source>
        <translation>se canceló el guardado, el archivo queda como estaba</translation>
    </message>
    <message>
        <source>The animation can&apos;t be saved because one of the frames has a larger size than the animation.</source>
        <translation>No se puede guardar la animación porque uno de los fotogramas es mayor que la animación.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be saved because %1 is not between 0 and 65535.</source>
        <translation>No se puede guardar la animación porque esto no está entre 0 y 65535: %1.</translation>
    </message>
    <message>
        <source>saved, but %1</source>
        <translation>guardado, pero %1</translation>
    </message>
    <message>
        <source>saving was canceled, %1 of %2 file(s) written</source>
        <translation>se canceló el guardado, %1 de %2 archivo(s) escritos</translation>
    </message>
    <message>
        <source>The animation can&apos;t be previewed because one of the frames has a larger size than the animation.</source>
        <translation>No se puede previsualizar la animación porque uno de los fotogramas es mayor que la animación.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be previewed because %1 is not between 0 and 65535.</source>
        <translation>No se puede previsualizar la animación porque esto no está entre 0 y 65535: %1.</translation>
    </message>
    <message>
        <source>the preview was canceled</source>
        <translation>se canceló la vista previa</translation>
    </message>
    <message>
        <source>The animation can&apos;t be previewed because a temporary file could not be created.</source>
        <translation>No se puede previsualizar la animación porque no se pudo crear un archivo temporal.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be recovered because its copy was damaged. The copy has been put aside.</source>
        <translation>No se puede recuperar la animación porque su copia está dañada. La copia se ha apartado.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be recovered because it needs more memory than there is.</source>
        <translation>No se puede recuperar la animación porque necesita más memoria de la que hay.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be recovered because its copy can&apos;t be read.</source>
        <translation>No se puede recuperar la animación porque no se puede leer su copia.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be recovered because the open one has unsaved changes. It will be offered again when the editor is started next.</source>
        <translation>No se puede recuperar la animación porque la que está abierta tiene cambios sin guardar. Se volverá a ofrecer cuando se inicie el editor.</translation>
    </message>
    <message>
        <source>saving was canceled</source>
        <translation>se canceló el guardado</translation>
    </message>
    <message>
        <source>Opened as browsers do. Animations are read and saved that way from now on.</source>
        <translation>Abierta como en los navegadores. A partir de ahora las animaciones se leen y guardan así.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>%1 frame(s) are larger than the animation.</source>
        <translation>%1 fotograma(s) son mayores que la animación.</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Escalar</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Save Faithfully</source>
        <translation>Guardar fielmente</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>In browsers %1.</source>
        <translation>En los navegadores, %1.</translation>
    </message>
    <message>
        <source>Open as Browsers Do</source>
        <translation>Abrir como los navegadores</translation>
    </message>
    <message>
        <source>Salvage</source>
        <translation>Rescatar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>an image has codes for fewer colors than its palette has</source>
        <translation>una imagen tiene códigos para menos colores que su paleta</translation>
    </message>
    <message>
        <source>an image is larger than the screen</source>
        <translation>una imagen es mayor que la pantalla</translation>
    </message>
    <message>
        <source>the file ends without its trailer</source>
        <translation>el archivo termina sin su marca final</translation>
    </message>
    <message>
        <source>it has a record of an unknown type</source>
        <translation>tiene un registro de tipo desconocido</translation>
    </message>
    <message>
        <source>The video can&apos;t be opened because the chosen part is not in it.</source>
        <translation>No se puede abrir el vídeo porque la parte elegida no está en él.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be opened because it was corrupted or unreadable.</source>
        <translation>No se puede abrir la animación porque está dañada o no se puede leer.</translation>
    </message>
    <message>
        <source>The video can&apos;t be opened because the program ffmpeg was not found. Install the package &quot;ffmpeg&quot;.</source>
        <translation>No se puede abrir el vídeo porque no se encontró el programa ffmpeg. Instale el paquete «ffmpeg».</translation>
    </message>
    <message>
        <source>canceled, nothing changed</source>
        <translation>cancelado, nada ha cambiado</translation>
    </message>
    <message>
        <source>no frame shows anything else than another</source>
        <translation>ningún fotograma muestra algo distinto de otro</translation>
    </message>
    <message>
        <source>all frames are transparent everywhere</source>
        <translation>todos los fotogramas son transparentes en todas partes</translation>
    </message>
    <message>
        <source>Status: adjusting frame %1 of %2...</source>
        <translation>Estado: ajustando el fotograma %1 de %2...</translation>
    </message>
    <message>
        <source>Status: fading frame %1 of %2...</source>
        <translation>Estado: cambiando la opacidad del fotograma %1 de %2...</translation>
    </message>
    <message>
        <source>Status: changing frame %1 of %2...</source>
        <translation>Estado: cambiando el fotograma %1 de %2...</translation>
    </message>
    <message>
        <source>This file can&apos;t be drawn because this file type is unsupported: %1</source>
        <translation>No se puede dibujar este archivo porque este tipo de archivo no es compatible: %1</translation>
    </message>
    <message>
        <source>Resize Animation</source>
        <translation>Cambiar tamaño de la animación</translation>
    </message>
    <message>
        <source>Canvas Size</source>
        <translation>Tamaño del lienzo</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Voltear</translation>
    </message>
    <message>
        <source>Adjust Colors</source>
        <translation>Ajustar colores</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>Overlay Image</source>
        <translation>Superponer imagen</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Make Transparent</source>
        <translation>Hacer transparente</translation>
    </message>
    <message>
        <source>The editor ended unexpectedly. &quot;%1&quot; (%2 frame(s), %3) can be recovered.</source>
        <translation>El editor terminó de forma inesperada. Se puede recuperar «%1» (%2 fotograma(s), %3).</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Recuperar</translation>
    </message>
    <message>
        <source>%1% of the pixels got another color, by %2 of 255 on average</source>
        <translation>El %1% de los píxeles recibió otro color, en %2 de 255 de media</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ancho</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>XOffset of %1</source>
        <translation>Desplazamiento X de %1</translation>
    </message>
    <message>
        <source>YOffset of %1</source>
        <translation>Desplazamiento Y de %1</translation>
    </message>
    <message>
        <source>loop count %1 was saved as %2</source>
        <translation>el número de bucles %1 se guardó como %2</translation>
    </message>
    <message>
        <source>%1 pause(s) above 655.35 seconds were saved shorter</source>
        <translation>%1 pausa(s) de más de 655,35 segundos se guardaron más cortas</translation>
    </message>
    <message>
        <source>The animation can&apos;t be saved because the file could not be created at this location.</source>
        <translation>No se puede guardar la animación porque no se pudo crear el archivo en este lugar.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be saved because the selected translator is not valid.</source>
        <translation>No se puede guardar la animación porque el traductor elegido no es válido.</translation>
    </message>
    <message>
        <source>1 frame</source>
        <translation>1 fotograma</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>%1 fotogramas</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 píxeles</translation>
    </message>
    <message>
        <source>%1: a frame of the text is not on the picture.</source>
        <translation>%1: un fotograma del texto no está en la imagen.</translation>
    </message>
    <message>
        <source>%1: %2 as the text says.</source>
        <translation>%1: %2, como dice el texto.</translation>
    </message>
    <message>
        <source>, %1 without the empty ones</source>
        <translation>, %1 sin los vacíos</translation>
    </message>
    <message>
        <source>This image is too large to be shown here.</source>
        <translation>Esta imagen es demasiado grande para mostrarla aquí.</translation>
    </message>
    <message>
        <source>%1: rows or columns are missing.</source>
        <translation>%1: faltan filas o columnas.</translation>
    </message>
    <message>
        <source>%1: no tile has room.</source>
        <translation>%1: no cabe ninguna tesela.</translation>
    </message>
    <message>
        <source>%1: %2 and %3 of %4 × %5 pixels</source>
        <translation>%1: %2 y %3 de %4 × %5 píxeles</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 fila</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 filas</translation>
    </message>
    <message>
        <source>1 column</source>
        <translation>1 columna</translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation>%1 columnas</translation>
    </message>
    <message>
        <source>There is no frame to save.</source>
        <translation>No hay ningún fotograma que guardar.</translation>
    </message>
    <message>
        <source>The sheet can&apos;t be saved because it would be too large.</source>
        <translation>No se puede guardar la hoja porque sería demasiado grande.</translation>
    </message>
    <message>
        <source>Frames of %1</source>
        <translation>Fotogramas de %1</translation>
    </message>
    <message>
        <source>%1 frame of %2, at most %3 MB</source>
        <translation>%1 fotograma de %2, como mucho %3 MB</translation>
    </message>
    <message>
        <source>%1 frames of %2, at most %3 MB</source>
        <translation>%1 fotogramas de %2, como mucho %3 MB</translation>
    </message>
    <message>
        <source>Change Width</source>
        <translation>Cambiar el ancho</translation>
    </message>
    <message>
        <source>Change Height</source>
        <translation>Cambiar el alto</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Change Pause</source>
        <translation>Cambiar la pausa</translation>
    </message>
    <message>
        <source>Pause length</source>
        <translation>Duración de la pausa</translation>
    </message>
    <message>
        <source>Change Pause Length</source>
        <translation>Cambiar la duración de la pausa</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Bucle</translation>
    </message>
    <message>
        <source>Change Loop</source>
        <translation>Cambiar el bucle</translation>
    </message>
    <message>
        <source>Loop count</source>
        <translation>Número de bucles</translation>
    </message>
    <message>
        <source>Change Loop Count</source>
        <translation>Cambiar el número de bucles</translation>
    </message>
    <message>
        <source>Background index</source>
        <translation>Índice del fondo</translation>
    </message>
    <message>
        <source>Change Background Index</source>
        <translation>Cambiar el índice del fondo</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparente</translation>
    </message>
    <message>
        <source>Change Transparency</source>
        <translation>Cambiar la transparencia</translation>
    </message>
    <message>
        <source>Transparent index</source>
        <translation>Índice transparente</translation>
    </message>
    <message>
        <source>Change Transparent Index</source>
        <translation>Cambiar el índice transparente</translation>
    </message>
    <message>
        <source>Dither</source>
        <translation>Tramado</translation>
    </message>
    <message>
        <source>Change Dither</source>
        <translation>Cambiar el tramado</translation>
    </message>
    <message>
        <source>XOffset</source>
        <translation>Desplazamiento X</translation>
    </message>
    <message>
        <source>Change X Offset</source>
        <translation>Cambiar el desplazamiento X</translation>
    </message>
    <message>
        <source>YOffset</source>
        <translation>Desplazamiento Y</translation>
    </message>
    <message>
        <source>Change Y Offset</source>
        <translation>Cambiar el desplazamiento Y</translation>
    </message>
    <message>
        <source>Change Frame Pause</source>
        <translation>Cambiar la pausa del fotograma</translation>
    </message>
    <message>
        <source>Change Frame Pause Length</source>
        <translation>Cambiar la duración de la pausa del fotograma</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>Change Local Palette</source>
        <translation>Cambiar la paleta propia</translation>
    </message>
    <message>
        <source>Status: loading tile %1 of %2...</source>
        <translation>Estado: cargando la tesela %1 de %2...</translation>
    </message>
    <message>
        <source>This file can&apos;t be inserted because this file type is unsupported: %1</source>
        <translation>No se puede insertar este archivo porque este tipo de archivo no es compatible: %1</translation>
    </message>
    <message>
        <source>This file can&apos;t be inserted because the color space is unsupported.</source>
        <translation>No se puede insertar este archivo porque el espacio de color no es compatible.</translation>
    </message>
    <message>
        <source>Status: generating frame %1 of %2...</source>
        <translation>Estado: generando el fotograma %1 de %2...</translation>
    </message>
    <message>
        <source>These files can&apos;t be inserted because their types are unsupported:</source>
        <translation>No se pueden insertar estos archivos porque sus tipos no son compatibles:</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>Status: loading frame %1 of %2...</source>
        <translation>Estado: cargando el fotograma %1 de %2...</translation>
    </message>
    <message>
        <source>This frame can&apos;t be inserted because the number of rows or columns is illegal.</source>
        <translation>No se puede insertar este fotograma porque el número de filas o columnas no es válido.</translation>
    </message>
    <message>
        <source>Status: cropping frame %1 of %2...</source>
        <translation>Estado: recortando el fotograma %1 de %2...</translation>
    </message>
    <message>
        <source>Status: fitting frame %1 of %2...</source>
        <translation>Estado: encajando el fotograma %1 de %2...</translation>
    </message>
    <message>
        <source>Status: drawing on frame %1 of %2...</source>
        <translation>Estado: dibujando en el fotograma %1 de %2...</translation>
    </message>
    <message>
        <source>Status: resizing frame %1 of %2...</source>
        <translation>Estado: cambiando el tamaño del fotograma %1 de %2...</translation>
    </message>
    <message>
        <source>Status: turning frame %1 of %2...</source>
        <translation>Estado: girando el fotograma %1 de %2...</translation>
    </message>
    <message>
        <source>Status: writing frame %1 of %2...</source>
        <translation>Estado: escribiendo el fotograma %1 de %2...</translation>
    </message>
    <message>
        <source>Status: loading frame %1...</source>
        <translation>Estado: cargando el fotograma %1...</translation>
    </message>
    <message>
        <source>%1 can&apos;t be less than %2.</source>
        <translation>%1: no puede ser menor que %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be greater than %2.</source>
        <translation>%1: no puede ser mayor que %2.</translation>
    </message>
    <message>
        <source>Frame count must be between 1 and 100.</source>
        <translation>El número de fotogramas debe estar entre 1 y 100.</translation>
    </message>
    <message>
        <source>This value</source>
        <translation>Este valor</translation>
    </message>
    <message>
        <source>You must enter a valid, absolute path and file name.</source>
        <translation>Debe escribir una ruta absoluta válida con nombre de archivo.</translation>
    </message>
    <message>
        <source>You must enter a valid absolute path.</source>
        <translation>Debe escribir una ruta absoluta válida.</translation>
    </message>
    <message>
        <source>You must enter a color as #rrggbb.</source>
        <translation>Debe escribir un color como #rrggbb.</translation>
    </message>
    <message>
        <source>You must enter colors as #rrggbb, with blanks between them.</source>
        <translation>Debe escribir colores como #rrggbb, separados por espacios.</translation>
    </message>
    <message>
        <source>The preset can&apos;t be kept under this name.</source>
        <translation>No se puede conservar el ajuste con este nombre.</translation>
    </message>
    <message>
        <source>Insert Tiled Frame</source>
        <translation>Insertar mosaico como fotogramas</translation>
    </message>
    <message>
        <source>Insert Frames</source>
        <translation>Insertar fotogramas</translation>
    </message>
    <message>
        <source>Open Animation</source>
        <translation>Abrir animación</translation>
    </message>
    <message>
        <source>A file named &quot;%1&quot; already exists. Do you want to replace it?</source>
        <translation>Ya existe un archivo llamado «%1». ¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>A file named &quot;%1&quot; already exists. Do you want to replace the files of this sequence?</source>
        <translation>Ya existe un archivo llamado «%1». ¿Desea reemplazar los archivos de esta secuencia?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Save Animation</source>
        <translation>Guardar animación</translation>
    </message>
    <message>
        <source>Animated GIF</source>
        <translation>GIF animado</translation>
    </message>
    <message>
        <source>%1 sequence</source>
        <translation>Secuencia de %1</translation>
    </message>
    <message>
        <source>Kirto v1.4
An editor for frame animations, by Morvik
https://kirto.example.org

Please send in bug reports and feature requests.

Thanks to all who shared their code for GIF files, and for a long conversation about dithering.</source>
        <translation>Kirto v1.4
Un editor de animaciones, por Morvik
https://kirto.example.org

Envíe informes de errores y peticiones.

Gracias a todos los que compartieron su código para archivos GIF, y por una larga conversación sobre el tramado.</translation>
    </message>
    <message>
        <source>Open Paletted File</source>
        <translation>Abrir archivo con paleta</translation>
    </message>
    <message>
        <source>The preview was written, but no program to show it was found.</source>
        <translation>La vista previa se escribió, pero no se encontró ningún programa que la muestre.</translation>
    </message>
    <message>
        <source>Do you want all actions to have the keys again that they had at first?</source>
        <translation>¿Desea que todas las acciones vuelvan a tener las teclas que tenían al principio?</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>The file could not be saved because the Targa translator is either missing or failed.</source>
        <translation>No se pudo guardar el archivo porque el traductor Targa falta o ha fallado.</translation>
    </message>
    <message>
        <source> %1 of %2 files were written.</source>
        <translation> Se escribieron %1 de %2 archivos.</translation>
    </message>
    <message>
        <source>The sheet would be too large.</source>
        <translation>La hoja sería demasiado grande.</translation>
    </message>
    <message>
        <source>There is nothing here that writes this image format.</source>
        <translation>Aquí no hay nada que escriba este formato de imagen.</translation>
    </message>
    <message>
        <source>The image can&apos;t be written in this format.</source>
        <translation>No se puede escribir la imagen en este formato.</translation>
    </message>
</context>
<context>
    <name>UiText</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>Miniatura</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animación</translation>
    </message>
    <message>
        <source>Miscellaneous</source>
        <translation>Varios</translation>
    </message>
    <message>
        <source>Compatibility</source>
        <translation>Compatibilidad</translation>
    </message>
    <message>
        <source>Control Defaults</source>
        <translation>Valores de los controles</translation>
    </message>
    <message>
        <source>Width in pixels:</source>
        <translation>Ancho en píxeles:</translation>
    </message>
    <message>
        <source>Height in pixels:</source>
        <translation>Alto en píxeles:</translation>
    </message>
    <message>
        <source>Pause this long between frames:</source>
        <translation>Pausa entre fotogramas:</translation>
    </message>
    <message>
        <source>Loop this many times (0 is infinitely):</source>
        <translation>Número de bucles (0 es sin fin):</translation>
    </message>
    <message>
        <source>Other Settings</source>
        <translation>Otros ajustes</translation>
    </message>
    <message>
        <source>Set size of animation from first frame inserted</source>
        <translation>Tomar el tamaño del primer fotograma insertado</translation>
    </message>
    <message>
        <source>Pause length should be measured in:</source>
        <translation>La duración de las pausas se mide en:</translation>
    </message>
    <message>
        <source>Hundredths of a second (GIF standard)</source>
        <translation>Centésimas de segundo (estándar GIF)</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Segundos</translation>
    </message>
    <message>
        <source>Mapping Defaults</source>
        <translation>Valores de los colores</translation>
    </message>
    <message>
        <source>The global palette should use:</source>
        <translation>La paleta de la animación será:</translation>
    </message>
    <message>
        <source>The web safe palette (standard 216 colors)</source>
        <translation>La paleta web (216 colores estándar)</translation>
    </message>
    <message>
        <source>The BeOS system palette (256 colors)</source>
        <translation>La paleta de sistema de BeOS (256 colores)</translation>
    </message>
    <message>
        <source>A greyscale palette (256 levels of grey)</source>
        <translation>Una paleta de grises (256 niveles)</translation>
    </message>
    <message>
        <source>A palette from:</source>
        <translation>Una paleta de:</translation>
    </message>
    <message>
        <source>Other Defaults</source>
        <translation>Otros valores</translation>
    </message>
    <message>
        <source>Use dithering</source>
        <translation>Usar tramado</translation>
    </message>
    <message>
        <source>Background index:</source>
        <translation>Índice del fondo:</translation>
    </message>
    <message>
        <source>Transparent index from global palette:</source>
        <translation>Índice transparente de la paleta:</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>When a frame is inserted, the thumbnail height:</source>
        <translation>Al insertar un fotograma, la altura de las miniaturas:</translation>
    </message>
    <message>
        <source>Should be set to the full size of the first frame</source>
        <translation>Será la altura entera del primer fotograma</translation>
    </message>
    <message>
        <source>Should be set to half the size of the first frame</source>
        <translation>Será la mitad de la altura del primer fotograma</translation>
    </message>
    <message>
        <source>Should be set to this value:</source>
        <translation>Será este valor:</translation>
    </message>
    <message>
        <source>Should not change</source>
        <translation>No cambiará</translation>
    </message>
    <message>
        <source>Maximum thumbnail height:</source>
        <translation>Altura máxima de las miniaturas:</translation>
    </message>
    <message>
        <source>Minimum thumbnail height:</source>
        <translation>Altura mínima de las miniaturas:</translation>
    </message>
    <message>
        <source>Draw frames with transparency</source>
        <translation>Dibujar los fotogramas con transparencia</translation>
    </message>
    <message>
        <source>Advanced GIF Settings</source>
        <translation>Ajustes avanzados de GIF</translation>
    </message>
    <message>
        <source>After each frame, the GIF decoder should:</source>
        <translation>Después de cada fotograma, el decodificador GIF debería:</translation>
    </message>
    <message>
        <source>Take no action (default)</source>
        <translation>No hacer nada (predeterminado)</translation>
    </message>
    <message>
        <source>Leave the current frame</source>
        <translation>Dejar el fotograma</translation>
    </message>
    <message>
        <source>Restore the background color</source>
        <translation>Restaurar el color de fondo</translation>
    </message>
    <message>
        <source>Restore the previous frame (rarely supported)</source>
        <translation>Restaurar el fotograma anterior (rara vez compatible)</translation>
    </message>
    <message>
        <source>Write interlaced frames</source>
        <translation>Escribir fotogramas entrelazados</translation>
    </message>
    <message>
        <source>Write &quot;Made with Kirto on BeOS&quot; comment</source>
        <translation>Escribir el comentario «Made with Kirto on BeOS»</translation>
    </message>
    <message>
        <source>If the animation uses delta compression, assemble each frame</source>
        <translation>Componer cada fotograma si la animación solo guarda diferencias</translation>
    </message>
    <message>
        <source>On startup, use:</source>
        <translation>Al iniciar, mostrar:</translation>
    </message>
    <message>
        <source>Thumbnail mode</source>
        <translation>Miniaturas</translation>
    </message>
    <message>
        <source>Frame list mode</source>
        <translation>Lista de fotogramas</translation>
    </message>
    <message>
        <source>Save and restore main window size and position</source>
        <translation>Recordar el tamaño y el lugar de la ventana</translation>
    </message>
    <message>
        <source>Write temporary files to:</source>
        <translation>Escribir archivos temporales en:</translation>
    </message>
    <message>
        <source>Browsers</source>
        <translation>Navegadores</translation>
    </message>
    <message>
        <source>Read and save as browsers show it</source>
        <translation>Leer y guardar como los navegadores</translation>
    </message>
    <message>
        <source>Frames of more than 256 colors are saved then</source>
        <translation>Los fotogramas de más de 256 colores se guardan entonces</translation>
    </message>
    <message>
        <source>Without dithering</source>
        <translation>Sin tramado</translation>
    </message>
    <message>
        <source>Dithered as best suits each frame (Floyd-Steinberg)</source>
        <translation>Tramados como mejor le va a cada fotograma (Floyd-Steinberg)</translation>
    </message>
    <message>
        <source>Dithered so that what stands still does not flicker</source>
        <translation>Tramados sin que parpadee lo que está quieto</translation>
    </message>
    <message>
        <source>In the same colors for all frames</source>
        <translation>Con los mismos colores en todos los fotogramas</translation>
    </message>
    <message>
        <source>Keep these colors:</source>
        <translation>Conservar estos colores:</translation>
    </message>
    <message>
        <source>Lay soft edges on:</source>
        <translation>Poner los bordes suaves sobre:</translation>
    </message>
    <message>
        <source>Transparent below alpha:</source>
        <translation>Transparente por debajo del alfa:</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Pick from &amp;Screen</source>
        <translation>Tomar de la pan&amp;talla</translation>
    </message>
    <message>
        <source>Takes the color that is clicked next, anywhere on the screen</source>
        <translation>Toma el color del próximo clic, en cualquier lugar de la pantalla</translation>
    </message>
    <message>
        <source>This desktop lets no program see the screen</source>
        <translation>Este escritorio no deja que ningún programa vea la pantalla</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Color %1, %2, %3 pixels</source>
        <translation>Color %1, %2, %3 píxeles</translation>
    </message>
    <message>
        <source>, background</source>
        <translation>, fondo</translation>
    </message>
    <message>
        <source>, transparent</source>
        <translation>, transparente</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Colors of:</source>
        <translation>Colores:</translation>
    </message>
    <message>
        <source>current frame</source>
        <translation>del fotograma actual</translation>
    </message>
    <message>
        <source>all frames</source>
        <translation>de todos los fotogramas</translation>
    </message>
    <message>
        <source>All frames are those without a palette of their own</source>
        <translation>Todos los fotogramas son los que no tienen paleta propia</translation>
    </message>
    <message>
        <source>Sorted by:</source>
        <translation>Ordenados por:</translation>
    </message>
    <message>
        <source>index</source>
        <translation>índice</translation>
    </message>
    <message>
        <source>hue</source>
        <translation>tono</translation>
    </message>
    <message>
        <source>use</source>
        <translation>uso</translation>
    </message>
    <message>
        <source>Use is the number of pixels that have the color</source>
        <translation>El uso es el número de píxeles que tienen el color</translation>
    </message>
    <message>
        <source>A click:</source>
        <translation>Un clic:</translation>
    </message>
    <message>
        <source>only tells</source>
        <translation>solo informa</translation>
    </message>
    <message>
        <source>makes it the background</source>
        <translation>lo hace fondo</translation>
    </message>
    <message>
        <source>makes it transparent</source>
        <translation>lo hace transparente</translation>
    </message>
    <message>
        <source>What a click or the Enter key does with a color</source>
        <translation>Qué hace un clic o la tecla Intro con un color</translation>
    </message>
    <message>
        <source>Fade Effects</source>
        <translation>Efectos de fundido</translation>
    </message>
    <message>
        <source>to an rgb color</source>
        <translation>a un color RGB</translation>
    </message>
    <message>
        <source>from an rgb color</source>
        <translation>desde un color RGB</translation>
    </message>
    <message>
        <source>to next frame</source>
        <translation>al fotograma siguiente</translation>
    </message>
    <message>
        <source>from previous frame</source>
        <translation>desde el fotograma anterior</translation>
    </message>
    <message>
        <source>What to blend the current frame with</source>
        <translation>Con qué se mezcla el fotograma actual</translation>
    </message>
    <message>
        <source>The number of new frames, from 1 to 100</source>
        <translation>El número de fotogramas nuevos, de 1 a 100</translation>
    </message>
    <message>
        <source>The color to fade to or from</source>
        <translation>El color final o inicial del fundido</translation>
    </message>
    <message>
        <source>Blends the current frame alone, whatever else is selected.</source>
        <translation>Mezcla solo el fotograma actual, sea cual sea la selección.</translation>
    </message>
    <message>
        <source>Fade mode:</source>
        <translation>Tipo de fundido:</translation>
    </message>
    <message>
        <source>Frame count:</source>
        <translation>Número de fotogramas:</translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation>Vista previa:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>C&amp;hoose...</source>
        <translation>&amp;Elegir...</translation>
    </message>
    <message>
        <source>Works on the %1 selected frames.</source>
        <translation>Actúa en los %1 fotogramas seleccionados.</translation>
    </message>
    <message>
        <source>Works on all %1 frames, since only one is selected.</source>
        <translation>Actúa en los %1 fotogramas, pues solo uno está seleccionado.</translation>
    </message>
    <message>
        <source>&amp;Frames:</source>
        <translation>&amp;Fotogramas:</translation>
    </message>
    <message>
        <source>Select Every Nth</source>
        <translation>Seleccionar uno de cada n</translation>
    </message>
    <message>
        <source>Selects among all frames. The first frame is frame 0.</source>
        <translation>Selecciona entre todos los fotogramas. El primero es el 0.</translation>
    </message>
    <message>
        <source>&amp;Beginning with frame:</source>
        <translation>&amp;A partir del fotograma:</translation>
    </message>
    <message>
        <source>&amp;Every:</source>
        <translation>&amp;Uno de cada:</translation>
    </message>
    <message>
        <source>Select Range</source>
        <translation>Seleccionar intervalo</translation>
    </message>
    <message>
        <source>Frames are numbered from 0 to %1, or from the end: the last is -1. Examples: 3-7, 0-20/2 for every second one, 0,4,7, all.</source>
        <translation>Los fotogramas se numeran de 0 a %1, o desde el final: el último es -1. Ejemplos: 3-7, 0-20/2 para uno de cada dos, 0,4,7, all.</translation>
    </message>
    <message>
        <source>Go to Frame</source>
        <translation>Ir al fotograma</translation>
    </message>
    <message>
        <source>Makes a frame the current one. They are numbered from 0 to %1.</source>
        <translation>Hace actual un fotograma. Se numeran de 0 a %1.</translation>
    </message>
    <message>
        <source>&amp;Frame:</source>
        <translation>&amp;Fotograma:</translation>
    </message>
    <message>
        <source>Drop Every Nth</source>
        <translation>Quitar uno de cada n</translation>
    </message>
    <message>
        <source> The frame before each one that goes is shown for as long as both were.</source>
        <translation> El fotograma anterior a cada uno que se quita dura tanto como ambos.</translation>
    </message>
    <message>
        <source>&amp;Drop every:</source>
        <translation>&amp;Quitar uno de cada:</translation>
    </message>
    <message>
        <source>Remove Duplicates</source>
        <translation>Quitar duplicados</translation>
    </message>
    <message>
        <source> A frame that shows what the one before shows is removed, and its pause added to that one.</source>
        <translation> Se quita un fotograma que muestra lo mismo que el anterior, y su pausa se suma a la de aquel.</translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation>&amp;Tolerancia:</translation>
    </message>
    <message>
        <source>By how much red, green and blue of a pixel may differ; 0: not at all</source>
        <translation>Cuánto pueden diferir el rojo, el verde y el azul de un píxel; 0: nada</translation>
    </message>
    <message>
        <source>Move To</source>
        <translation>Mover a</translation>
    </message>
    <message>
        <source>Frames are numbered from 0 to %1; %2 is behind the last. Both at once: 3-7&gt;12.</source>
        <translation>Los fotogramas se numeran de 0 a %1; %2 está tras el último. Ambos a la vez: 3-7&gt;12.</translation>
    </message>
    <message>
        <source>&amp;Before frame:</source>
        <translation>&amp;Antes del fotograma:</translation>
    </message>
    <message>
        <source>Set Pause</source>
        <translation>Fijar la pausa</translation>
    </message>
    <message>
        <source>In milliseconds (40ms), frames per second (15fps), percent of what it is (150%), or without a unit in %1. Browsers play pauses below 20ms slower.</source>
        <translation>En milisegundos (40ms), fotogramas por segundo (15fps), porcentaje de lo que es (150%), o sin unidad en %1. Los navegadores reproducen más despacio las pausas de menos de 20ms.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>segundos</translation>
    </message>
    <message>
        <source>hundredths of a second</source>
        <translation>centésimas de segundo</translation>
    </message>
    <message>
        <source>&amp;Pause:</source>
        <translation>&amp;Pausa:</translation>
    </message>
    <message>
        <source>Of the %1 &amp;selected frames</source>
        <translation>De los %1 fotogramas &amp;seleccionados</translation>
    </message>
    <message>
        <source>Of the &amp;current frame</source>
        <translation>Del fotograma a&amp;ctual</translation>
    </message>
    <message>
        <source>Of &amp;all %1 frames</source>
        <translation>De &amp;todos los %1 fotogramas</translation>
    </message>
    <message>
        <source>Also frames with a pause of their &amp;own</source>
        <translation>También los fotogramas con pausa pr&amp;opia</translation>
    </message>
    <message>
        <source>any</source>
        <translation>libre</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>&amp;Izquierda:</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>&amp;Arriba:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>An&amp;cho:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>A&amp;lto:</translation>
    </message>
    <message>
        <source>&amp;Ratio:</source>
        <translation>&amp;Proporción:</translation>
    </message>
    <message>
        <source>Trim Transparent &amp;Edges</source>
        <translation>Recortar &amp;bordes transparentes</translation>
    </message>
    <message>
        <source>Trim to &amp;Changes</source>
        <translation>Recortar a los ca&amp;mbios</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Works on all frames and the canvas. Draw a rectangle on the picture, or type where it is.</source>
        <translation>Actúa en todos los fotogramas y el lienzo. Dibuje un rectángulo en la imagen o escriba dónde está.</translation>
    </message>
    <message>
        <source>the %1 selected frames</source>
        <translation>los %1 fotogramas seleccionados</translation>
    </message>
    <message>
        <source>the current frame</source>
        <translation>el fotograma actual</translation>
    </message>
    <message>
        <source>Make Transparent</source>
        <translation>Hacer transparente</translation>
    </message>
    <message>
        <source>Works on %1. Click on the color in the picture, or type it.</source>
        <translation>Actúa en %1. Haga clic en el color de la imagen o escríbalo.</translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation>&amp;Color:</translation>
    </message>
    <message>
        <source>Works on all frames and the canvas.</source>
        <translation>Actúa en todos los fotogramas y el lienzo.</translation>
    </message>
    <message>
        <source>nearest: keeps pixels as they are</source>
        <translation>más cercano: deja los píxeles como están</translation>
    </message>
    <message>
        <source>bilinear: soft</source>
        <translation>bilineal: suave</translation>
    </message>
    <message>
        <source>Lanczos: sharp</source>
        <translation>Lanczos: nítido</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>arriba a la izquierda</translation>
    </message>
    <message>
        <source>top</source>
        <translation>arriba</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>arriba a la derecha</translation>
    </message>
    <message>
        <source>left</source>
        <translation>izquierda</translation>
    </message>
    <message>
        <source>center</source>
        <translation>centro</translation>
    </message>
    <message>
        <source>right</source>
        <translation>derecha</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>abajo a la izquierda</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>abajo</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>abajo a la derecha</translation>
    </message>
    <message>
        <source>Works on the current frame, the only one that is selected.</source>
        <translation>Actúa en el fotograma actual, el único seleccionado.</translation>
    </message>
    <message>
        <source>Resize Animation</source>
        <translation>Cambiar tamaño de la animación</translation>
    </message>
    <message>
        <source>&amp;Percent:</source>
        <translation>&amp;Porcentaje:</translation>
    </message>
    <message>
        <source>&amp;Keep the ratio</source>
        <translation>&amp;Mantener la proporción</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>&amp;Filtro:</translation>
    </message>
    <message>
        <source>Canvas Size</source>
        <translation>Tamaño del lienzo</translation>
    </message>
    <message>
        <source>Works on all frames. Pictures keep their size; what a smaller canvas has no room for is cut off.</source>
        <translation>Actúa en todos los fotogramas. Las imágenes conservan su tamaño; lo que no cabe en un lienzo menor se corta.</translation>
    </message>
    <message>
        <source>&amp;Pictures stay at:</source>
        <translation>Las imágenes &amp;quedan:</translation>
    </message>
    <message>
        <source>scaled to the canvas</source>
        <translation>escaladas al lienzo</translation>
    </message>
    <message>
        <source>padded to the canvas</source>
        <translation>ampliadas al lienzo</translation>
    </message>
    <message>
        <source>cropped to the canvas</source>
        <translation>recortadas al lienzo</translation>
    </message>
    <message>
        <source>Fit Frames to Animation</source>
        <translation>Ajustar fotogramas a la animación</translation>
    </message>
    <message>
        <source>Pictures are &amp;to be:</source>
        <translation>Las imágenes &amp;serán:</translation>
    </message>
    <message>
        <source>Adjust Colors</source>
        <translation>Ajustar colores</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Brillo:</translation>
    </message>
    <message>
        <source>&amp;Contrast:</source>
        <translation>&amp;Contraste:</translation>
    </message>
    <message>
        <source>&amp;Saturation:</source>
        <translation>&amp;Saturación:</translation>
    </message>
    <message>
        <source>&amp;Greyscale</source>
        <translation>Escala de &amp;grises</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>&amp;Opacity in percent:</source>
        <translation>&amp;Opacidad en porcentaje:</translation>
    </message>
    <message>
        <source>Overlay Image</source>
        <translation>Superponer imagen</translation>
    </message>
    <message>
        <source>&amp;Image:</source>
        <translation>&amp;Imagen:</translation>
    </message>
    <message>
        <source>&amp;X offset:</source>
        <translation>Desplazamiento &amp;X:</translation>
    </message>
    <message>
        <source>&amp;Y offset:</source>
        <translation>Desplazamiento &amp;Y:</translation>
    </message>
    <message>
        <source>Writes the %1 selected frames side by side into one PNG image, and a JSON text beside it that says where each is.</source>
        <translation>Escribe los %1 fotogramas seleccionados uno junto a otro en una imagen PNG, y al lado un texto JSON que dice dónde está cada uno.</translation>
    </message>
    <message>
        <source>Writes the %1 frames side by side into one PNG image, and a JSON text beside it that says where each is.</source>
        <translation>Escribe los %1 fotogramas uno junto a otro en una imagen PNG, y al lado un texto JSON que dice dónde está cada uno.</translation>
    </message>
    <message>
        <source>Export Sheet</source>
        <translation>Exportar hoja</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>&amp;Columnas:</translation>
    </message>
    <message>
        <source>as many as rows</source>
        <translation>tantas como filas</translation>
    </message>
    <message>
        <source>&amp;Padding in pixels:</source>
        <translation>&amp;Margen en píxeles:</translation>
    </message>
    <message>
        <source>Sides are powers of &amp;two</source>
        <translation>Lados en potencias de &amp;dos</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Texto:</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>&amp;Fuente:</translation>
    </message>
    <message>
        <source>&amp;Size in pixels:</source>
        <translation>Ta&amp;maño en píxeles:</translation>
    </message>
    <message>
        <source>&amp;Outline in pixels:</source>
        <translation>C&amp;ontorno en píxeles:</translation>
    </message>
    <message>
        <source>Out&amp;line color:</source>
        <translation>Co&amp;lor del contorno:</translation>
    </message>
    <message>
        <source>Frames to fade &amp;in:</source>
        <translation>Fotogramas de &amp;entrada:</translation>
    </message>
    <message>
        <source>Frames to fade o&amp;ut:</source>
        <translation>Fotogramas de &amp;salida:</translation>
    </message>
    <message>
        <source>Draws on the %1 selected frames.</source>
        <translation>Dibuja en los %1 fotogramas seleccionados.</translation>
    </message>
    <message>
        <source>Draws on the current frame, the only one that is selected.</source>
        <translation>Dibuja en el fotograma actual, el único seleccionado.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source> Click on the picture where it is to begin.</source>
        <translation> Haga clic en la imagen donde debe empezar.</translation>
    </message>
    <message>
        <source>Insert Video</source>
        <translation>Insertar vídeo</translation>
    </message>
    <message>
        <source>Makes frames of a part of the video &quot;%1&quot;. Draw a rectangle on the picture to cut it.</source>
        <translation>Hace fotogramas de una parte del vídeo «%1». Dibuje un rectángulo en la imagen para recortarla.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Pla&amp;y</source>
        <translation>&amp;Reproducir</translation>
    </message>
    <message>
        <source>Reading the video...</source>
        <translation>Leyendo el vídeo...</translation>
    </message>
    <message>
        <source>Frames a &amp;second:</source>
        <translation>Fotogramas por &amp;segundo:</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Desde:</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Hasta:</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Width of the cut</source>
        <translation>Ancho del recorte</translation>
    </message>
    <message>
        <source>Height of the cut</source>
        <translation>Alto del recorte</translation>
    </message>
    <message>
        <source>C&amp;ut (x, y, w, h):</source>
        <translation>&amp;Recorte (x, y, an, al):</translation>
    </message>
    <message>
        <source>This part is not in the video.</source>
        <translation>Esta parte no está en el vídeo.</translation>
    </message>
    <message>
        <source> The smallest that was tried has %1.</source>
        <translation> Lo más pequeño que se probó tiene %1.</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>E&amp;xportar...</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>&amp;Preset:</source>
        <translation>&amp;Ajuste:</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Keep &amp;As...</source>
        <translation>&amp;Conservar como...</translation>
    </message>
    <message>
        <source>Keep Preset</source>
        <translation>Conservar ajuste</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Working...</source>
        <translation>Trabajando...</translation>
    </message>
    <message>
        <source>No file</source>
        <translation>Ningún archivo</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 bytes</translation>
    </message>
    <message>
        <source>With </source>
        <translation>Con </translation>
    </message>
    <message>
        <source>Export As</source>
        <translation>Exportar como</translation>
    </message>
    <message>
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
    <message>
        <source>WebP</source>
        <translation>WebP</translation>
    </message>
    <message>
        <source>Animated PNG</source>
        <translation>PNG animado</translation>
    </message>
    <message>
        <source>MP4 video</source>
        <translation>Vídeo MP4</translation>
    </message>
    <message>
        <source>WebM video</source>
        <translation>Vídeo WebM</translation>
    </message>
    <message>
        <source>F&amp;ormat:</source>
        <translation>F&amp;ormato:</translation>
    </message>
    <message>
        <source>&amp;Colors:</source>
        <translation>Co&amp;lores:</translation>
    </message>
    <message>
        <source>The same colors in all fra&amp;mes</source>
        <translation>Los mis&amp;mos colores en todos los fotogramas</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>diffusion</source>
        <translation>difusión</translation>
    </message>
    <message>
        <source>ordered</source>
        <translation>ordenado</translation>
    </message>
    <message>
        <source>&amp;Dither:</source>
        <translation>&amp;Tramado:</translation>
    </message>
    <message>
        <source>&amp;Loss:</source>
        <translation>&amp;Pérdida:</translation>
    </message>
    <message>
        <source>&amp;Keep every pixel</source>
        <translation>Conservar ca&amp;da píxel</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>Ca&amp;lidad:</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>&amp;Escala:</translation>
    </message>
    <message>
        <source>&amp;Every n-th frame:</source>
        <translation>&amp;Uno de cada n fotogramas:</translation>
    </message>
    <message>
        <source>Fit &amp;under</source>
        <translation>Que no &amp;supere</translation>
    </message>
    <message>
        <source>Fit under</source>
        <translation>Que no supere</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source>Chat 8 MB</source>
        <translation>Chat 8 MB</translation>
    </message>
    <message>
        <source>E-mail 1 MB</source>
        <translation>Correo 1 MB</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentación</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Number of rows of tiles in the image</source>
        <translation>Número de filas de teselas en la imagen</translation>
    </message>
    <message>
        <source>Number of columns of tiles in the image</source>
        <translation>Número de columnas de teselas en la imagen</translation>
    </message>
    <message>
        <source>Row by row</source>
        <translation>Fila por fila</translation>
    </message>
    <message>
        <source>Column by column</source>
        <translation>Columna por columna</translation>
    </message>
    <message>
        <source>Rows:</source>
        <translation>Filas:</translation>
    </message>
    <message>
        <source>Columns:</source>
        <translation>Columnas:</translation>
    </message>
    <message>
        <source>Size of a tile in pixels, in place of rows and columns; 0: by rows and columns. Width, height and spacing may be typed at once: 64x48+2, or 64+2 for squares</source>
        <translation>Tamaño de una tesela en píxeles, en lugar de filas y columnas; 0: por filas y columnas. Ancho, alto y espacio pueden escribirse de una vez: 64x48+2, o 64+2 para cuadrados</translation>
    </message>
    <message>
        <source>Tile &amp;width:</source>
        <translation>A&amp;ncho de tesela:</translation>
    </message>
    <message>
        <source>Tile &amp;height:</source>
        <translation>A&amp;lto de tesela:</translation>
    </message>
    <message>
        <source>&amp;Margin:</source>
        <translation>&amp;Margen:</translation>
    </message>
    <message>
        <source>Pixels around all tiles</source>
        <translation>Píxeles alrededor de todas las teselas</translation>
    </message>
    <message>
        <source>&amp;Spacing:</source>
        <translation>&amp;Espacio:</translation>
    </message>
    <message>
        <source>Pixels between two tiles</source>
        <translation>Píxeles entre dos teselas</translation>
    </message>
    <message>
        <source>Skip &amp;empty tiles</source>
        <translation>Omitir teselas &amp;vacías</translation>
    </message>
    <message>
        <source>Makes no frames of tiles that are transparent everywhere</source>
        <translation>No hace fotogramas de teselas transparentes en todas partes</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Formato:</translation>
    </message>
    <message>
        <source>One animation, or one image file per frame</source>
        <translation>Una animación, o un archivo de imagen por fotograma</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Ajustes...</translation>
    </message>
    <message>
        <source>Options of the chosen format</source>
        <translation>Opciones del formato elegido</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Hoja</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compresión</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Sin pérdida</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>Codificación por longitud de series</translation>
    </message>
    <message>
        <source>Translator Settings</source>
        <translation>Ajustes del traductor</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Guía</translation>
    </message>
    <message>
        <source>Kirto - Guide</source>
        <translation>Kirto - Guía</translation>
    </message>
    <message>
        <source>The page &quot;%1&quot; is not part of the installed guide.</source>
        <translation>La página «%1» no es parte de la guía instalada.</translation>
    </message>
    <message>
        <source>The guide is not installed with this program.</source>
        <translation>La guía no está instalada con este programa.</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Contenido</translation>
    </message>
    <message>
        <source>The first page</source>
        <translation>La primera página</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Atrás</translation>
    </message>
    <message>
        <source>The page before this one (Alt+Left)</source>
        <translation>La página anterior (Alt+Izquierda)</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>A&amp;delante</translation>
    </message>
    <message>
        <source>The page after it (Alt+Right)</source>
        <translation>La página siguiente (Alt+Derecha)</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>Find on this page</source>
        <translation>Buscar en esta página</translation>
    </message>
    <message>
        <source>Finds a text on this page; Return finds the next place</source>
        <translation>Busca un texto en esta página; Intro busca el siguiente</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not on this page.</source>
        <translation>«%1» no está en esta página.</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>1/100 s</source>
        <translation>1/100 s</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%L1 ms</translation>
    </message>
    <message>
        <source>What the pause is in other units</source>
        <translation>La pausa en otras unidades</translation>
    </message>
    <message>
        <source>, %1 fps</source>
        <translation>, %L1 f/s</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>mixed</source>
        <translation>varios</translation>
    </message>
    <message>
        <source>Width of the animation in pixels</source>
        <translation>Ancho de la animación en píxeles</translation>
    </message>
    <message>
        <source>Height of the animation in pixels</source>
        <translation>Alto de la animación en píxeles</translation>
    </message>
    <message>
        <source>Pause after every frame that has no pause of its own</source>
        <translation>Pausa después de cada fotograma sin pausa propia</translation>
    </message>
    <message>
        <source>Use pause:</source>
        <translation>Pausa:</translation>
    </message>
    <message>
        <source>Length of the pause, in the unit chosen in the preferences</source>
        <translation>Duración de la pausa, en la unidad elegida en las preferencias</translation>
    </message>
    <message>
        <source>Play the animation more than once</source>
        <translation>Reproducir la animación más de una vez</translation>
    </message>
    <message>
        <source>Use loop:</source>
        <translation>Bucle:</translation>
    </message>
    <message>
        <source>How many times to play the animation; 0 = forever</source>
        <translation>Cuántas veces se reproduce la animación; 0 = sin fin</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message numerus="yes">
        <source>1 color</source>
        <comment>%n colors</comment>
        <translation>
            <numerusform>%n color</numerusform>
            <numerusform>%n colores</numerusform>
        </translation>
    </message>
    <message>
        <source>Current Frame</source>
        <translation>Fotograma actual</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Distance of the frame from the animation&apos;s left edge, in pixels</source>
        <translation>Distancia del fotograma al borde izquierdo de la animación, en píxeles</translation>
    </message>
    <message>
        <source>X offset:</source>
        <translation>Desplaz. X:</translation>
    </message>
    <message>
        <source>Distance of the frame from the animation&apos;s top edge, in pixels</source>
        <translation>Distancia del fotograma al borde superior de la animación, en píxeles</translation>
    </message>
    <message>
        <source>Y offset:</source>
        <translation>Desplaz. Y:</translation>
    </message>
    <message>
        <source>Give the frame a pause of its own</source>
        <translation>Dar al fotograma una pausa propia</translation>
    </message>
    <message>
        <source>Use pause</source>
        <translation>Pausa propia</translation>
    </message>
    <message>
        <source>Length of the frame&apos;s pause, in the unit chosen in the preferences</source>
        <translation>Duración de la pausa del fotograma, en la unidad elegida en las preferencias</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Duración:</translation>
    </message>
    <message>
        <source>Save the frame with a palette of its own</source>
        <translation>Guardar el fotograma con una paleta propia</translation>
    </message>
    <message>
        <source>Local palette</source>
        <translation>Paleta propia</translation>
    </message>
    <message>
        <source>BeOS system</source>
        <translation>sistema BeOS</translation>
    </message>
    <message>
        <source>web safe</source>
        <translation>colores web</translation>
    </message>
    <message>
        <source>greyscale</source>
        <translation>grises</translation>
    </message>
    <message>
        <source>optimal</source>
        <translation>óptima</translation>
    </message>
    <message>
        <source>from a file</source>
        <translation>de un archivo</translation>
    </message>
    <message>
        <source>The colors of the frame&apos;s own palette</source>
        <translation>Los colores de la paleta propia del fotograma</translation>
    </message>
    <message>
        <source>Local palette colors</source>
        <translation>Colores de la paleta propia</translation>
    </message>
    <message>
        <source>Frame list</source>
        <translation>Lista de fotogramas</translation>
    </message>
    <message>
        <source>Show the frames as pictures</source>
        <translation>Mostrar los fotogramas como imágenes</translation>
    </message>
    <message>
        <source>Show the frames as a list, with a preview of the current one</source>
        <translation>Mostrar los fotogramas como lista, con vista previa del actual</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Palette:</source>
        <translation>Paleta:</translation>
    </message>
    <message>
        <source>first frame</source>
        <translation>primer fotograma</translation>
    </message>
    <message>
        <source>The colors used to save all frames that have no palette of their own</source>
        <translation>Los colores con que se guardan todos los fotogramas sin paleta propia</translation>
    </message>
    <message>
        <source>Mapping:</source>
        <translation>Colores:</translation>
    </message>
    <message>
        <source>Approximate missing colors by dithering</source>
        <translation>Aproximar con tramado los colores que faltan</translation>
    </message>
    <message>
        <source>Palette index of the background color</source>
        <translation>Índice en la paleta del color de fondo</translation>
    </message>
    <message>
        <source>Make one color of the palette transparent</source>
        <translation>Hacer transparente un color de la paleta</translation>
    </message>
    <message>
        <source>Transparent index:</source>
        <translation>Índice transparente:</translation>
    </message>
    <message>
        <source>Palette index of the transparent color</source>
        <translation>Índice en la paleta del color transparente</translation>
    </message>
    <message>
        <source>%1 kB</source>
        <translation>%L1 kB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%L1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%L1 GB</translation>
    </message>
    <message>
        <source>Status: 0 frame(s), unmodified</source>
        <translation>Estado: 0 fotograma(s), sin cambios</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Stops what is being done; what is complete is kept</source>
        <translation>Detiene lo que se está haciendo; lo completo se conserva</translation>
    </message>
    <message>
        <source>Status: %1 frame(s), %2</source>
        <translation>Estado: %1 fotograma(s), %2</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>con cambios</translation>
    </message>
    <message>
        <source>unmodified</source>
        <translation>sin cambios</translation>
    </message>
    <message>
        <source>%1 in memory</source>
        <translation>%1 en memoria</translation>
    </message>
    <message>
        <source>The size of the file is not known yet.</source>
        <translation>Aún no se conoce el tamaño del archivo.</translation>
    </message>
    <message>
        <source>file %1</source>
        <translation>archivo %1</translation>
    </message>
    <message>
        <source>file about %1</source>
        <translation>archivo unos %1</translation>
    </message>
    <message>
        <source>Saved as a GIF file, it has %1 bytes.</source>
        <translation>Guardada como GIF, tiene %1 bytes.</translation>
    </message>
    <message>
        <source>Saved as a GIF file, it has about %1 bytes.</source>
        <translation>Guardada como GIF, tiene unos %1 bytes.</translation>
    </message>
    <message>
        <source>The animation and what can be undone take %1.</source>
        <translation>La animación y lo que se puede deshacer ocupan %1.</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%L1 s</translation>
    </message>
    <message>
        <source>%1 of %2 selected, %3 s of %4</source>
        <translation>%1 de %2 seleccionados, %L3 s de %4</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Más pequeño</translation>
    </message>
    <message>
        <source>How large pixels are shown</source>
        <translation>A qué tamaño se muestran los píxeles</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Más grande</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>As large as fits</source>
        <translation>Tan grande como quepa</translation>
    </message>
    <message>
        <source>In its own size</source>
        <translation>A su tamaño</translation>
    </message>
    <message>
        <source>Onion skin</source>
        <translation>Papel cebolla</translation>
    </message>
    <message>
        <source>Let the frames beside this one be seen through it</source>
        <translation>Dejar ver los fotogramas vecinos a través de este</translation>
    </message>
    <message>
        <source>No onion skin</source>
        <translation>Sin papel cebolla</translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation>Fotograma anterior</translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation>Fotograma siguiente</translation>
    </message>
    <message>
        <source>Both frames</source>
        <translation>Ambos fotogramas</translation>
    </message>
    <message>
        <source>Opacity of the onion skin</source>
        <translation>Opacidad del papel cebolla</translation>
    </message>
    <message>
        <source>How much of the frames beside this one is seen</source>
        <translation>Cuánto se ve de los fotogramas vecinos</translation>
    </message>
    <message>
        <source>Saved colors</source>
        <translation>Colores guardados</translation>
    </message>
    <message>
        <source>Show the frame with the colors that a GIF file will have</source>
        <translation>Mostrar el fotograma con los colores que tendrá un archivo GIF</translation>
    </message>
    <message>
        <source>no frame</source>
        <translation>ningún fotograma</translation>
    </message>
    <message>
        <source>transparent</source>
        <translation>transparente</translation>
    </message>
    <message>
        <source>, alpha %1</source>
        <translation>, alfa %1</translation>
    </message>
    <message>
        <source>, index %1</source>
        <translation>, índice %1</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>fotograma %1</translation>
    </message>
    <message>
        <source>To the start</source>
        <translation>Al inicio</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>To the end</source>
        <translation>Al final</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Repetición</translation>
    </message>
    <message>
        <source>How often the animation is played</source>
        <translation>Cuántas veces se reproduce la animación</translation>
    </message>
    <message>
        <source>As saved</source>
        <translation>Como se guardó</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Siempre</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>Una vez</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>How many times as fast as the animation says</source>
        <translation>Cuántas veces más rápido de lo que dice la animación</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Selección</translation>
    </message>
    <message>
        <source>Play the selected frames only</source>
        <translation>Reproducir solo los fotogramas seleccionados</translation>
    </message>
    <message>
        <source>Like a browser</source>
        <translation>Como un navegador</translation>
    </message>
    <message>
        <source>Show frames for 0.10 s whose pause is below 0.02 s, as browsers do</source>
        <translation>Mostrar 0,10 s los fotogramas con pausa menor de 0,02 s, como los navegadores</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>#%1 of %2, %3 s of %4 s</source>
        <translation>#%1 de %2, %3 s de %4 s</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Guía</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts...</source>
        <translation>&amp;Atajos de teclado...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>A&amp;cerca de...</translation>
    </message>
    <message>
        <source>Kirto - untitled</source>
        <translation>Kirto - untitled</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Abrir...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>G&amp;uardar como...</translation>
    </message>
    <message>
        <source>A&amp;bout...</source>
        <translation>A&amp;cerca de...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>D&amp;uplicar</translation>
    </message>
    <message>
        <source>&amp;Move To...</source>
        <translation>&amp;Mover a...</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Seleccion&amp;ar todo</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>Seleccionar &amp;nada</translation>
    </message>
    <message>
        <source>&amp;Invert Selection</source>
        <translation>&amp;Invertir la selección</translation>
    </message>
    <message>
        <source>Select &amp;Every Nth...</source>
        <translation>Seleccionar un&amp;o de cada n...</translation>
    </message>
    <message>
        <source>Select Ran&amp;ge...</source>
        <translation>Seleccionar inter&amp;valo...</translation>
    </message>
    <message>
        <source>Go to &amp;Frame...</source>
        <translation>Ir al &amp;fotograma...</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vista previa</translation>
    </message>
    <message>
        <source>Toggle &amp;Mode</source>
        <translation>Cambiar de &amp;modo</translation>
    </message>
    <message>
        <source>P&amp;references...</source>
        <translation>&amp;Preferencias...</translation>
    </message>
    <message>
        <source>Show Pla&amp;yer</source>
        <translation>Mostrar el repro&amp;ductor</translation>
    </message>
    <message>
        <source>Pl&amp;ay or Pause</source>
        <translation>&amp;Reproducir o pausar</translation>
    </message>
    <message>
        <source>Hide Frame &amp;Labels</source>
        <translation>Ocultar &amp;etiquetas</translation>
    </message>
    <message>
        <source>&amp;Colors...</source>
        <translation>&amp;Colores...</translation>
    </message>
    <message>
        <source>&amp;Insert...</source>
        <translation>&amp;Insertar...</translation>
    </message>
    <message>
        <source>Insert &amp;Tiled...</source>
        <translation>Insertar &amp;mosaico...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>Re&amp;verse All</source>
        <translation>In&amp;vertir todo</translation>
    </message>
    <message>
        <source>&amp;Fade Effects...</source>
        <translation>&amp;Efectos de fundido...</translation>
    </message>
    <message>
        <source>&amp;Insert Animation...</source>
        <translation>&amp;Insertar animación...</translation>
    </message>
    <message>
        <source>Export &amp;Sheet...</source>
        <translation>Exportar &amp;hoja...</translation>
    </message>
    <message>
        <source>Set &amp;Pause...</source>
        <translation>Fijar la &amp;pausa...</translation>
    </message>
    <message>
        <source>&amp;Forward and Back</source>
        <translation>Ida y &amp;vuelta</translation>
    </message>
    <message>
        <source>Shift Start to Curre&amp;nt Frame</source>
        <translation>Empe&amp;zar en el fotograma actual</translation>
    </message>
    <message>
        <source>Remove D&amp;uplicates...</source>
        <translation>Quitar &amp;duplicados...</translation>
    </message>
    <message>
        <source>&amp;Drop Every Nth...</source>
        <translation>Quitar &amp;uno de cada n...</translation>
    </message>
    <message>
        <source>&amp;Resize Animation...</source>
        <translation>Cambiar tamañ&amp;o de la animación...</translation>
    </message>
    <message>
        <source>&amp;Crop...</source>
        <translation>&amp;Recortar...</translation>
    </message>
    <message>
        <source>Can&amp;vas Size...</source>
        <translation>Tamaño del &amp;lienzo...</translation>
    </message>
    <message>
        <source>Rotate Ri&amp;ght</source>
        <translation>Girar a la der&amp;echa</translation>
    </message>
    <message>
        <source>Rotate &amp;Left</source>
        <translation>Girar a la iz&amp;quierda</translation>
    </message>
    <message>
        <source>Flip &amp;Horizontally</source>
        <translation>Voltear en horizontal (&amp;j)</translation>
    </message>
    <message>
        <source>Flip Verticall&amp;y</source>
        <translation>Voltear en vertical (&amp;y)</translation>
    </message>
    <message>
        <source>Fit Fra&amp;mes to Animation...</source>
        <translation>Ajustar foto&amp;gramas a la animación...</translation>
    </message>
    <message>
        <source>&amp;Adjust Colors...</source>
        <translation>Ajustar &amp;colores...</translation>
    </message>
    <message>
        <source>&amp;Opacity...</source>
        <translation>Op&amp;acidad...</translation>
    </message>
    <message>
        <source>Overlay Imag&amp;e...</source>
        <translation>&amp;Superponer imagen...</translation>
    </message>
    <message>
        <source>&amp;Text...</source>
        <translation>&amp;Texto...</translation>
    </message>
    <message>
        <source>Ma&amp;ke Transparent...</source>
        <translation>Hacer tra&amp;nsparente...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>F&amp;rame</source>
        <translation>&amp;Fotograma</translation>
    </message>
    <message>
        <source>&amp;Animation</source>
        <translation>A&amp;nimación</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Deshacer %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rehacer %1</translation>
    </message>
    <message>
        <source>Re&amp;verse Selected</source>
        <translation>In&amp;vertir la selección</translation>
    </message>
    <message>
        <source>Hide Pla&amp;yer</source>
        <translation>Ocultar el repro&amp;ductor</translation>
    </message>
    <message>
        <source>Show Frame &amp;Labels</source>
        <translation>Mostrar &amp;etiquetas</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Vaciar la lista</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Abrir &amp;reciente</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open an animation</source>
        <translation>Abrir una animación</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insertar</translation>
    </message>
    <message>
        <source>Insert images as frames</source>
        <translation>Insertar imágenes como fotogramas</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Take the last change back</source>
        <translation>Deshacer el último cambio</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Make it again</source>
        <translation>Hacerlo otra vez</translation>
    </message>
    <message>
        <source>Play the animation, or pause it</source>
        <translation>Reproducir la animación o pausarla</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Save under another name or as images</source>
        <translation>Guardar con otro nombre o como imágenes</translation>
    </message>
    <message>
        <source>Write as another format, or smaller</source>
        <translation>Escribir en otro formato, o más pequeño</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Show the animation in the browser</source>
        <translation>Mostrar la animación en el navegador</translation>
    </message>
    <message>
        <source>%1 (tool bar)</source>
        <translation>%1 (barra de herramientas)</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>&amp;Tool Bar</source>
        <translation>Barra de &amp;herramientas</translation>
    </message>
    <message>
        <source>Hit a key</source>
        <translation>Pulse una tecla</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Búsqueda</translation>
    </message>
    <message>
        <source>Search for an action or a key</source>
        <translation>Buscar una acción o una tecla</translation>
    </message>
    <message>
        <source>Shows only the actions with this in their name or key</source>
        <translation>Muestra solo las acciones con esto en su nombre o tecla</translation>
    </message>
    <message>
        <source>Actions and their keys</source>
        <translation>Las acciones y sus teclas</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Tecla</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation>&amp;Tecla:</translation>
    </message>
    <message>
        <source>Key of the chosen action</source>
        <translation>Tecla de la acción elegida</translation>
    </message>
    <message>
        <source>Hit the key that the action is to have; Backspace for none</source>
        <translation>Pulse la tecla que debe tener la acción; Retroceso para ninguna</translation>
    </message>
    <message>
        <source>&amp;Take Over</source>
        <translation>T&amp;omar</translation>
    </message>
    <message>
        <source>Takes the key from the other action</source>
        <translation>Le quita la tecla a la otra acción</translation>
    </message>
    <message>
        <source>&amp;Default</source>
        <translation>Pre&amp;determinada</translation>
    </message>
    <message>
        <source>The key that this action has at first</source>
        <translation>La tecla que esta acción tiene al principio</translation>
    </message>
    <message>
        <source>&amp;Restore Defaults</source>
        <translation>&amp;Restaurar todo</translation>
    </message>
    <message>
        <source>The keys that all actions have at first</source>
        <translation>Las teclas que todas las acciones tienen al principio</translation>
    </message>
    <message>
        <source>Such a key is needed for typing, moving or opening menus. Hit one with Ctrl, or a function key.</source>
        <translation>Esa tecla hace falta para escribir, moverse o abrir menús. Pulse una con Ctrl, o una tecla de función.</translation>
    </message>
    <message>
        <source>%1 is the key of &quot;%2&quot; in the menu &quot;%3&quot;.</source>
        <translation>%1 es la tecla de «%2» en el menú «%3».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer has %2.</source>
        <translation>«%1» ya no tiene %2.</translation>
    </message>
    <message>
        <source>The keys could not be stored; they hold until the program ends.</source>
        <translation>No se pudieron guardar las teclas; valen hasta que termine el programa.</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Diferencias</translation>
    </message>
    <message>
        <source>The frame in Kirto</source>
        <translation>El fotograma en Kirto</translation>
    </message>
    <message>
        <source>The frame in browsers</source>
        <translation>El fotograma en los navegadores</translation>
    </message>
    <message>
        <source>In Kirto</source>
        <translation>En Kirto</translation>
    </message>
    <message>
        <source>In browsers</source>
        <translation>En los navegadores</translation>
    </message>
    <message>
        <source>Frame that differs</source>
        <translation>Fotograma que difiere</translation>
    </message>
    <message>
        <source>&amp;In turns</source>
        <translation>Por &amp;turnos</translation>
    </message>
    <message>
        <source>In turns</source>
        <translation>Por turnos</translation>
    </message>
    <message>
        <source>Shows both in one place, one after the other</source>
        <translation>Muestra ambos en un lugar, uno tras otro</translation>
    </message>
    <message>
        <source>Frame %1 of %2</source>
        <translation>Fotograma %1 de %2</translation>
    </message>
    <message>
        <source>own pause</source>
        <translation>pausa propia</translation>
    </message>
    <message>
        <source>own palette</source>
        <translation>paleta propia</translation>
    </message>
    <message>
        <source>cleared after it was shown</source>
        <translation>se borra después de mostrarse</translation>
    </message>
    <message>
        <source>what was before comes back after it</source>
        <translation>después vuelve lo que había antes</translation>
    </message>
    <message>
        <source>frame #%1    %2</source>
        <translation>fotograma #%1    %2</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Fotogramas</translation>
    </message>
    <message>
        <source>Insert image files</source>
        <translation>Insertar archivos de imagen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Remove the current frame</source>
        <translation>Quitar el fotograma actual</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move the current frame toward the start</source>
        <translation>Mover el fotograma actual hacia el inicio</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Move the current frame toward the end</source>
        <translation>Mover el fotograma actual hacia el final</translation>
    </message>
    <message>
        <source>Preview: 100%</source>
        <translation>Vista previa: 100%</translation>
    </message>
    <message>
        <source>Preview: %1%</source>
        <translation>Vista previa: %1%</translation>
    </message>
    <message>
        <source>Select frames</source>
        <translation>Seleccionar fotogramas</translation>
    </message>
    <message>
        <source>Frames as 3-7, 0-20/2 or 0,4,7; Return selects them, Escape leaves the selection</source>
        <translation>Fotogramas como 3-7, 0-20/2 o 0,4,7; Intro los selecciona, Escape deja la selección</translation>
    </message>
    <message>
        <source>Recent animations</source>
        <translation>Animaciones recientes</translation>
    </message>
    <message>
        <source>%1 in %2, %3</source>
        <translation>%1 en %2, %3</translation>
    </message>
    <message>
        <source>
The file is not there.</source>
        <translation>
El archivo no está ahí.</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Miniaturas</translation>
    </message>
    <message>
        <source>no frames</source>
        <translation>ningún fotograma</translation>
    </message>
    <message>
        <source>frame #%1 %2, %3 x %4, %5 frame(s)</source>
        <translation>fotograma #%1 %2, %3 x %4, %5 fotograma(s)</translation>
    </message>
    <message>
        <source>, %1 selected</source>
        <translation>, %1 seleccionados</translation>
    </message>
    <message>
        <source>frame #%1    %2
%3 x %4</source>
        <translation>fotograma #%1    %2
%3 x %4</translation>
    </message>
    <message>
        <source>Drop images or an animation here,
or choose Insert...
from the Frame menu.</source>
        <translation>Suelte aquí imágenes o una animación,
o elija «Insertar...»
en el menú «Fotograma».</translation>
    </message>
    <message>
        <source>Insert Frame</source>
        <translation>Insertar fotograma</translation>
    </message>
    <message>
        <source>Remove Frame</source>
        <translation>Quitar fotograma</translation>
    </message>
    <message>
        <source>Fade Effects...</source>
        <translation>Efectos de fundido...</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Set Pause...</source>
        <translation>Fijar la pausa...</translation>
    </message>
    <message>
        <source>Thumbnail height: %1</source>
        <translation>Altura de las miniaturas: %1</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Abrir...</translation>
    </message>
    <message>
        <source>Insert Images...</source>
        <translation>Insertar imágenes...</translation>
    </message>
    <message>
        <source>Make an animation of images</source>
        <translation>Hacer una animación de imágenes</translation>
    </message>
    <message>
        <source>Recent animations:</source>
        <translation>Animaciones recientes:</translation>
    </message>
    <message>
        <source>Also found in the preferences, under Compatibility</source>
        <translation>También en las preferencias, en «Compatibilidad»</translation>
    </message>
    <message>
        <source>Thumbnail height</source>
        <translation>Altura de las miniaturas</translation>
    </message>
    <message>
        <source>Height of the thumbnails in pixels</source>
        <translation>Altura de las miniaturas en píxeles</translation>
    </message>
    <message>
        <source>Use frame:</source>
        <translation>Según:</translation>
    </message>
    <message>
        <source>first half sized</source>
        <translation>primero, mitad</translation>
    </message>
    <message>
        <source>current half sized</source>
        <translation>actual, mitad</translation>
    </message>
    <message>
        <source>first full sized</source>
        <translation>primero, entero</translation>
    </message>
    <message>
        <source>current full sized</source>
        <translation>actual, entero</translation>
    </message>
    <message>
        <source>Set the thumbnail height from a frame, or so that all frames fit</source>
        <translation>Fijar la altura de las miniaturas según un fotograma, o para que quepan todos</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Línea de tiempo</translation>
    </message>
    <message>
        <source>Drag a block to move its frame, its right edge to change its pause, the ruler to go to a frame. Ctrl and the wheel zoom.</source>
        <translation>Arrastre un bloque para mover su fotograma, su borde derecho para cambiar su pausa, la regla para ir a un fotograma. Ctrl y la rueda amplían.</translation>
    </message>
    <message>
        <source>Frame %1, %2</source>
        <translation>Fotograma %1, %2</translation>
    </message>
    <message>
        <source>The file exists already. Do you want to replace it?</source>
        <translation>El archivo ya existe. ¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>Some of the files exist already (%1). Do you want to replace them?</source>
        <translation>Algunos de los archivos ya existen (%1). ¿Desea reemplazarlos?</translation>
    </message>
    <message>
        <source>Sheet with JSON</source>
        <translation>Hoja con JSON</translation>
    </message>
    <message>
        <source>Numbered images</source>
        <translation>Imágenes numeradas</translation>
    </message>
    <message>
        <source>Stren&amp;gth:</source>
        <translation>&amp;Fuerza:</translation>
    </message>
    <message>
        <source>Cha&amp;nged areas only</source>
        <translation>Solo zonas que cam&amp;bian</translation>
    </message>
    <message>
        <source>Off: each frame is written whole, for programs that do not build on the one before</source>
        <translation>Desactivado: cada fotograma se escribe entero, para programas que no parten del anterior</translation>
    </message>
    <message>
        <source>Ma&amp;tte:</source>
        <translation>Fo&amp;ndo:</translation>
    </message>
    <message>
        <source>&amp;Image format:</source>
        <translation>Formato de &amp;imagen:</translation>
    </message>
    <message>
        <source>Colum&amp;ns:</source>
        <translation>Co&amp;lumnas:</translation>
    </message>
    <message>
        <source>Pa&amp;dding:</source>
        <translation>Es&amp;pacio:</translation>
    </message>
    <message>
        <source>damaged, what was good was kept</source>
        <translation>dañado, se conservó lo bueno</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
</TS>
