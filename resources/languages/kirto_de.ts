<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CoreText</name>
    <message>
        <source>the frame</source>
        <translation>das Bild</translation>
    </message>
    <message>
        <source>both frames</source>
        <translation>beide Bilder</translation>
    </message>
    <message>
        <source>all %1 frames</source>
        <translation>alle %1 Bilder</translation>
    </message>
    <message>
        <source>%1 of %2 frames</source>
        <translation>%1 von %2 Bildern</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>endlos</translation>
    </message>
    <message>
        <source>once</source>
        <translation>einmal</translation>
    </message>
    <message>
        <source>%1 times</source>
        <translation>%1-mal</translation>
    </message>
    <message>
        <source>less than 1 %</source>
        <translation>weniger als 1 %</translation>
    </message>
    <message>
        <source>more than 99 %</source>
        <translation>mehr als 99 %</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>1 pixel</source>
        <translation>1 Pixel</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 Pixel</translation>
    </message>
    <message>
        <source>, by %1 of 255 on average</source>
        <translation>, im Mittel um %1 von 255</translation>
    </message>
    <message>
        <source>browsers will play 1 frame slower: its pause is below 0.02 seconds</source>
        <translation>Browser werden 1 Bild langsamer abspielen: seine Pause liegt unter 0,02 Sekunden</translation>
    </message>
    <message>
        <source>browsers will play %1 frames slower: their pauses are below 0.02 seconds</source>
        <translation>Browser werden %1 Bilder langsamer abspielen: ihre Pausen liegen unter 0,02 Sekunden</translation>
    </message>
    <message>
        <source>the animation will have %1 x %2 pixels</source>
        <translation>wird die Animation %1 x %2 Pixel groß sein</translation>
    </message>
    <message>
        <source>no frame will be shown</source>
        <translation>wird kein Bild zu sehen sein</translation>
    </message>
    <message>
        <source>%1 frame(s) will be shown instead of %2</source>
        <translation>werden %1 Bild(er) statt %2 zu sehen sein</translation>
    </message>
    <message>
        <source>%1 will show trails, of up to %2</source>
        <translation>hinterlassen %1 Spuren, bis zu %2</translation>
    </message>
    <message>
        <source>%1 will show trails</source>
        <translation>hinterlassen %1 Spuren</translation>
    </message>
    <message>
        <source>%1 will show pixels of others, too few to be seen: up to %2</source>
        <translation>zeigen %1 Pixel von anderen, zu wenige, um aufzufallen: bis zu %2</translation>
    </message>
    <message>
        <source>%1 will show pixels of others, too few to be seen</source>
        <translation>zeigen %1 Pixel von anderen, zu wenige, um aufzufallen</translation>
    </message>
    <message>
        <source>%1 will not be transparent: no color stands for that</source>
        <translation>werden %1 nicht transparent sein: keine Farbe steht dafür</translation>
    </message>
    <message>
        <source>%1 will lack pixels</source>
        <translation>fehlen Pixel: %1</translation>
    </message>
    <message>
        <source>%1 of the pixels lost their color%2: %3 colors</source>
        <translation>haben %1 der Pixel ihre Farbe verloren%2: %3 Farben</translation>
    </message>
    <message>
        <source>%1 will be shown for another time</source>
        <translation>sind andere Zeit zu sehen: %1</translation>
    </message>
    <message>
        <source>the animation will play %1 instead of %2</source>
        <translation>wird die Animation %1 statt %2 abgespielt</translation>
    </message>
    <message>
        <source>Move Frames</source>
        <translation>Bilder verschieben</translation>
    </message>
    <message>
        <source>Copy Frames</source>
        <translation>Bilder kopieren</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Forward and Back</source>
        <translation>Vor und zurück</translation>
    </message>
    <message>
        <source>Remove Duplicates</source>
        <translation>Duplikate entfernen</translation>
    </message>
    <message>
        <source>Drop Every Nth</source>
        <translation>Jedes n-te weglassen</translation>
    </message>
    <message>
        <source>Shift Start</source>
        <translation>Anfang verlegen</translation>
    </message>
    <message>
        <source>Set Pause</source>
        <translation>Pause setzen</translation>
    </message>
    <message>
        <source>Change Palette</source>
        <translation>Palette ändern</translation>
    </message>
    <message>
        <source>Change Frame Palette</source>
        <translation>Palette des Bildes ändern</translation>
    </message>
    <message>
        <source>The video can&apos;t be written because the program ffmpeg was not found. Install the package &quot;ffmpeg&quot;.</source>
        <translation>Das Video kann nicht geschrieben werden, weil das Programm ffmpeg nicht gefunden wurde. Installieren Sie das Paket „ffmpeg“.</translation>
    </message>
    <message>
        <source>There is no frame to export.</source>
        <translation>Es gibt kein Bild zu exportieren.</translation>
    </message>
    <message>
        <source>The animation is too large for a %1 file.</source>
        <translation>Die Animation ist zu groß für eine %1-Datei.</translation>
    </message>
    <message>
        <source>There is nothing here that writes %1 files.</source>
        <translation>Hier gibt es nichts, was %1-Dateien schreibt.</translation>
    </message>
    <message>
        <source>Out of memory.</source>
        <translation>Nicht genug Speicher.</translation>
    </message>
    <message>
        <source>The program that writes videos has failed.</source>
        <translation>Das Programm, das Videos schreibt, ist gescheitert.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be made so small.</source>
        <translation>So klein lässt sich die Animation nicht machen.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Angehalten.</translation>
    </message>
    <message>
        <source>What is on the clipboard can&apos;t be pasted because it was damaged or is unsupported.</source>
        <translation>Der Inhalt der Zwischenablage kann nicht eingefügt werden, weil er beschädigt ist oder nicht unterstützt wird.</translation>
    </message>
    <message>
        <source>This file can&apos;t be inserted because it does not describe a sheet: %1</source>
        <translation>Diese Datei kann nicht eingefügt werden, weil sie keinen Bogen beschreibt: %1</translation>
    </message>
    <message>
        <source>This file can&apos;t be inserted because a frame is not on the sheet: %1</source>
        <translation>Diese Datei kann nicht eingefügt werden, weil ein Bild nicht auf dem Bogen liegt: %1</translation>
    </message>
    <message>
        <source>Insert Animation</source>
        <translation>Animation einfügen</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Insert Tiled</source>
        <translation>Kacheln einfügen</translation>
    </message>
    <message>
        <source>Remove Frame</source>
        <translation>Bild entfernen</translation>
    </message>
    <message>
        <source>Move Frame Up</source>
        <translation>Bild nach oben</translation>
    </message>
    <message>
        <source>Move Frame Down</source>
        <translation>Bild nach unten</translation>
    </message>
    <message>
        <source>Reverse All</source>
        <translation>Alle umkehren</translation>
    </message>
    <message>
        <source>Fit Frames</source>
        <translation>Bilder einpassen</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Überblenden</translation>
    </message>
    <message>
        <source>Unable to open or create a settings file. Default values will be used instead, but may not be saved.</source>
        <translation>Es lässt sich keine Einstellungsdatei öffnen oder anlegen. Die Vorgaben werden verwendet, aber womöglich nicht gespeichert.</translation>
    </message>
    <message>
        <source>The settings file was damaged. It has been put aside as &quot;%1&quot;, and default values will be used instead.</source>
        <translation>Die Einstellungsdatei war beschädigt. Sie wurde als „%1“ beiseitegelegt, und die Vorgaben werden verwendet.</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>Status: %1</translation>
    </message>
    <message>
        <source>canceled, %1 new frame(s) kept</source>
        <translation>abgebrochen, %1 neue(s) Bild(er) behalten</translation>
    </message>
    <message>
        <source>Do you wish to insert this image into the current animation or open it as a new animation?</source>
        <translation>Möchten Sie dieses Bild in die aktuelle Animation einfügen oder als neue Animation öffnen?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>The animation can&apos;t be opened because this file type is unsupported.</source>
        <translation>Die Animation kann nicht geöffnet werden, weil dieser Dateityp nicht unterstützt wird.</translation>
    </message>
    <message>
        <source>Do you want to save your changes?</source>
        <translation>Möchten Sie Ihre Änderungen speichern?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>The palette can&apos;t be loaded because the file was corrupted or unreadable.</source>
        <translation>Die Palette kann nicht geladen werden, weil die Datei beschädigt oder unlesbar ist.</translation>
    </message>
    <message>
        <source>Another program has changed the file &quot;%1&quot; since it was opened or saved. Do you want to overwrite it?</source>
        <translation>Ein anderes Programm hat die Datei „%1“ geändert, seit sie geöffnet oder gespeichert wurde. Möchten Sie sie überschreiben?</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Speichern unter...</translation>
    </message>
    <message>
        <source>saving was canceled, the file is as it was before</source>
        <translation>das Speichern wurde abgebrochen, die Datei ist wie zuvor</translation>
    </message>
    <message>
        <source>The animation can&apos;t be saved because one of the frames has a larger size than the animation.</source>
        <translation>Die Animation kann nicht gespeichert werden, weil eines der Bilder größer als die Animation ist.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be saved because %1 is not between 0 and 65535.</source>
        <translation>Die Animation kann nicht gespeichert werden, weil dies nicht zwischen 0 und 65535 liegt: %1.</translation>
    </message>
    <message>
        <source>saved, but %1</source>
        <translation>gespeichert, aber %1</translation>
    </message>
    <message>
        <source>saving was canceled, %1 of %2 file(s) written</source>
        <translation>das Speichern wurde abgebrochen, %1 von %2 Datei(en) geschrieben</translation>
    </message>
    <message>
        <source>The animation can&apos;t be previewed because one of the frames has a larger size than the animation.</source>
        <translation>Es gibt keine Vorschau der Animation, weil eines der Bilder größer als die Animation ist.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be previewed because %1 is not between 0 and 65535.</source>
        <translation>Es gibt keine Vorschau der Animation, weil dies nicht zwischen 0 und 65535 liegt: %1.</translation>
    </message>
    <message>
        <source>the preview was canceled</source>
        <translation>die Vorschau wurde abgebrochen</translation>
    </message>
    <message>
        <source>The animation can&apos;t be previewed because a temporary file could not be created.</source>
        <translation>Es gibt keine Vorschau der Animation, weil keine temporäre Datei angelegt werden konnte.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be recovered because its copy was damaged. The copy has been put aside.</source>
        <translation>Die Animation kann nicht wiederhergestellt werden, weil ihre Kopie beschädigt ist. Die Kopie wurde beiseitegelegt.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be recovered because it needs more memory than there is.</source>
        <translation>Die Animation kann nicht wiederhergestellt werden, weil sie mehr Speicher braucht, als da ist.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be recovered because its copy can&apos;t be read.</source>
        <translation>Die Animation kann nicht wiederhergestellt werden, weil ihre Kopie nicht zu lesen ist.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be recovered because the open one has unsaved changes. It will be offered again when the editor is started next.</source>
        <translation>Die Animation kann nicht wiederhergestellt werden, weil die geöffnete ungespeicherte Änderungen hat. Sie wird beim nächsten Start des Editors wieder angeboten.</translation>
    </message>
    <message>
        <source>saving was canceled</source>
        <translation>das Speichern wurde abgebrochen</translation>
    </message>
    <message>
        <source>Opened as browsers do. Animations are read and saved that way from now on.</source>
        <translation>Wie in Browsern geöffnet. Animationen werden von jetzt an so gelesen und gespeichert.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>%1 frame(s) are larger than the animation.</source>
        <translation>%1 Bild(er) sind größer als die Animation.</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalieren</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>Save Faithfully</source>
        <translation>Getreu speichern</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>In browsers %1.</source>
        <translation>In Browsern %1.</translation>
    </message>
    <message>
        <source>Open as Browsers Do</source>
        <translation>Wie in Browsern öffnen</translation>
    </message>
    <message>
        <source>Salvage</source>
        <translation>Retten</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>an image has codes for fewer colors than its palette has</source>
        <translation>ein Bild hat Codes für weniger Farben, als seine Palette hat</translation>
    </message>
    <message>
        <source>an image is larger than the screen</source>
        <translation>ein Bild ist größer als der Bildschirm</translation>
    </message>
    <message>
        <source>the file ends without its trailer</source>
        <translation>die Datei endet ohne ihr Endzeichen</translation>
    </message>
    <message>
        <source>it has a record of an unknown type</source>
        <translation>sie hat einen Satz unbekannter Art</translation>
    </message>
    <message>
        <source>The video can&apos;t be opened because the chosen part is not in it.</source>
        <translation>Das Video kann nicht geöffnet werden, weil der gewählte Teil nicht darin ist.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be opened because it was corrupted or unreadable.</source>
        <translation>Die Animation kann nicht geöffnet werden, weil sie beschädigt oder unlesbar ist.</translation>
    </message>
    <message>
        <source>The video can&apos;t be opened because the program ffmpeg was not found. Install the package &quot;ffmpeg&quot;.</source>
        <translation>Das Video kann nicht geöffnet werden, weil das Programm ffmpeg nicht gefunden wurde. Installieren Sie das Paket „ffmpeg“.</translation>
    </message>
    <message>
        <source>canceled, nothing changed</source>
        <translation>abgebrochen, nichts geändert</translation>
    </message>
    <message>
        <source>no frame shows anything else than another</source>
        <translation>kein Bild zeigt etwas anderes als ein anderes</translation>
    </message>
    <message>
        <source>all frames are transparent everywhere</source>
        <translation>alle Bilder sind überall transparent</translation>
    </message>
    <message>
        <source>Status: adjusting frame %1 of %2...</source>
        <translation>Status: Bild %1 von %2 wird angepasst...</translation>
    </message>
    <message>
        <source>Status: fading frame %1 of %2...</source>
        <translation>Status: Bild %1 von %2 wird geblendet...</translation>
    </message>
    <message>
        <source>Status: changing frame %1 of %2...</source>
        <translation>Status: Bild %1 von %2 wird geändert...</translation>
    </message>
    <message>
        <source>This file can&apos;t be drawn because this file type is unsupported: %1</source>
        <translation>Diese Datei kann nicht gezeichnet werden, weil dieser Dateityp nicht unterstützt wird: %1</translation>
    </message>
    <message>
        <source>Resize Animation</source>
        <translation>Größe der Animation ändern</translation>
    </message>
    <message>
        <source>Canvas Size</source>
        <translation>Zeichenfläche</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <source>Adjust Colors</source>
        <translation>Farben anpassen</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Overlay Image</source>
        <translation>Bild darüberlegen</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Make Transparent</source>
        <translation>Transparent machen</translation>
    </message>
    <message>
        <source>The editor ended unexpectedly. &quot;%1&quot; (%2 frame(s), %3) can be recovered.</source>
        <translation>Der Editor endete unerwartet. „%1“ (%2 Bild(er), %3) kann wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>%1% of the pixels got another color, by %2 of 255 on average</source>
        <translation>%1% der Pixel erhielten eine andere Farbe, im Mittel um %2 von 255</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>XOffset of %1</source>
        <translation>X-Versatz von %1</translation>
    </message>
    <message>
        <source>YOffset of %1</source>
        <translation>Y-Versatz von %1</translation>
    </message>
    <message>
        <source>loop count %1 was saved as %2</source>
        <translation>die Zahl der Wiederholungen %1 wurde als %2 gespeichert</translation>
    </message>
    <message>
        <source>%1 pause(s) above 655.35 seconds were saved shorter</source>
        <translation>%1 Pause(n) über 655,35 Sekunden wurden kürzer gespeichert</translation>
    </message>
    <message>
        <source>The animation can&apos;t be saved because the file could not be created at this location.</source>
        <translation>Die Animation kann nicht gespeichert werden, weil die Datei an diesem Ort nicht angelegt werden konnte.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be saved because the selected translator is not valid.</source>
        <translation>Die Animation kann nicht gespeichert werden, weil der gewählte Übersetzer nicht gültig ist.</translation>
    </message>
    <message>
        <source>1 frame</source>
        <translation>1 Bild</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>%1 Bilder</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 Pixel</translation>
    </message>
    <message>
        <source>%1: a frame of the text is not on the picture.</source>
        <translation>%1: ein Bild des Textes liegt nicht auf der Grafik.</translation>
    </message>
    <message>
        <source>%1: %2 as the text says.</source>
        <translation>%1: %2, wie der Text sagt.</translation>
    </message>
    <message>
        <source>, %1 without the empty ones</source>
        <translation>, %1 ohne die leeren</translation>
    </message>
    <message>
        <source>This image is too large to be shown here.</source>
        <translation>Diese Grafik ist zu groß, um hier gezeigt zu werden.</translation>
    </message>
    <message>
        <source>%1: rows or columns are missing.</source>
        <translation>%1: Zeilen oder Spalten fehlen.</translation>
    </message>
    <message>
        <source>%1: no tile has room.</source>
        <translation>%1: keine Kachel hat Platz.</translation>
    </message>
    <message>
        <source>%1: %2 and %3 of %4 × %5 pixels</source>
        <translation>%1: %2 und %3 von %4 × %5 Pixeln</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 Zeile</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 Zeilen</translation>
    </message>
    <message>
        <source>1 column</source>
        <translation>1 Spalte</translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation>%1 Spalten</translation>
    </message>
    <message>
        <source>There is no frame to save.</source>
        <translation>Es gibt kein Bild zu speichern.</translation>
    </message>
    <message>
        <source>The sheet can&apos;t be saved because it would be too large.</source>
        <translation>Der Bogen kann nicht gespeichert werden, weil er zu groß wäre.</translation>
    </message>
    <message>
        <source>Frames of %1</source>
        <translation>Bilder von %1</translation>
    </message>
    <message>
        <source>%1 frame of %2, at most %3 MB</source>
        <translation>%1 Bild von %2, höchstens %3 MB</translation>
    </message>
    <message>
        <source>%1 frames of %2, at most %3 MB</source>
        <translation>%1 Bilder von %2, höchstens %3 MB</translation>
    </message>
    <message>
        <source>Change Width</source>
        <translation>Breite ändern</translation>
    </message>
    <message>
        <source>Change Height</source>
        <translation>Höhe ändern</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Change Pause</source>
        <translation>Pause ändern</translation>
    </message>
    <message>
        <source>Pause length</source>
        <translation>Länge der Pause</translation>
    </message>
    <message>
        <source>Change Pause Length</source>
        <translation>Länge der Pause ändern</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Schleife</translation>
    </message>
    <message>
        <source>Change Loop</source>
        <translation>Schleife ändern</translation>
    </message>
    <message>
        <source>Loop count</source>
        <translation>Zahl der Wiederholungen</translation>
    </message>
    <message>
        <source>Change Loop Count</source>
        <translation>Zahl der Wiederholungen ändern</translation>
    </message>
    <message>
        <source>Background index</source>
        <translation>Hintergrundindex</translation>
    </message>
    <message>
        <source>Change Background Index</source>
        <translation>Hintergrundindex ändern</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparent</translation>
    </message>
    <message>
        <source>Change Transparency</source>
        <translation>Transparenz ändern</translation>
    </message>
    <message>
        <source>Transparent index</source>
        <translation>Transparenter Index</translation>
    </message>
    <message>
        <source>Change Transparent Index</source>
        <translation>Transparenten Index ändern</translation>
    </message>
    <message>
        <source>Dither</source>
        <translation>Dithering</translation>
    </message>
    <message>
        <source>Change Dither</source>
        <translation>Dithering ändern</translation>
    </message>
    <message>
        <source>XOffset</source>
        <translation>X-Versatz</translation>
    </message>
    <message>
        <source>Change X Offset</source>
        <translation>X-Versatz ändern</translation>
    </message>
    <message>
        <source>YOffset</source>
        <translation>Y-Versatz</translation>
    </message>
    <message>
        <source>Change Y Offset</source>
        <translation>Y-Versatz ändern</translation>
    </message>
    <message>
        <source>Change Frame Pause</source>
        <translation>Pause des Bildes ändern</translation>
    </message>
    <message>
        <source>Change Frame Pause Length</source>
        <translation>Pausenlänge des Bildes ändern</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Change Local Palette</source>
        <translation>Eigene Palette ändern</translation>
    </message>
    <message>
        <source>Status: loading tile %1 of %2...</source>
        <translation>Status: Kachel %1 von %2 wird geladen...</translation>
    </message>
    <message>
        <source>This file can&apos;t be inserted because this file type is unsupported: %1</source>
        <translation>Diese Datei kann nicht eingefügt werden, weil dieser Dateityp nicht unterstützt wird: %1</translation>
    </message>
    <message>
        <source>This file can&apos;t be inserted because the color space is unsupported.</source>
        <translation>Diese Datei kann nicht eingefügt werden, weil der Farbraum nicht unterstützt wird.</translation>
    </message>
    <message>
        <source>Status: generating frame %1 of %2...</source>
        <translation>Status: Bild %1 von %2 wird erzeugt...</translation>
    </message>
    <message>
        <source>These files can&apos;t be inserted because their types are unsupported:</source>
        <translation>Diese Dateien können nicht eingefügt werden, weil ihre Typen nicht unterstützt werden:</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Status: loading frame %1 of %2...</source>
        <translation>Status: Bild %1 von %2 wird geladen...</translation>
    </message>
    <message>
        <source>This frame can&apos;t be inserted because the number of rows or columns is illegal.</source>
        <translation>Dieses Bild kann nicht eingefügt werden, weil die Zahl der Zeilen oder Spalten unzulässig ist.</translation>
    </message>
    <message>
        <source>Status: cropping frame %1 of %2...</source>
        <translation>Status: Bild %1 von %2 wird zugeschnitten...</translation>
    </message>
    <message>
        <source>Status: fitting frame %1 of %2...</source>
        <translation>Status: Bild %1 von %2 wird eingepasst...</translation>
    </message>
    <message>
        <source>Status: drawing on frame %1 of %2...</source>
        <translation>Status: auf Bild %1 von %2 wird gezeichnet...</translation>
    </message>
    <message>
        <source>Status: resizing frame %1 of %2...</source>
        <translation>Status: Größe von Bild %1 von %2 wird geändert...</translation>
    </message>
    <message>
        <source>Status: turning frame %1 of %2...</source>
        <translation>Status: Bild %1 von %2 wird gedreht...</translation>
    </message>
    <message>
        <source>Status: writing frame %1 of %2...</source>
        <translation>Status: Bild %1 von %2 wird geschrieben...</translation>
    </message>
    <message>
        <source>Status: loading frame %1...</source>
        <translation>Status: Bild %1 wird geladen...</translation>
    </message>
    <message>
        <source>%1 can&apos;t be less than %2.</source>
        <translation>%1: nicht kleiner als %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be greater than %2.</source>
        <translation>%1: nicht größer als %2.</translation>
    </message>
    <message>
        <source>Frame count must be between 1 and 100.</source>
        <translation>Die Zahl der Bilder muss zwischen 1 und 100 liegen.</translation>
    </message>
    <message>
        <source>This value</source>
        <translation>Dieser Wert</translation>
    </message>
    <message>
        <source>You must enter a valid, absolute path and file name.</source>
        <translation>Sie müssen einen gültigen, absoluten Pfad mit Dateinamen eingeben.</translation>
    </message>
    <message>
        <source>You must enter a valid absolute path.</source>
        <translation>Sie müssen einen gültigen absoluten Pfad eingeben.</translation>
    </message>
    <message>
        <source>You must enter a color as #rrggbb.</source>
        <translation>Sie müssen eine Farbe als #rrggbb eingeben.</translation>
    </message>
    <message>
        <source>You must enter colors as #rrggbb, with blanks between them.</source>
        <translation>Sie müssen Farben als #rrggbb eingeben, mit Leerzeichen dazwischen.</translation>
    </message>
    <message>
        <source>The preset can&apos;t be kept under this name.</source>
        <translation>Unter diesem Namen kann die Auswahl nicht behalten werden.</translation>
    </message>
    <message>
        <source>Insert Tiled Frame</source>
        <translation>Kacheln als Bilder einfügen</translation>
    </message>
    <message>
        <source>Insert Frames</source>
        <translation>Bilder einfügen</translation>
    </message>
    <message>
        <source>Open Animation</source>
        <translation>Animation öffnen</translation>
    </message>
    <message>
        <source>A file named &quot;%1&quot; already exists. Do you want to replace it?</source>
        <translation>Eine Datei namens „%1“ gibt es schon. Möchten Sie sie ersetzen?</translation>
    </message>
    <message>
        <source>A file named &quot;%1&quot; already exists. Do you want to replace the files of this sequence?</source>
        <translation>Eine Datei namens „%1“ gibt es schon. Möchten Sie die Dateien dieser Folge ersetzen?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Save Animation</source>
        <translation>Animation speichern</translation>
    </message>
    <message>
        <source>Animated GIF</source>
        <translation>Animiertes GIF</translation>
    </message>
    <message>
        <source>%1 sequence</source>
        <translation>%1-Folge</translation>
    </message>
    <message>
        <source>Kirto v1.4
An editor for frame animations, by Morvik
https://kirto.example.org

Please send in bug reports and feature requests.

Thanks to all who shared their code for GIF files, and for a long conversation about dithering.</source>
        <translation>Kirto v1.4
Ein Editor für Bildanimationen, von Morvik
https://kirto.example.org

Bitte schicken Sie Fehlerberichte und Wünsche.

Dank an alle, die ihren Code für GIF-Dateien geteilt haben, und für ein langes Gespräch über Dithering.</translation>
    </message>
    <message>
        <source>Open Paletted File</source>
        <translation>Datei mit Palette öffnen</translation>
    </message>
    <message>
        <source>The preview was written, but no program to show it was found.</source>
        <translation>Die Vorschau wurde geschrieben, aber kein Programm gefunden, das sie zeigt.</translation>
    </message>
    <message>
        <source>Do you want all actions to have the keys again that they had at first?</source>
        <translation>Möchten Sie, dass alle Aktionen wieder die Tasten haben, die sie zuerst hatten?</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>The file could not be saved because the Targa translator is either missing or failed.</source>
        <translation>Die Datei konnte nicht gespeichert werden, weil der Targa-Übersetzer fehlt oder gescheitert ist.</translation>
    </message>
    <message>
        <source> %1 of %2 files were written.</source>
        <translation> %1 von %2 Dateien wurden geschrieben.</translation>
    </message>
    <message>
        <source>The sheet would be too large.</source>
        <translation>Der Bogen wäre zu groß.</translation>
    </message>
    <message>
        <source>There is nothing here that writes this image format.</source>
        <translation>Hier gibt es nichts, was dieses Bildformat schreibt.</translation>
    </message>
    <message>
        <source>The image can&apos;t be written in this format.</source>
        <translation>Das Bild kann nicht in diesem Format geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>UiText</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>Vorschaubild</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>Miscellaneous</source>
        <translation>Verschiedenes</translation>
    </message>
    <message>
        <source>Compatibility</source>
        <translation>Kompatibilität</translation>
    </message>
    <message>
        <source>Control Defaults</source>
        <translation>Vorgaben der Felder</translation>
    </message>
    <message>
        <source>Width in pixels:</source>
        <translation>Breite in Pixeln:</translation>
    </message>
    <message>
        <source>Height in pixels:</source>
        <translation>Höhe in Pixeln:</translation>
    </message>
    <message>
        <source>Pause this long between frames:</source>
        <translation>So lange Pause zwischen Bildern:</translation>
    </message>
    <message>
        <source>Loop this many times (0 is infinitely):</source>
        <translation>So oft wiederholen (0 ist endlos):</translation>
    </message>
    <message>
        <source>Other Settings</source>
        <translation>Weitere Einstellungen</translation>
    </message>
    <message>
        <source>Set size of animation from first frame inserted</source>
        <translation>Größe der Animation vom ersten eingefügten Bild übernehmen</translation>
    </message>
    <message>
        <source>Pause length should be measured in:</source>
        <translation>Die Länge von Pausen wird angegeben in:</translation>
    </message>
    <message>
        <source>Hundredths of a second (GIF standard)</source>
        <translation>Hundertstelsekunden (GIF-Standard)</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Mapping Defaults</source>
        <translation>Vorgaben der Farbzuordnung</translation>
    </message>
    <message>
        <source>The global palette should use:</source>
        <translation>Die Palette der Animation soll sein:</translation>
    </message>
    <message>
        <source>The web safe palette (standard 216 colors)</source>
        <translation>Die websichere Palette (216 Standardfarben)</translation>
    </message>
    <message>
        <source>The BeOS system palette (256 colors)</source>
        <translation>Die BeOS-Systempalette (256 Farben)</translation>
    </message>
    <message>
        <source>A greyscale palette (256 levels of grey)</source>
        <translation>Eine Graupalette (256 Graustufen)</translation>
    </message>
    <message>
        <source>A palette from:</source>
        <translation>Eine Palette aus:</translation>
    </message>
    <message>
        <source>Other Defaults</source>
        <translation>Weitere Vorgaben</translation>
    </message>
    <message>
        <source>Use dithering</source>
        <translation>Dithering verwenden</translation>
    </message>
    <message>
        <source>Background index:</source>
        <translation>Hintergrundindex:</translation>
    </message>
    <message>
        <source>Transparent index from global palette:</source>
        <translation>Transparenter Index der Palette:</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>When a frame is inserted, the thumbnail height:</source>
        <translation>Wird ein Bild eingefügt, soll die Höhe der Vorschaubilder:</translation>
    </message>
    <message>
        <source>Should be set to the full size of the first frame</source>
        <translation>Die volle Größe des ersten Bildes haben</translation>
    </message>
    <message>
        <source>Should be set to half the size of the first frame</source>
        <translation>Die halbe Größe des ersten Bildes haben</translation>
    </message>
    <message>
        <source>Should be set to this value:</source>
        <translation>Diesen Wert haben:</translation>
    </message>
    <message>
        <source>Should not change</source>
        <translation>Sich nicht ändern</translation>
    </message>
    <message>
        <source>Maximum thumbnail height:</source>
        <translation>Größte Höhe der Vorschaubilder:</translation>
    </message>
    <message>
        <source>Minimum thumbnail height:</source>
        <translation>Kleinste Höhe der Vorschaubilder:</translation>
    </message>
    <message>
        <source>Draw frames with transparency</source>
        <translation>Bilder mit Transparenz zeichnen</translation>
    </message>
    <message>
        <source>Advanced GIF Settings</source>
        <translation>Erweiterte GIF-Einstellungen</translation>
    </message>
    <message>
        <source>After each frame, the GIF decoder should:</source>
        <translation>Nach jedem Bild soll der GIF-Dekoder:</translation>
    </message>
    <message>
        <source>Take no action (default)</source>
        <translation>Nichts tun (Vorgabe)</translation>
    </message>
    <message>
        <source>Leave the current frame</source>
        <translation>Das Bild stehen lassen</translation>
    </message>
    <message>
        <source>Restore the background color</source>
        <translation>Die Hintergrundfarbe wiederherstellen</translation>
    </message>
    <message>
        <source>Restore the previous frame (rarely supported)</source>
        <translation>Das vorige Bild wiederherstellen (selten unterstützt)</translation>
    </message>
    <message>
        <source>Write interlaced frames</source>
        <translation>Bilder mit Zeilensprung schreiben</translation>
    </message>
    <message>
        <source>Write &quot;Made with Kirto on BeOS&quot; comment</source>
        <translation>Kommentar „Made with Kirto on BeOS“ schreiben</translation>
    </message>
    <message>
        <source>If the animation uses delta compression, assemble each frame</source>
        <translation>Jedes Bild zusammensetzen, wenn die Animation nur Änderungen enthält</translation>
    </message>
    <message>
        <source>On startup, use:</source>
        <translation>Beim Start zeigen:</translation>
    </message>
    <message>
        <source>Thumbnail mode</source>
        <translation>Vorschaubilder</translation>
    </message>
    <message>
        <source>Frame list mode</source>
        <translation>Bilderliste</translation>
    </message>
    <message>
        <source>Save and restore main window size and position</source>
        <translation>Größe und Lage des Hauptfensters merken</translation>
    </message>
    <message>
        <source>Write temporary files to:</source>
        <translation>Temporäre Dateien schreiben nach:</translation>
    </message>
    <message>
        <source>Browsers</source>
        <translation>Browser</translation>
    </message>
    <message>
        <source>Read and save as browsers show it</source>
        <translation>Lesen und speichern, wie Browser es zeigen</translation>
    </message>
    <message>
        <source>Frames of more than 256 colors are saved then</source>
        <translation>Bilder mit mehr als 256 Farben werden dann gespeichert</translation>
    </message>
    <message>
        <source>Without dithering</source>
        <translation>Ohne Dithering</translation>
    </message>
    <message>
        <source>Dithered as best suits each frame (Floyd-Steinberg)</source>
        <translation>Gedithert, wie es jedem Bild am besten steht (Floyd-Steinberg)</translation>
    </message>
    <message>
        <source>Dithered so that what stands still does not flicker</source>
        <translation>So gedithert, dass nichts flimmert, was still steht</translation>
    </message>
    <message>
        <source>In the same colors for all frames</source>
        <translation>Mit denselben Farben in allen Bildern</translation>
    </message>
    <message>
        <source>Keep these colors:</source>
        <translation>Diese Farben behalten:</translation>
    </message>
    <message>
        <source>Lay soft edges on:</source>
        <translation>Weiche Kanten legen auf:</translation>
    </message>
    <message>
        <source>Transparent below alpha:</source>
        <translation>Transparent unterhalb von Alpha:</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Pick from &amp;Screen</source>
        <translation>Vom Bild&amp;schirm nehmen</translation>
    </message>
    <message>
        <source>Takes the color that is clicked next, anywhere on the screen</source>
        <translation>Nimmt die Farbe, auf die als Nächstes irgendwo auf dem Bildschirm geklickt wird</translation>
    </message>
    <message>
        <source>This desktop lets no program see the screen</source>
        <translation>Auf diesem Desktop darf kein Programm den Bildschirm sehen</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Color %1, %2, %3 pixels</source>
        <translation>Farbe %1, %2, %3 Pixel</translation>
    </message>
    <message>
        <source>, background</source>
        <translation>, Hintergrund</translation>
    </message>
    <message>
        <source>, transparent</source>
        <translation>, transparent</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Colors of:</source>
        <translation>Farben:</translation>
    </message>
    <message>
        <source>current frame</source>
        <translation>des aktuellen Bildes</translation>
    </message>
    <message>
        <source>all frames</source>
        <translation>aller Bilder</translation>
    </message>
    <message>
        <source>All frames are those without a palette of their own</source>
        <translation>Alle Bilder sind die ohne eigene Palette</translation>
    </message>
    <message>
        <source>Sorted by:</source>
        <translation>Sortiert nach:</translation>
    </message>
    <message>
        <source>index</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>use</source>
        <translation>Verwendung</translation>
    </message>
    <message>
        <source>Use is the number of pixels that have the color</source>
        <translation>Verwendung ist die Zahl der Pixel mit der Farbe</translation>
    </message>
    <message>
        <source>A click:</source>
        <translation>Ein Klick:</translation>
    </message>
    <message>
        <source>only tells</source>
        <translation>gibt nur Auskunft</translation>
    </message>
    <message>
        <source>makes it the background</source>
        <translation>macht sie zum Hintergrund</translation>
    </message>
    <message>
        <source>makes it transparent</source>
        <translation>macht sie transparent</translation>
    </message>
    <message>
        <source>What a click or the Enter key does with a color</source>
        <translation>Was ein Klick oder die Eingabetaste mit einer Farbe tut</translation>
    </message>
    <message>
        <source>Fade Effects</source>
        <translation>Überblendung</translation>
    </message>
    <message>
        <source>to an rgb color</source>
        <translation>zu einer RGB-Farbe</translation>
    </message>
    <message>
        <source>from an rgb color</source>
        <translation>von einer RGB-Farbe</translation>
    </message>
    <message>
        <source>to next frame</source>
        <translation>zum nächsten Bild</translation>
    </message>
    <message>
        <source>from previous frame</source>
        <translation>vom vorigen Bild</translation>
    </message>
    <message>
        <source>What to blend the current frame with</source>
        <translation>Womit das aktuelle Bild überblendet wird</translation>
    </message>
    <message>
        <source>The number of new frames, from 1 to 100</source>
        <translation>Die Zahl der neuen Bilder, von 1 bis 100</translation>
    </message>
    <message>
        <source>The color to fade to or from</source>
        <translation>Die Farbe am Ende oder am Anfang der Überblendung</translation>
    </message>
    <message>
        <source>Blends the current frame alone, whatever else is selected.</source>
        <translation>Überblendet nur das aktuelle Bild, was auch sonst ausgewählt ist.</translation>
    </message>
    <message>
        <source>Fade mode:</source>
        <translation>Art der Überblendung:</translation>
    </message>
    <message>
        <source>Frame count:</source>
        <translation>Zahl der Bilder:</translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation>Vorschau:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>C&amp;hoose...</source>
        <translation>&amp;Wählen...</translation>
    </message>
    <message>
        <source>Works on the %1 selected frames.</source>
        <translation>Wirkt auf die %1 ausgewählten Bilder.</translation>
    </message>
    <message>
        <source>Works on all %1 frames, since only one is selected.</source>
        <translation>Wirkt auf alle %1 Bilder, da nur eines ausgewählt ist.</translation>
    </message>
    <message>
        <source>&amp;Frames:</source>
        <translation>&amp;Bilder:</translation>
    </message>
    <message>
        <source>Select Every Nth</source>
        <translation>Jedes n-te auswählen</translation>
    </message>
    <message>
        <source>Selects among all frames. The first frame is frame 0.</source>
        <translation>Wählt unter allen Bildern aus. Das erste Bild ist Bild 0.</translation>
    </message>
    <message>
        <source>&amp;Beginning with frame:</source>
        <translation>&amp;Beginnend mit Bild:</translation>
    </message>
    <message>
        <source>&amp;Every:</source>
        <translation>&amp;Jedes:</translation>
    </message>
    <message>
        <source>Select Range</source>
        <translation>Bereich auswählen</translation>
    </message>
    <message>
        <source>Frames are numbered from 0 to %1, or from the end: the last is -1. Examples: 3-7, 0-20/2 for every second one, 0,4,7, all.</source>
        <translation>Bilder sind von 0 bis %1 nummeriert, oder vom Ende her: das letzte ist -1. Beispiele: 3-7, 0-20/2 für jedes zweite, 0,4,7, all.</translation>
    </message>
    <message>
        <source>Go to Frame</source>
        <translation>Gehe zu Bild</translation>
    </message>
    <message>
        <source>Makes a frame the current one. They are numbered from 0 to %1.</source>
        <translation>Macht ein Bild zum aktuellen. Sie sind von 0 bis %1 nummeriert.</translation>
    </message>
    <message>
        <source>&amp;Frame:</source>
        <translation>&amp;Bild:</translation>
    </message>
    <message>
        <source>Drop Every Nth</source>
        <translation>Jedes n-te weglassen</translation>
    </message>
    <message>
        <source> The frame before each one that goes is shown for as long as both were.</source>
        <translation> Das Bild vor jedem, das geht, ist so lange zu sehen wie beide zusammen.</translation>
    </message>
    <message>
        <source>&amp;Drop every:</source>
        <translation>&amp;Weglassen jedes:</translation>
    </message>
    <message>
        <source>Remove Duplicates</source>
        <translation>Duplikate entfernen</translation>
    </message>
    <message>
        <source> A frame that shows what the one before shows is removed, and its pause added to that one.</source>
        <translation> Ein Bild, das dasselbe zeigt wie das vor ihm, wird entfernt und seine Pause dem anderen zugeschlagen.</translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation>&amp;Toleranz:</translation>
    </message>
    <message>
        <source>By how much red, green and blue of a pixel may differ; 0: not at all</source>
        <translation>Um wie viel sich Rot, Grün und Blau eines Pixels unterscheiden dürfen; 0: gar nicht</translation>
    </message>
    <message>
        <source>Move To</source>
        <translation>Verschieben nach</translation>
    </message>
    <message>
        <source>Frames are numbered from 0 to %1; %2 is behind the last. Both at once: 3-7&gt;12.</source>
        <translation>Bilder sind von 0 bis %1 nummeriert; %2 ist hinter dem letzten. Beides auf einmal: 3-7&gt;12.</translation>
    </message>
    <message>
        <source>&amp;Before frame:</source>
        <translation>&amp;Vor Bild:</translation>
    </message>
    <message>
        <source>Set Pause</source>
        <translation>Pause setzen</translation>
    </message>
    <message>
        <source>In milliseconds (40ms), frames per second (15fps), percent of what it is (150%), or without a unit in %1. Browsers play pauses below 20ms slower.</source>
        <translation>In Millisekunden (40ms), Bildern pro Sekunde (15fps), Prozent des jetzigen Werts (150%) oder ohne Einheit in %1. Browser spielen Pausen unter 20ms langsamer ab.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>hundredths of a second</source>
        <translation>Hundertstelsekunden</translation>
    </message>
    <message>
        <source>&amp;Pause:</source>
        <translation>&amp;Pause:</translation>
    </message>
    <message>
        <source>Of the %1 &amp;selected frames</source>
        <translation>Der %1 au&amp;sgewählten Bilder</translation>
    </message>
    <message>
        <source>Of the &amp;current frame</source>
        <translation>Des a&amp;ktuellen Bildes</translation>
    </message>
    <message>
        <source>Of &amp;all %1 frames</source>
        <translation>&amp;Aller %1 Bilder</translation>
    </message>
    <message>
        <source>Also frames with a pause of their &amp;own</source>
        <translation>Auch Bilder mit &amp;eigener Pause</translation>
    </message>
    <message>
        <source>any</source>
        <translation>beliebig</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>&amp;Links:</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>&amp;Oben:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Breite:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>&amp;Ratio:</source>
        <translation>&amp;Verhältnis:</translation>
    </message>
    <message>
        <source>Trim Transparent &amp;Edges</source>
        <translation>Transparente &amp;Ränder abschneiden</translation>
    </message>
    <message>
        <source>Trim to &amp;Changes</source>
        <translation>Auf Ä&amp;nderungen zuschneiden</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>Works on all frames and the canvas. Draw a rectangle on the picture, or type where it is.</source>
        <translation>Wirkt auf alle Bilder und die Zeichenfläche. Ziehen Sie auf dem Bild ein Rechteck auf, oder geben Sie ein, wo es liegt.</translation>
    </message>
    <message>
        <source>the %1 selected frames</source>
        <translation>die %1 ausgewählten Bilder</translation>
    </message>
    <message>
        <source>the current frame</source>
        <translation>das aktuelle Bild</translation>
    </message>
    <message>
        <source>Make Transparent</source>
        <translation>Transparent machen</translation>
    </message>
    <message>
        <source>Works on %1. Click on the color in the picture, or type it.</source>
        <translation>Wirkt auf %1. Klicken Sie im Bild auf die Farbe, oder geben Sie sie ein.</translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation>&amp;Farbe:</translation>
    </message>
    <message>
        <source>Works on all frames and the canvas.</source>
        <translation>Wirkt auf alle Bilder und die Zeichenfläche.</translation>
    </message>
    <message>
        <source>nearest: keeps pixels as they are</source>
        <translation>nächster Nachbar: lässt Pixel, wie sie sind</translation>
    </message>
    <message>
        <source>bilinear: soft</source>
        <translation>bilinear: weich</translation>
    </message>
    <message>
        <source>Lanczos: sharp</source>
        <translation>Lanczos: scharf</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>oben links</translation>
    </message>
    <message>
        <source>top</source>
        <translation>oben</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>oben rechts</translation>
    </message>
    <message>
        <source>left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>unten links</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>unten</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>unten rechts</translation>
    </message>
    <message>
        <source>Works on the current frame, the only one that is selected.</source>
        <translation>Wirkt auf das aktuelle Bild, das als einziges ausgewählt ist.</translation>
    </message>
    <message>
        <source>Resize Animation</source>
        <translation>Größe der Animation ändern</translation>
    </message>
    <message>
        <source>&amp;Percent:</source>
        <translation>&amp;Prozent:</translation>
    </message>
    <message>
        <source>&amp;Keep the ratio</source>
        <translation>&amp;Verhältnis beibehalten</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>&amp;Filter:</translation>
    </message>
    <message>
        <source>Canvas Size</source>
        <translation>Zeichenfläche</translation>
    </message>
    <message>
        <source>Works on all frames. Pictures keep their size; what a smaller canvas has no room for is cut off.</source>
        <translation>Wirkt auf alle Bilder. Bilder behalten ihre Größe; wofür eine kleinere Zeichenfläche keinen Platz hat, wird abgeschnitten.</translation>
    </message>
    <message>
        <source>&amp;Pictures stay at:</source>
        <translation>Bilder b&amp;leiben:</translation>
    </message>
    <message>
        <source>scaled to the canvas</source>
        <translation>auf die Zeichenfläche skaliert</translation>
    </message>
    <message>
        <source>padded to the canvas</source>
        <translation>auf die Zeichenfläche erweitert</translation>
    </message>
    <message>
        <source>cropped to the canvas</source>
        <translation>auf die Zeichenfläche zugeschnitten</translation>
    </message>
    <message>
        <source>Fit Frames to Animation</source>
        <translation>Bilder an die Animation anpassen</translation>
    </message>
    <message>
        <source>Pictures are &amp;to be:</source>
        <translation>Bilder &amp;werden:</translation>
    </message>
    <message>
        <source>Adjust Colors</source>
        <translation>Farben anpassen</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Helligkeit:</translation>
    </message>
    <message>
        <source>&amp;Contrast:</source>
        <translation>&amp;Kontrast:</translation>
    </message>
    <message>
        <source>&amp;Saturation:</source>
        <translation>&amp;Sättigung:</translation>
    </message>
    <message>
        <source>&amp;Greyscale</source>
        <translation>&amp;Graustufen</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>&amp;Opacity in percent:</source>
        <translation>&amp;Deckkraft in Prozent:</translation>
    </message>
    <message>
        <source>Overlay Image</source>
        <translation>Bild darüberlegen</translation>
    </message>
    <message>
        <source>&amp;Image:</source>
        <translation>&amp;Bild:</translation>
    </message>
    <message>
        <source>&amp;X offset:</source>
        <translation>&amp;X-Versatz:</translation>
    </message>
    <message>
        <source>&amp;Y offset:</source>
        <translation>&amp;Y-Versatz:</translation>
    </message>
    <message>
        <source>Writes the %1 selected frames side by side into one PNG image, and a JSON text beside it that says where each is.</source>
        <translation>Schreibt die %1 ausgewählten Bilder nebeneinander in ein PNG-Bild und dazu einen JSON-Text, der sagt, wo jedes liegt.</translation>
    </message>
    <message>
        <source>Writes the %1 frames side by side into one PNG image, and a JSON text beside it that says where each is.</source>
        <translation>Schreibt die %1 Bilder nebeneinander in ein PNG-Bild und dazu einen JSON-Text, der sagt, wo jedes liegt.</translation>
    </message>
    <message>
        <source>Export Sheet</source>
        <translation>Bogen exportieren</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>&amp;Spalten:</translation>
    </message>
    <message>
        <source>as many as rows</source>
        <translation>so viele wie Zeilen</translation>
    </message>
    <message>
        <source>&amp;Padding in pixels:</source>
        <translation>&amp;Abstand in Pixeln:</translation>
    </message>
    <message>
        <source>Sides are powers of &amp;two</source>
        <translation>Seiten sind &amp;Zweierpotenzen</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Text:</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>Sch&amp;rift:</translation>
    </message>
    <message>
        <source>&amp;Size in pixels:</source>
        <translation>&amp;Größe in Pixeln:</translation>
    </message>
    <message>
        <source>&amp;Outline in pixels:</source>
        <translation>&amp;Umriss in Pixeln:</translation>
    </message>
    <message>
        <source>Out&amp;line color:</source>
        <translation>Farbe des Umr&amp;isses:</translation>
    </message>
    <message>
        <source>Frames to fade &amp;in:</source>
        <translation>Bilder zum &amp;Einblenden:</translation>
    </message>
    <message>
        <source>Frames to fade o&amp;ut:</source>
        <translation>Bilder zum &amp;Ausblenden:</translation>
    </message>
    <message>
        <source>Draws on the %1 selected frames.</source>
        <translation>Zeichnet auf die %1 ausgewählten Bilder.</translation>
    </message>
    <message>
        <source>Draws on the current frame, the only one that is selected.</source>
        <translation>Zeichnet auf das aktuelle Bild, das als einziges ausgewählt ist.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source> Click on the picture where it is to begin.</source>
        <translation> Klicken Sie im Bild dorthin, wo er beginnen soll.</translation>
    </message>
    <message>
        <source>Insert Video</source>
        <translation>Video einfügen</translation>
    </message>
    <message>
        <source>Makes frames of a part of the video &quot;%1&quot;. Draw a rectangle on the picture to cut it.</source>
        <translation>Macht Bilder aus einem Teil des Videos „%1“. Ziehen Sie auf dem Bild ein Rechteck auf, um es zuzuschneiden.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Pla&amp;y</source>
        <translation>Abs&amp;pielen</translation>
    </message>
    <message>
        <source>Reading the video...</source>
        <translation>Das Video wird gelesen...</translation>
    </message>
    <message>
        <source>Frames a &amp;second:</source>
        <translation>Bilder pro &amp;Sekunde:</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Von:</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>B&amp;is:</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Width of the cut</source>
        <translation>Breite des Ausschnitts</translation>
    </message>
    <message>
        <source>Height of the cut</source>
        <translation>Höhe des Ausschnitts</translation>
    </message>
    <message>
        <source>C&amp;ut (x, y, w, h):</source>
        <translation>A&amp;usschnitt (x, y, b, h):</translation>
    </message>
    <message>
        <source>This part is not in the video.</source>
        <translation>Dieser Teil ist nicht im Video.</translation>
    </message>
    <message>
        <source> The smallest that was tried has %1.</source>
        <translation> Das Kleinste, was versucht wurde, hat %1.</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>Ent&amp;fernen</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>E&amp;xportieren...</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>&amp;Preset:</source>
        <translation>&amp;Auswahl:</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Keep &amp;As...</source>
        <translation>&amp;Behalten als...</translation>
    </message>
    <message>
        <source>Keep Preset</source>
        <translation>Auswahl behalten</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Working...</source>
        <translation>In Arbeit...</translation>
    </message>
    <message>
        <source>No file</source>
        <translation>Keine Datei</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Bytes</translation>
    </message>
    <message>
        <source>With </source>
        <translation>Mit </translation>
    </message>
    <message>
        <source>Export As</source>
        <translation>Exportieren als</translation>
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
        <translation>Animiertes PNG</translation>
    </message>
    <message>
        <source>MP4 video</source>
        <translation>MP4-Video</translation>
    </message>
    <message>
        <source>WebM video</source>
        <translation>WebM-Video</translation>
    </message>
    <message>
        <source>F&amp;ormat:</source>
        <translation>F&amp;ormat:</translation>
    </message>
    <message>
        <source>&amp;Colors:</source>
        <translation>Fa&amp;rben:</translation>
    </message>
    <message>
        <source>The same colors in all fra&amp;mes</source>
        <translation>In allen Bildern &amp;dieselben Farben</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keines</translation>
    </message>
    <message>
        <source>diffusion</source>
        <translation>Fehlerverteilung</translation>
    </message>
    <message>
        <source>ordered</source>
        <translation>geordnet</translation>
    </message>
    <message>
        <source>&amp;Dither:</source>
        <translation>Di&amp;thering:</translation>
    </message>
    <message>
        <source>&amp;Loss:</source>
        <translation>&amp;Verlust:</translation>
    </message>
    <message>
        <source>&amp;Keep every pixel</source>
        <translation>Jedes Pixel be&amp;halten</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>&amp;Qualität:</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>&amp;Skalierung:</translation>
    </message>
    <message>
        <source>&amp;Every n-th frame:</source>
        <translation>Jedes &amp;n-te Bild:</translation>
    </message>
    <message>
        <source>Fit &amp;under</source>
        <translation>Passend &amp;unter</translation>
    </message>
    <message>
        <source>Fit under</source>
        <translation>Passend unter</translation>
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
        <translation>E-Mail 1 MB</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Dokumentation</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Number of rows of tiles in the image</source>
        <translation>Zahl der Zeilen von Kacheln im Bild</translation>
    </message>
    <message>
        <source>Number of columns of tiles in the image</source>
        <translation>Zahl der Spalten von Kacheln im Bild</translation>
    </message>
    <message>
        <source>Row by row</source>
        <translation>Zeile für Zeile</translation>
    </message>
    <message>
        <source>Column by column</source>
        <translation>Spalte für Spalte</translation>
    </message>
    <message>
        <source>Rows:</source>
        <translation>Zeilen:</translation>
    </message>
    <message>
        <source>Columns:</source>
        <translation>Spalten:</translation>
    </message>
    <message>
        <source>Size of a tile in pixels, in place of rows and columns; 0: by rows and columns. Width, height and spacing may be typed at once: 64x48+2, or 64+2 for squares</source>
        <translation>Größe einer Kachel in Pixeln, anstelle von Zeilen und Spalten; 0: nach Zeilen und Spalten. Breite, Höhe und Abstand lassen sich auf einmal eingeben: 64x48+2, oder 64+2 für Quadrate</translation>
    </message>
    <message>
        <source>Tile &amp;width:</source>
        <translation>Kachel&amp;breite:</translation>
    </message>
    <message>
        <source>Tile &amp;height:</source>
        <translation>Kachel&amp;höhe:</translation>
    </message>
    <message>
        <source>&amp;Margin:</source>
        <translation>&amp;Rand:</translation>
    </message>
    <message>
        <source>Pixels around all tiles</source>
        <translation>Pixel um alle Kacheln herum</translation>
    </message>
    <message>
        <source>&amp;Spacing:</source>
        <translation>A&amp;bstand:</translation>
    </message>
    <message>
        <source>Pixels between two tiles</source>
        <translation>Pixel zwischen zwei Kacheln</translation>
    </message>
    <message>
        <source>Skip &amp;empty tiles</source>
        <translation>&amp;Leere Kacheln auslassen</translation>
    </message>
    <message>
        <source>Makes no frames of tiles that are transparent everywhere</source>
        <translation>Macht keine Bilder aus Kacheln, die überall transparent sind</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format:</translation>
    </message>
    <message>
        <source>One animation, or one image file per frame</source>
        <translation>Eine Animation oder eine Bilddatei je Bild</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Einstellungen...</translation>
    </message>
    <message>
        <source>Options of the chosen format</source>
        <translation>Optionen des gewählten Formats</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Bogen</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Kompression</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Verlustfrei</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>Lauflängenkodierung</translation>
    </message>
    <message>
        <source>Translator Settings</source>
        <translation>Einstellungen des Übersetzers</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Anleitung</translation>
    </message>
    <message>
        <source>Kirto - Guide</source>
        <translation>Kirto - Anleitung</translation>
    </message>
    <message>
        <source>The page &quot;%1&quot; is not part of the installed guide.</source>
        <translation>Die Seite „%1“ gehört nicht zur installierten Anleitung.</translation>
    </message>
    <message>
        <source>The guide is not installed with this program.</source>
        <translation>Mit diesem Programm ist keine Anleitung installiert.</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>The first page</source>
        <translation>Die erste Seite</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>The page before this one (Alt+Left)</source>
        <translation>Die Seite davor (Alt+Links)</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Vor</translation>
    </message>
    <message>
        <source>The page after it (Alt+Right)</source>
        <translation>Die Seite danach (Alt+Rechts)</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>S&amp;uchen:</translation>
    </message>
    <message>
        <source>Find on this page</source>
        <translation>Auf dieser Seite suchen</translation>
    </message>
    <message>
        <source>Finds a text on this page; Return finds the next place</source>
        <translation>Sucht einen Text auf dieser Seite; die Eingabetaste findet die nächste Stelle</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not on this page.</source>
        <translation>„%1“ steht nicht auf dieser Seite.</translation>
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
        <translation>Was die Pause in anderen Einheiten ist</translation>
    </message>
    <message>
        <source>, %1 fps</source>
        <translation>, %L1 Bilder/s</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>mixed</source>
        <translation>gemischt</translation>
    </message>
    <message>
        <source>Width of the animation in pixels</source>
        <translation>Breite der Animation in Pixeln</translation>
    </message>
    <message>
        <source>Height of the animation in pixels</source>
        <translation>Höhe der Animation in Pixeln</translation>
    </message>
    <message>
        <source>Pause after every frame that has no pause of its own</source>
        <translation>Pause nach jedem Bild, das keine eigene hat</translation>
    </message>
    <message>
        <source>Use pause:</source>
        <translation>Pause:</translation>
    </message>
    <message>
        <source>Length of the pause, in the unit chosen in the preferences</source>
        <translation>Länge der Pause, in der Einheit aus den Einstellungen</translation>
    </message>
    <message>
        <source>Play the animation more than once</source>
        <translation>Die Animation mehr als einmal abspielen</translation>
    </message>
    <message>
        <source>Use loop:</source>
        <translation>Schleife:</translation>
    </message>
    <message>
        <source>How many times to play the animation; 0 = forever</source>
        <translation>Wie oft die Animation abgespielt wird; 0 = endlos</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message numerus="yes">
        <source>1 color</source>
        <comment>%n colors</comment>
        <translation>
            <numerusform>%n Farbe</numerusform>
            <numerusform>%n Farben</numerusform>
        </translation>
    </message>
    <message>
        <source>Current Frame</source>
        <translation>Aktuelles Bild</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keines</translation>
    </message>
    <message>
        <source>Distance of the frame from the animation&apos;s left edge, in pixels</source>
        <translation>Abstand des Bildes vom linken Rand der Animation, in Pixeln</translation>
    </message>
    <message>
        <source>X offset:</source>
        <translation>X-Versatz:</translation>
    </message>
    <message>
        <source>Distance of the frame from the animation&apos;s top edge, in pixels</source>
        <translation>Abstand des Bildes vom oberen Rand der Animation, in Pixeln</translation>
    </message>
    <message>
        <source>Y offset:</source>
        <translation>Y-Versatz:</translation>
    </message>
    <message>
        <source>Give the frame a pause of its own</source>
        <translation>Dem Bild eine eigene Pause geben</translation>
    </message>
    <message>
        <source>Use pause</source>
        <translation>Eigene Pause</translation>
    </message>
    <message>
        <source>Length of the frame&apos;s pause, in the unit chosen in the preferences</source>
        <translation>Länge der Pause des Bildes, in der Einheit aus den Einstellungen</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Länge:</translation>
    </message>
    <message>
        <source>Save the frame with a palette of its own</source>
        <translation>Das Bild mit einer eigenen Palette speichern</translation>
    </message>
    <message>
        <source>Local palette</source>
        <translation>Eigene Palette</translation>
    </message>
    <message>
        <source>BeOS system</source>
        <translation>BeOS-System</translation>
    </message>
    <message>
        <source>web safe</source>
        <translation>websicher</translation>
    </message>
    <message>
        <source>greyscale</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>optimal</source>
        <translation>optimal</translation>
    </message>
    <message>
        <source>from a file</source>
        <translation>aus einer Datei</translation>
    </message>
    <message>
        <source>The colors of the frame&apos;s own palette</source>
        <translation>Die Farben der eigenen Palette des Bildes</translation>
    </message>
    <message>
        <source>Local palette colors</source>
        <translation>Farben der eigenen Palette</translation>
    </message>
    <message>
        <source>Frame list</source>
        <translation>Bilderliste</translation>
    </message>
    <message>
        <source>Show the frames as pictures</source>
        <translation>Die Bilder als Vorschaubilder zeigen</translation>
    </message>
    <message>
        <source>Show the frames as a list, with a preview of the current one</source>
        <translation>Die Bilder als Liste zeigen, mit einer Vorschau des aktuellen</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Palette:</source>
        <translation>Palette:</translation>
    </message>
    <message>
        <source>first frame</source>
        <translation>erstes Bild</translation>
    </message>
    <message>
        <source>The colors used to save all frames that have no palette of their own</source>
        <translation>Die Farben, mit denen alle Bilder ohne eigene Palette gespeichert werden</translation>
    </message>
    <message>
        <source>Mapping:</source>
        <translation>Zuordnung:</translation>
    </message>
    <message>
        <source>Approximate missing colors by dithering</source>
        <translation>Fehlende Farben durch Dithering annähern</translation>
    </message>
    <message>
        <source>Palette index of the background color</source>
        <translation>Palettenindex der Hintergrundfarbe</translation>
    </message>
    <message>
        <source>Make one color of the palette transparent</source>
        <translation>Eine Farbe der Palette transparent machen</translation>
    </message>
    <message>
        <source>Transparent index:</source>
        <translation>Transparenter Index:</translation>
    </message>
    <message>
        <source>Palette index of the transparent color</source>
        <translation>Palettenindex der transparenten Farbe</translation>
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
        <translation>Status: 0 Bild(er), unverändert</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Stops what is being done; what is complete is kept</source>
        <translation>Hält an, was gerade getan wird; was fertig ist, bleibt</translation>
    </message>
    <message>
        <source>Status: %1 frame(s), %2</source>
        <translation>Status: %1 Bild(er), %2</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>unmodified</source>
        <translation>unverändert</translation>
    </message>
    <message>
        <source>%1 in memory</source>
        <translation>%1 im Speicher</translation>
    </message>
    <message>
        <source>The size of the file is not known yet.</source>
        <translation>Die Größe der Datei ist noch nicht bekannt.</translation>
    </message>
    <message>
        <source>file %1</source>
        <translation>Datei %1</translation>
    </message>
    <message>
        <source>file about %1</source>
        <translation>Datei etwa %1</translation>
    </message>
    <message>
        <source>Saved as a GIF file, it has %1 bytes.</source>
        <translation>Als GIF-Datei gespeichert hat sie %1 Bytes.</translation>
    </message>
    <message>
        <source>Saved as a GIF file, it has about %1 bytes.</source>
        <translation>Als GIF-Datei gespeichert hat sie etwa %1 Bytes.</translation>
    </message>
    <message>
        <source>The animation and what can be undone take %1.</source>
        <translation>Die Animation und was sich rückgängig machen lässt brauchen %1.</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%L1 s</translation>
    </message>
    <message>
        <source>%1 of %2 selected, %3 s of %4</source>
        <translation>%1 von %2 ausgewählt, %L3 s von %4</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>How large pixels are shown</source>
        <translation>Wie groß Pixel gezeigt werden</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>As large as fits</source>
        <translation>So groß, wie es passt</translation>
    </message>
    <message>
        <source>In its own size</source>
        <translation>In eigener Größe</translation>
    </message>
    <message>
        <source>Onion skin</source>
        <translation>Zwiebelschale</translation>
    </message>
    <message>
        <source>Let the frames beside this one be seen through it</source>
        <translation>Die Bilder neben diesem hindurchscheinen lassen</translation>
    </message>
    <message>
        <source>No onion skin</source>
        <translation>Keine Zwiebelschale</translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation>Voriges Bild</translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation>Nächstes Bild</translation>
    </message>
    <message>
        <source>Both frames</source>
        <translation>Beide Bilder</translation>
    </message>
    <message>
        <source>Opacity of the onion skin</source>
        <translation>Deckkraft der Zwiebelschale</translation>
    </message>
    <message>
        <source>How much of the frames beside this one is seen</source>
        <translation>Wie viel von den Bildern neben diesem zu sehen ist</translation>
    </message>
    <message>
        <source>Saved colors</source>
        <translation>Gespeicherte Farben</translation>
    </message>
    <message>
        <source>Show the frame with the colors that a GIF file will have</source>
        <translation>Das Bild mit den Farben zeigen, die eine GIF-Datei haben wird</translation>
    </message>
    <message>
        <source>no frame</source>
        <translation>kein Bild</translation>
    </message>
    <message>
        <source>transparent</source>
        <translation>transparent</translation>
    </message>
    <message>
        <source>, alpha %1</source>
        <translation>, Alpha %1</translation>
    </message>
    <message>
        <source>, index %1</source>
        <translation>, Index %1</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>Bild %1</translation>
    </message>
    <message>
        <source>To the start</source>
        <translation>Zum Anfang</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>To the end</source>
        <translation>Zum Ende</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Wiederholung</translation>
    </message>
    <message>
        <source>How often the animation is played</source>
        <translation>Wie oft die Animation abgespielt wird</translation>
    </message>
    <message>
        <source>As saved</source>
        <translation>Wie gespeichert</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Immer</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>Einmal</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>How many times as fast as the animation says</source>
        <translation>Wievielmal so schnell, wie die Animation sagt</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Play the selected frames only</source>
        <translation>Nur die ausgewählten Bilder abspielen</translation>
    </message>
    <message>
        <source>Like a browser</source>
        <translation>Wie ein Browser</translation>
    </message>
    <message>
        <source>Show frames for 0.10 s whose pause is below 0.02 s, as browsers do</source>
        <translation>Bilder mit Pausen unter 0,02 s für 0,10 s zeigen, wie Browser es tun</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>#%1 of %2, %3 s of %4 s</source>
        <translation>#%1 von %2, %3 s von %4 s</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Anleitung</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts...</source>
        <translation>&amp;Tastenkürzel...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Über Kirto...</translation>
    </message>
    <message>
        <source>Kirto - untitled</source>
        <translation>Kirto - untitled</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>A&amp;bout...</source>
        <translation>Über &amp;Kirto...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Aus&amp;schneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Ein&amp;fügen</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>&amp;Move To...</source>
        <translation>Verschieben &amp;nach...</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alle auswählen</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>K&amp;eines auswählen</translation>
    </message>
    <message>
        <source>&amp;Invert Selection</source>
        <translation>Auswahl &amp;umkehren</translation>
    </message>
    <message>
        <source>Select &amp;Every Nth...</source>
        <translation>&amp;Jedes n-te auswählen...</translation>
    </message>
    <message>
        <source>Select Ran&amp;ge...</source>
        <translation>Bereich auswäh&amp;len...</translation>
    </message>
    <message>
        <source>Go to &amp;Frame...</source>
        <translation>&amp;Gehe zu Bild...</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>Toggle &amp;Mode</source>
        <translation>A&amp;nsicht wechseln</translation>
    </message>
    <message>
        <source>P&amp;references...</source>
        <translation>&amp;Einstellungen...</translation>
    </message>
    <message>
        <source>Show Pla&amp;yer</source>
        <translation>S&amp;pieler zeigen</translation>
    </message>
    <message>
        <source>Pl&amp;ay or Pause</source>
        <translation>&amp;Abspielen oder anhalten</translation>
    </message>
    <message>
        <source>Hide Frame &amp;Labels</source>
        <translation>Bildan&amp;gaben verbergen</translation>
    </message>
    <message>
        <source>&amp;Colors...</source>
        <translation>&amp;Farben...</translation>
    </message>
    <message>
        <source>&amp;Insert...</source>
        <translation>&amp;Einfügen...</translation>
    </message>
    <message>
        <source>Insert &amp;Tiled...</source>
        <translation>Ka&amp;cheln einfügen...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Ent&amp;fernen</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Re&amp;verse All</source>
        <translation>Alle um&amp;kehren</translation>
    </message>
    <message>
        <source>&amp;Fade Effects...</source>
        <translation>Ü&amp;berblendung...</translation>
    </message>
    <message>
        <source>&amp;Insert Animation...</source>
        <translation>&amp;Animation einfügen...</translation>
    </message>
    <message>
        <source>Export &amp;Sheet...</source>
        <translation>&amp;Bogen exportieren...</translation>
    </message>
    <message>
        <source>Set &amp;Pause...</source>
        <translation>&amp;Pause setzen...</translation>
    </message>
    <message>
        <source>&amp;Forward and Back</source>
        <translation>&amp;Vor und zurück</translation>
    </message>
    <message>
        <source>Shift Start to Curre&amp;nt Frame</source>
        <translation>Anfang &amp;zum aktuellen Bild verlegen</translation>
    </message>
    <message>
        <source>Remove D&amp;uplicates...</source>
        <translation>D&amp;uplikate entfernen...</translation>
    </message>
    <message>
        <source>&amp;Drop Every Nth...</source>
        <translation>&amp;Jedes n-te weglassen...</translation>
    </message>
    <message>
        <source>&amp;Resize Animation...</source>
        <translation>&amp;Größe der Animation ändern...</translation>
    </message>
    <message>
        <source>&amp;Crop...</source>
        <translation>Zus&amp;chneiden...</translation>
    </message>
    <message>
        <source>Can&amp;vas Size...</source>
        <translation>Zeichen&amp;fläche...</translation>
    </message>
    <message>
        <source>Rotate Ri&amp;ght</source>
        <translation>Nach &amp;rechts drehen</translation>
    </message>
    <message>
        <source>Rotate &amp;Left</source>
        <translation>Nach &amp;links drehen</translation>
    </message>
    <message>
        <source>Flip &amp;Horizontally</source>
        <translation>&amp;Waagerecht spiegeln</translation>
    </message>
    <message>
        <source>Flip Verticall&amp;y</source>
        <translation>&amp;Senkrecht spiegeln</translation>
    </message>
    <message>
        <source>Fit Fra&amp;mes to Animation...</source>
        <translation>Bilder an die Ani&amp;mation anpassen...</translation>
    </message>
    <message>
        <source>&amp;Adjust Colors...</source>
        <translation>Farben anpasse&amp;n...</translation>
    </message>
    <message>
        <source>&amp;Opacity...</source>
        <translation>&amp;Deckkraft...</translation>
    </message>
    <message>
        <source>Overlay Imag&amp;e...</source>
        <translation>Bild darüb&amp;erlegen...</translation>
    </message>
    <message>
        <source>&amp;Text...</source>
        <translation>&amp;Text...</translation>
    </message>
    <message>
        <source>Ma&amp;ke Transparent...</source>
        <translation>Transparent mac&amp;hen...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>F&amp;rame</source>
        <translation>Bi&amp;ld</translation>
    </message>
    <message>
        <source>&amp;Animation</source>
        <translation>Ani&amp;mation</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>%1 &amp;rückgängig machen</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>%1 &amp;wiederholen</translation>
    </message>
    <message>
        <source>Re&amp;verse Selected</source>
        <translation>Ausgewählte um&amp;kehren</translation>
    </message>
    <message>
        <source>Hide Pla&amp;yer</source>
        <translation>S&amp;pieler verbergen</translation>
    </message>
    <message>
        <source>Show Frame &amp;Labels</source>
        <translation>Bildan&amp;gaben zeigen</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open an animation</source>
        <translation>Eine Animation öffnen</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Insert images as frames</source>
        <translation>Bilddateien als Bilder einfügen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Take the last change back</source>
        <translation>Die letzte Änderung zurücknehmen</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Make it again</source>
        <translation>Sie noch einmal ausführen</translation>
    </message>
    <message>
        <source>Play the animation, or pause it</source>
        <translation>Die Animation abspielen oder anhalten</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Save under another name or as images</source>
        <translation>Unter anderem Namen oder als Bilder speichern</translation>
    </message>
    <message>
        <source>Write as another format, or smaller</source>
        <translation>In einem anderen Format oder kleiner schreiben</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Show the animation in the browser</source>
        <translation>Die Animation im Browser zeigen</translation>
    </message>
    <message>
        <source>%1 (tool bar)</source>
        <translation>%1 (Werkzeugleiste)</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>&amp;Tool Bar</source>
        <translation>&amp;Werkzeugleiste</translation>
    </message>
    <message>
        <source>Hit a key</source>
        <translation>Taste drücken</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Search for an action or a key</source>
        <translation>Eine Aktion oder Taste suchen</translation>
    </message>
    <message>
        <source>Shows only the actions with this in their name or key</source>
        <translation>Zeigt nur die Aktionen, in deren Namen oder Taste dies vorkommt</translation>
    </message>
    <message>
        <source>Actions and their keys</source>
        <translation>Aktionen und ihre Tasten</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation>&amp;Taste:</translation>
    </message>
    <message>
        <source>Key of the chosen action</source>
        <translation>Taste der gewählten Aktion</translation>
    </message>
    <message>
        <source>Hit the key that the action is to have; Backspace for none</source>
        <translation>Drücken Sie die Taste, die die Aktion haben soll; Rücktaste für keine</translation>
    </message>
    <message>
        <source>&amp;Take Over</source>
        <translation>&amp;Übernehmen</translation>
    </message>
    <message>
        <source>Takes the key from the other action</source>
        <translation>Nimmt der anderen Aktion die Taste weg</translation>
    </message>
    <message>
        <source>&amp;Default</source>
        <translation>&amp;Vorgabe</translation>
    </message>
    <message>
        <source>The key that this action has at first</source>
        <translation>Die Taste, die diese Aktion zuerst hat</translation>
    </message>
    <message>
        <source>&amp;Restore Defaults</source>
        <translation>Vorgaben &amp;wiederherstellen</translation>
    </message>
    <message>
        <source>The keys that all actions have at first</source>
        <translation>Die Tasten, die alle Aktionen zuerst haben</translation>
    </message>
    <message>
        <source>Such a key is needed for typing, moving or opening menus. Hit one with Ctrl, or a function key.</source>
        <translation>Eine solche Taste wird zum Tippen, Bewegen oder Öffnen von Menüs gebraucht. Drücken Sie eine mit Strg oder eine Funktionstaste.</translation>
    </message>
    <message>
        <source>%1 is the key of &quot;%2&quot; in the menu &quot;%3&quot;.</source>
        <translation>%1 ist die Taste von „%2“ im Menü „%3“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer has %2.</source>
        <translation>„%1“ hat %2 nicht mehr.</translation>
    </message>
    <message>
        <source>The keys could not be stored; they hold until the program ends.</source>
        <translation>Die Tasten konnten nicht gespeichert werden; sie gelten, bis das Programm endet.</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Unterschiede</translation>
    </message>
    <message>
        <source>The frame in Kirto</source>
        <translation>Das Bild in Kirto</translation>
    </message>
    <message>
        <source>The frame in browsers</source>
        <translation>Das Bild in Browsern</translation>
    </message>
    <message>
        <source>In Kirto</source>
        <translation>In Kirto</translation>
    </message>
    <message>
        <source>In browsers</source>
        <translation>In Browsern</translation>
    </message>
    <message>
        <source>Frame that differs</source>
        <translation>Bild mit Unterschied</translation>
    </message>
    <message>
        <source>&amp;In turns</source>
        <translation>&amp;Im Wechsel</translation>
    </message>
    <message>
        <source>In turns</source>
        <translation>Im Wechsel</translation>
    </message>
    <message>
        <source>Shows both in one place, one after the other</source>
        <translation>Zeigt beide an einer Stelle, eines nach dem anderen</translation>
    </message>
    <message>
        <source>Frame %1 of %2</source>
        <translation>Bild %1 von %2</translation>
    </message>
    <message>
        <source>own pause</source>
        <translation>eigene Pause</translation>
    </message>
    <message>
        <source>own palette</source>
        <translation>eigene Palette</translation>
    </message>
    <message>
        <source>cleared after it was shown</source>
        <translation>wird gelöscht, nachdem es zu sehen war</translation>
    </message>
    <message>
        <source>what was before comes back after it</source>
        <translation>was vorher war, kommt danach wieder</translation>
    </message>
    <message>
        <source>frame #%1    %2</source>
        <translation>Bild #%1    %2</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Insert image files</source>
        <translation>Bilddateien einfügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove the current frame</source>
        <translation>Das aktuelle Bild entfernen</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move the current frame toward the start</source>
        <translation>Das aktuelle Bild zum Anfang hin verschieben</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Move the current frame toward the end</source>
        <translation>Das aktuelle Bild zum Ende hin verschieben</translation>
    </message>
    <message>
        <source>Preview: 100%</source>
        <translation>Vorschau: 100%</translation>
    </message>
    <message>
        <source>Preview: %1%</source>
        <translation>Vorschau: %1%</translation>
    </message>
    <message>
        <source>Select frames</source>
        <translation>Bilder auswählen</translation>
    </message>
    <message>
        <source>Frames as 3-7, 0-20/2 or 0,4,7; Return selects them, Escape leaves the selection</source>
        <translation>Bilder als 3-7, 0-20/2 oder 0,4,7; die Eingabetaste wählt sie aus, Escape lässt die Auswahl</translation>
    </message>
    <message>
        <source>Recent animations</source>
        <translation>Letzte Animationen</translation>
    </message>
    <message>
        <source>%1 in %2, %3</source>
        <translation>%1 in %2, %3</translation>
    </message>
    <message>
        <source>
The file is not there.</source>
        <translation>
Die Datei ist nicht da.</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Vorschaubilder</translation>
    </message>
    <message>
        <source>no frames</source>
        <translation>keine Bilder</translation>
    </message>
    <message>
        <source>frame #%1 %2, %3 x %4, %5 frame(s)</source>
        <translation>Bild #%1 %2, %3 x %4, %5 Bild(er)</translation>
    </message>
    <message>
        <source>, %1 selected</source>
        <translation>, %1 ausgewählt</translation>
    </message>
    <message>
        <source>frame #%1    %2
%3 x %4</source>
        <translation>Bild #%1    %2
%3 x %4</translation>
    </message>
    <message>
        <source>Drop images or an animation here,
or choose Insert...
from the Frame menu.</source>
        <translation>Ziehen Sie Bilder oder eine Animation hierher,
oder wählen Sie „Einfügen...“
im Menü „Bild“.</translation>
    </message>
    <message>
        <source>Insert Frame</source>
        <translation>Bild einfügen</translation>
    </message>
    <message>
        <source>Remove Frame</source>
        <translation>Bild entfernen</translation>
    </message>
    <message>
        <source>Fade Effects...</source>
        <translation>Überblendung...</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Set Pause...</source>
        <translation>Pause setzen...</translation>
    </message>
    <message>
        <source>Thumbnail height: %1</source>
        <translation>Höhe der Vorschaubilder: %1</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Öffnen...</translation>
    </message>
    <message>
        <source>Insert Images...</source>
        <translation>Bilder einfügen...</translation>
    </message>
    <message>
        <source>Make an animation of images</source>
        <translation>Eine Animation aus Bildern machen</translation>
    </message>
    <message>
        <source>Recent animations:</source>
        <translation>Letzte Animationen:</translation>
    </message>
    <message>
        <source>Also found in the preferences, under Compatibility</source>
        <translation>Auch in den Einstellungen zu finden, unter „Kompatibilität“</translation>
    </message>
    <message>
        <source>Thumbnail height</source>
        <translation>Höhe der Vorschaubilder</translation>
    </message>
    <message>
        <source>Height of the thumbnails in pixels</source>
        <translation>Höhe der Vorschaubilder in Pixeln</translation>
    </message>
    <message>
        <source>Use frame:</source>
        <translation>Nach Bild:</translation>
    </message>
    <message>
        <source>first half sized</source>
        <translation>erstes, halbe Größe</translation>
    </message>
    <message>
        <source>current half sized</source>
        <translation>aktuelles, halbe Größe</translation>
    </message>
    <message>
        <source>first full sized</source>
        <translation>erstes, volle Größe</translation>
    </message>
    <message>
        <source>current full sized</source>
        <translation>aktuelles, volle Größe</translation>
    </message>
    <message>
        <source>Set the thumbnail height from a frame, or so that all frames fit</source>
        <translation>Die Höhe der Vorschaubilder nach einem Bild richten oder so, dass alle Bilder passen</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Zeitleiste</translation>
    </message>
    <message>
        <source>Drag a block to move its frame, its right edge to change its pause, the ruler to go to a frame. Ctrl and the wheel zoom.</source>
        <translation>Ziehen Sie einen Block, um sein Bild zu verschieben, seinen rechten Rand für die Pause, das Lineal, um zu einem Bild zu gehen. Strg und das Rad zoomen.</translation>
    </message>
    <message>
        <source>Frame %1, %2</source>
        <translation>Bild %1, %2</translation>
    </message>
    <message>
        <source>The file exists already. Do you want to replace it?</source>
        <translation>Die Datei gibt es schon. Möchten Sie sie ersetzen?</translation>
    </message>
    <message>
        <source>Some of the files exist already (%1). Do you want to replace them?</source>
        <translation>Einige der Dateien gibt es schon (%1). Möchten Sie sie ersetzen?</translation>
    </message>
    <message>
        <source>Sheet with JSON</source>
        <translation>Bogen mit JSON</translation>
    </message>
    <message>
        <source>Numbered images</source>
        <translation>Nummerierte Bilder</translation>
    </message>
    <message>
        <source>Stren&amp;gth:</source>
        <translation>Stär&amp;ke:</translation>
    </message>
    <message>
        <source>Cha&amp;nged areas only</source>
        <translation>Nur &amp;geänderte Bereiche</translation>
    </message>
    <message>
        <source>Off: each frame is written whole, for programs that do not build on the one before</source>
        <translation>Aus: jedes Bild wird ganz geschrieben, für Programme, die nicht auf dem vorigen aufbauen</translation>
    </message>
    <message>
        <source>Ma&amp;tte:</source>
        <translation>Unt&amp;ergrund:</translation>
    </message>
    <message>
        <source>&amp;Image format:</source>
        <translation>B&amp;ildformat:</translation>
    </message>
    <message>
        <source>Colum&amp;ns:</source>
        <translation>Spa&amp;lten:</translation>
    </message>
    <message>
        <source>Pa&amp;dding:</source>
        <translation>Abstan&amp;d:</translation>
    </message>
    <message>
        <source>damaged, what was good was kept</source>
        <translation>beschädigt, das Gute wurde behalten</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
</TS>
