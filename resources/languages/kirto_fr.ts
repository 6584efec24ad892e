<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CoreText</name>
    <message>
        <source>the frame</source>
        <translation>l’image</translation>
    </message>
    <message>
        <source>both frames</source>
        <translation>les deux images</translation>
    </message>
    <message>
        <source>all %1 frames</source>
        <translation>toutes les %1 images</translation>
    </message>
    <message>
        <source>%1 of %2 frames</source>
        <translation>%1 images sur %2</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>sans fin</translation>
    </message>
    <message>
        <source>once</source>
        <translation>une fois</translation>
    </message>
    <message>
        <source>%1 times</source>
        <translation>%1 fois</translation>
    </message>
    <message>
        <source>less than 1 %</source>
        <translation>moins de 1 %</translation>
    </message>
    <message>
        <source>more than 99 %</source>
        <translation>plus de 99 %</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>1 pixel</source>
        <translation>1 pixel</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 pixels</translation>
    </message>
    <message>
        <source>, by %1 of 255 on average</source>
        <translation>, de %1 sur 255 en moyenne</translation>
    </message>
    <message>
        <source>browsers will play 1 frame slower: its pause is below 0.02 seconds</source>
        <translation>les navigateurs joueront 1 image plus lentement : sa pause est inférieure à 0,02 seconde</translation>
    </message>
    <message>
        <source>browsers will play %1 frames slower: their pauses are below 0.02 seconds</source>
        <translation>les navigateurs joueront %1 images plus lentement : leurs pauses sont inférieures à 0,02 seconde</translation>
    </message>
    <message>
        <source>the animation will have %1 x %2 pixels</source>
        <translation>l’animation aura %1 x %2 pixels</translation>
    </message>
    <message>
        <source>no frame will be shown</source>
        <translation>aucune image ne sera montrée</translation>
    </message>
    <message>
        <source>%1 frame(s) will be shown instead of %2</source>
        <translation>%1 image(s) seront montrées au lieu de %2</translation>
    </message>
    <message>
        <source>%1 will show trails, of up to %2</source>
        <translation>%1 laisseront des traces, jusqu’à %2</translation>
    </message>
    <message>
        <source>%1 will show trails</source>
        <translation>%1 laisseront des traces</translation>
    </message>
    <message>
        <source>%1 will show pixels of others, too few to be seen: up to %2</source>
        <translation>%1 montreront des pixels d’autres images, trop peu pour être vus : jusqu’à %2</translation>
    </message>
    <message>
        <source>%1 will show pixels of others, too few to be seen</source>
        <translation>%1 montreront des pixels d’autres images, trop peu pour être vus</translation>
    </message>
    <message>
        <source>%1 will not be transparent: no color stands for that</source>
        <translation>%1 ne seront pas transparentes : aucune couleur ne le dit</translation>
    </message>
    <message>
        <source>%1 will lack pixels</source>
        <translation>il manquera des pixels à %1</translation>
    </message>
    <message>
        <source>%1 of the pixels lost their color%2: %3 colors</source>
        <translation>%1 des pixels ont perdu leur couleur%2 : %3 couleurs</translation>
    </message>
    <message>
        <source>%1 will be shown for another time</source>
        <translation>%1 seront montrées pendant un autre temps</translation>
    </message>
    <message>
        <source>the animation will play %1 instead of %2</source>
        <translation>l’animation sera jouée %1 au lieu de %2</translation>
    </message>
    <message>
        <source>Move Frames</source>
        <translation>Déplacer les images</translation>
    </message>
    <message>
        <source>Copy Frames</source>
        <translation>Copier les images</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Forward and Back</source>
        <translation>Aller et retour</translation>
    </message>
    <message>
        <source>Remove Duplicates</source>
        <translation>Supprimer les doublons</translation>
    </message>
    <message>
        <source>Drop Every Nth</source>
        <translation>Retirer une image sur n</translation>
    </message>
    <message>
        <source>Shift Start</source>
        <translation>Décaler le début</translation>
    </message>
    <message>
        <source>Set Pause</source>
        <translation>Régler la pause</translation>
    </message>
    <message>
        <source>Change Palette</source>
        <translation>Changer la palette</translation>
    </message>
    <message>
        <source>Change Frame Palette</source>
        <translation>Changer la palette de l’image</translation>
    </message>
    <message>
        <source>The video can&apos;t be written because the program ffmpeg was not found. Install the package &quot;ffmpeg&quot;.</source>
        <translation>La vidéo ne peut pas être écrite, car le programme ffmpeg est introuvable. Installez le paquet « ffmpeg ».</translation>
    </message>
    <message>
        <source>There is no frame to export.</source>
        <translation>Il n’y a aucune image à exporter.</translation>
    </message>
    <message>
        <source>The animation is too large for a %1 file.</source>
        <translation>L’animation est trop grande pour un fichier %1.</translation>
    </message>
    <message>
        <source>There is nothing here that writes %1 files.</source>
        <translation>Rien ici n’écrit de fichiers %1.</translation>
    </message>
    <message>
        <source>Out of memory.</source>
        <translation>Mémoire insuffisante.</translation>
    </message>
    <message>
        <source>The program that writes videos has failed.</source>
        <translation>Le programme qui écrit les vidéos a échoué.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be made so small.</source>
        <translation>L’animation ne peut pas devenir aussi petite.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Arrêté.</translation>
    </message>
    <message>
        <source>What is on the clipboard can&apos;t be pasted because it was damaged or is unsupported.</source>
        <translation>Le contenu du presse-papiers ne peut pas être collé, car il est endommagé ou n’est pas pris en charge.</translation>
    </message>
    <message>
        <source>This file can&apos;t be inserted because it does not describe a sheet: %1</source>
        <translation>Ce fichier ne peut pas être inséré, car il ne décrit pas de planche : %1</translation>
    </message>
    <message>
        <source>This file can&apos;t be inserted because a frame is not on the sheet: %1</source>
        <translation>Ce fichier ne peut pas être inséré, car une image n’est pas sur la planche : %1</translation>
    </message>
    <message>
        <source>Insert Animation</source>
        <translation>Insérer une animation</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insérer</translation>
    </message>
    <message>
        <source>Insert Tiled</source>
        <translation>Insérer des tuiles</translation>
    </message>
    <message>
        <source>Remove Frame</source>
        <translation>Supprimer l’image</translation>
    </message>
    <message>
        <source>Move Frame Up</source>
        <translation>Monter l’image</translation>
    </message>
    <message>
        <source>Move Frame Down</source>
        <translation>Descendre l’image</translation>
    </message>
    <message>
        <source>Reverse All</source>
        <translation>Tout inverser</translation>
    </message>
    <message>
        <source>Fit Frames</source>
        <translation>Ajuster les images</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Fondu</translation>
    </message>
    <message>
        <source>Unable to open or create a settings file. Default values will be used instead, but may not be saved.</source>
        <translation>Impossible d’ouvrir ou de créer un fichier de réglages. Les valeurs par défaut sont utilisées, mais ne seront peut-être pas enregistrées.</translation>
    </message>
    <message>
        <source>The settings file was damaged. It has been put aside as &quot;%1&quot;, and default values will be used instead.</source>
        <translation>Le fichier de réglages était endommagé. Il a été mis de côté sous le nom « %1 », et les valeurs par défaut sont utilisées.</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>État : %1</translation>
    </message>
    <message>
        <source>canceled, %1 new frame(s) kept</source>
        <translation>annulé, %1 nouvelle(s) image(s) gardée(s)</translation>
    </message>
    <message>
        <source>Do you wish to insert this image into the current animation or open it as a new animation?</source>
        <translation>Voulez-vous insérer cette image dans l’animation actuelle ou l’ouvrir comme nouvelle animation ?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>The animation can&apos;t be opened because this file type is unsupported.</source>
        <translation>L’animation ne peut pas être ouverte, car ce type de fichier n’est pas pris en charge.</translation>
    </message>
    <message>
        <source>Do you want to save your changes?</source>
        <translation>Voulez-vous enregistrer vos modifications ?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>The palette can&apos;t be loaded because the file was corrupted or unreadable.</source>
        <translation>La palette ne peut pas être chargée, car le fichier est endommagé ou illisible.</translation>
    </message>
    <message>
        <source>Another program has changed the file &quot;%1&quot; since it was opened or saved. Do you want to overwrite it?</source>
        <translation>Un autre programme a modifié le fichier « %1 » depuis qu’il a été ouvert ou enregistré. Voulez-vous l’écraser ?</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Écraser</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Enregistrer sous...</translation>
    </message>
    <message>
        <source>saving was canceled, the file is as it was before</source>
        <translation>l’enregistrement a été annulé, le fichier est comme avant</translation>
    </message>
    <message>
        <source>The animation can&apos;t be saved because one of the frames has a larger size than the animation.</source>
        <translation>L’animation ne peut pas être enregistrée, car une des images est plus grande que l’animation.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be saved because %1 is not between 0 and 65535.</source>
        <translation>L’animation ne peut pas être enregistrée, car ceci n’est pas entre 0 et 65535 : %1.</translation>
    </message>
    <message>
        <source>saved, but %1</source>
        <translation>enregistré, mais %1</translation>
    </message>
    <message>
        <source>saving was canceled, %1 of %2 file(s) written</source>
        <translation>l’enregistrement a été annulé, %1 fichier(s) sur %2 écrits</translation>
    </message>
    <message>
        <source>The animation can&apos;t be previewed because one of the frames has a larger size than the animation.</source>
        <translation>L’aperçu de l’animation est impossible, car une des images est plus grande que l’animation.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be previewed because %1 is not between 0 and 65535.</source>
        <translation>L’aperçu de l’animation est impossible, car ceci n’est pas entre 0 et 65535 : %1.</translation>
    </message>
    <message>
        <source>the preview was canceled</source>
        <translation>l’aperçu a été annulé</translation>
    </message>
    <message>
        <source>The animation can&apos;t be previewed because a temporary file could not be created.</source>
        <translation>L’aperçu de l’animation est impossible, car un fichier temporaire n’a pas pu être créé.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be recovered because its copy was damaged. The copy has been put aside.</source>
        <translation>L’animation ne peut pas être récupérée, car sa copie est endommagée. La copie a été mise de côté.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be recovered because it needs more memory than there is.</source>
        <translation>L’animation ne peut pas être récupérée, car elle demande plus de mémoire qu’il n’y en a.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be recovered because its copy can&apos;t be read.</source>
        <translation>L’animation ne peut pas être récupérée, car sa copie ne peut pas être lue.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be recovered because the open one has unsaved changes. It will be offered again when the editor is started next.</source>
        <translation>L’animation ne peut pas être récupérée, car celle qui est ouverte a des modifications non enregistrées. Elle sera proposée au prochain démarrage de l’éditeur.</translation>
    </message>
    <message>
        <source>saving was canceled</source>
        <translation>l’enregistrement a été annulé</translation>
    </message>
    <message>
        <source>Opened as browsers do. Animations are read and saved that way from now on.</source>
        <translation>Ouverte comme dans les navigateurs. Les animations seront désormais lues et enregistrées ainsi.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>%1 frame(s) are larger than the animation.</source>
        <translation>%1 image(s) sont plus grandes que l’animation.</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Redimensionner</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Rogner</translation>
    </message>
    <message>
        <source>Save Faithfully</source>
        <translation>Enregistrer fidèlement</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Montrer</translation>
    </message>
    <message>
        <source>In browsers %1.</source>
        <translation>Dans les navigateurs, %1.</translation>
    </message>
    <message>
        <source>Open as Browsers Do</source>
        <translation>Ouvrir comme les navigateurs</translation>
    </message>
    <message>
        <source>Salvage</source>
        <translation>Sauver</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>an image has codes for fewer colors than its palette has</source>
        <translation>une image a des codes pour moins de couleurs que sa palette</translation>
    </message>
    <message>
        <source>an image is larger than the screen</source>
        <translation>une image est plus grande que l’écran</translation>
    </message>
    <message>
        <source>the file ends without its trailer</source>
        <translation>le fichier se termine sans sa marque de fin</translation>
    </message>
    <message>
        <source>it has a record of an unknown type</source>
        <translation>il a un enregistrement de type inconnu</translation>
    </message>
    <message>
        <source>The video can&apos;t be opened because the chosen part is not in it.</source>
        <translation>La vidéo ne peut pas être ouverte, car la partie choisie n’y est pas.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be opened because it was corrupted or unreadable.</source>
        <translation>L’animation ne peut pas être ouverte, car elle est endommagée ou illisible.</translation>
    </message>
    <message>
        <source>The video can&apos;t be opened because the program ffmpeg was not found. Install the package &quot;ffmpeg&quot;.</source>
        <translation>La vidéo ne peut pas être ouverte, car le programme ffmpeg est introuvable. Installez le paquet « ffmpeg ».</translation>
    </message>
    <message>
        <source>canceled, nothing changed</source>
        <translation>annulé, rien n’a changé</translation>
    </message>
    <message>
        <source>no frame shows anything else than another</source>
        <translation>aucune image ne montre autre chose qu’une autre</translation>
    </message>
    <message>
        <source>all frames are transparent everywhere</source>
        <translation>toutes les images sont transparentes partout</translation>
    </message>
    <message>
        <source>Status: adjusting frame %1 of %2...</source>
        <translation>État : réglage de l’image %1 sur %2...</translation>
    </message>
    <message>
        <source>Status: fading frame %1 of %2...</source>
        <translation>État : opacité de l’image %1 sur %2...</translation>
    </message>
    <message>
        <source>Status: changing frame %1 of %2...</source>
        <translation>État : modification de l’image %1 sur %2...</translation>
    </message>
    <message>
        <source>This file can&apos;t be drawn because this file type is unsupported: %1</source>
        <translation>Ce fichier ne peut pas être dessiné, car ce type de fichier n’est pas pris en charge : %1</translation>
    </message>
    <message>
        <source>Resize Animation</source>
        <translation>Redimensionner l’animation</translation>
    </message>
    <message>
        <source>Canvas Size</source>
        <translation>Taille du canevas</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Tourner</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Retourner</translation>
    </message>
    <message>
        <source>Adjust Colors</source>
        <translation>Régler les couleurs</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Overlay Image</source>
        <translation>Superposer une image</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Make Transparent</source>
        <translation>Rendre transparent</translation>
    </message>
    <message>
        <source>The editor ended unexpectedly. &quot;%1&quot; (%2 frame(s), %3) can be recovered.</source>
        <translation>L’éditeur s’est terminé de façon inattendue. « %1 » (%2 image(s), %3) peut être récupéré.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Récupérer</translation>
    </message>
    <message>
        <source>%1% of the pixels got another color, by %2 of 255 on average</source>
        <translation>%1% des pixels ont reçu une autre couleur, de %2 sur 255 en moyenne</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>XOffset of %1</source>
        <translation>Décalage X de %1</translation>
    </message>
    <message>
        <source>YOffset of %1</source>
        <translation>Décalage Y de %1</translation>
    </message>
    <message>
        <source>loop count %1 was saved as %2</source>
        <translation>le nombre de boucles %1 a été enregistré comme %2</translation>
    </message>
    <message>
        <source>%1 pause(s) above 655.35 seconds were saved shorter</source>
        <translation>%1 pause(s) de plus de 655,35 secondes ont été raccourcies</translation>
    </message>
    <message>
        <source>The animation can&apos;t be saved because the file could not be created at this location.</source>
        <translation>L’animation ne peut pas être enregistrée, car le fichier n’a pas pu être créé à cet endroit.</translation>
    </message>
    <message>
        <source>The animation can&apos;t be saved because the selected translator is not valid.</source>
        <translation>L’animation ne peut pas être enregistrée, car le traducteur choisi n’est pas valide.</translation>
    </message>
    <message>
        <source>1 frame</source>
        <translation>1 image</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>%1 images</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixels</translation>
    </message>
    <message>
        <source>%1: a frame of the text is not on the picture.</source>
        <translation>%1 : une image du texte n’est pas sur la planche.</translation>
    </message>
    <message>
        <source>%1: %2 as the text says.</source>
        <translation>%1 : %2, comme le dit le texte.</translation>
    </message>
    <message>
        <source>, %1 without the empty ones</source>
        <translation>, %1 sans les vides</translation>
    </message>
    <message>
        <source>This image is too large to be shown here.</source>
        <translation>Cette image est trop grande pour être montrée ici.</translation>
    </message>
    <message>
        <source>%1: rows or columns are missing.</source>
        <translation>%1 : il manque des lignes ou des colonnes.</translation>
    </message>
    <message>
        <source>%1: no tile has room.</source>
        <translation>%1 : aucune tuile n’a de place.</translation>
    </message>
    <message>
        <source>%1: %2 and %3 of %4 × %5 pixels</source>
        <translation>%1 : %2 et %3 de %4 × %5 pixels</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 ligne</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 lignes</translation>
    </message>
    <message>
        <source>1 column</source>
        <translation>1 colonne</translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation>%1 colonnes</translation>
    </message>
    <message>
        <source>There is no frame to save.</source>
        <translation>Il n’y a aucune image à enregistrer.</translation>
    </message>
    <message>
        <source>The sheet can&apos;t be saved because it would be too large.</source>
        <translation>La planche ne peut pas être enregistrée, car elle serait trop grande.</translation>
    </message>
    <message>
        <source>Frames of %1</source>
        <translation>Images de %1</translation>
    </message>
    <message>
        <source>%1 frame of %2, at most %3 MB</source>
        <translation>%1 image de %2, au plus %3 Mo</translation>
    </message>
    <message>
        <source>%1 frames of %2, at most %3 MB</source>
        <translation>%1 images de %2, au plus %3 Mo</translation>
    </message>
    <message>
        <source>Change Width</source>
        <translation>Changer la largeur</translation>
    </message>
    <message>
        <source>Change Height</source>
        <translation>Changer la hauteur</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Change Pause</source>
        <translation>Changer la pause</translation>
    </message>
    <message>
        <source>Pause length</source>
        <translation>Durée de la pause</translation>
    </message>
    <message>
        <source>Change Pause Length</source>
        <translation>Changer la durée de la pause</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Boucle</translation>
    </message>
    <message>
        <source>Change Loop</source>
        <translation>Changer la boucle</translation>
    </message>
    <message>
        <source>Loop count</source>
        <translation>Nombre de boucles</translation>
    </message>
    <message>
        <source>Change Loop Count</source>
        <translation>Changer le nombre de boucles</translation>
    </message>
    <message>
        <source>Background index</source>
        <translation>Index du fond</translation>
    </message>
    <message>
        <source>Change Background Index</source>
        <translation>Changer l’index du fond</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparent</translation>
    </message>
    <message>
        <source>Change Transparency</source>
        <translation>Changer la transparence</translation>
    </message>
    <message>
        <source>Transparent index</source>
        <translation>Index transparent</translation>
    </message>
    <message>
        <source>Change Transparent Index</source>
        <translation>Changer l’index transparent</translation>
    </message>
    <message>
        <source>Dither</source>
        <translation>Tramage</translation>
    </message>
    <message>
        <source>Change Dither</source>
        <translation>Changer le tramage</translation>
    </message>
    <message>
        <source>XOffset</source>
        <translation>Décalage X</translation>
    </message>
    <message>
        <source>Change X Offset</source>
        <translation>Changer le décalage X</translation>
    </message>
    <message>
        <source>YOffset</source>
        <translation>Décalage Y</translation>
    </message>
    <message>
        <source>Change Y Offset</source>
        <translation>Changer le décalage Y</translation>
    </message>
    <message>
        <source>Change Frame Pause</source>
        <translation>Changer la pause de l’image</translation>
    </message>
    <message>
        <source>Change Frame Pause Length</source>
        <translation>Changer la durée de la pause de l’image</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Change Local Palette</source>
        <translation>Changer la palette propre</translation>
    </message>
    <message>
        <source>Status: loading tile %1 of %2...</source>
        <translation>État : chargement de la tuile %1 sur %2...</translation>
    </message>
    <message>
        <source>This file can&apos;t be inserted because this file type is unsupported: %1</source>
        <translation>Ce fichier ne peut pas être inséré, car ce type de fichier n’est pas pris en charge : %1</translation>
    </message>
    <message>
        <source>This file can&apos;t be inserted because the color space is unsupported.</source>
        <translation>Ce fichier ne peut pas être inséré, car l’espace de couleurs n’est pas pris en charge.</translation>
    </message>
    <message>
        <source>Status: generating frame %1 of %2...</source>
        <translation>État : création de l’image %1 sur %2...</translation>
    </message>
    <message>
        <source>These files can&apos;t be inserted because their types are unsupported:</source>
        <translation>Ces fichiers ne peuvent pas être insérés, car leurs types ne sont pas pris en charge :</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>Status: loading frame %1 of %2...</source>
        <translation>État : chargement de l’image %1 sur %2...</translation>
    </message>
    <message>
        <source>This frame can&apos;t be inserted because the number of rows or columns is illegal.</source>
        <translation>Cette image ne peut pas être insérée, car le nombre de lignes ou de colonnes n’est pas permis.</translation>
    </message>
    <message>
        <source>Status: cropping frame %1 of %2...</source>
        <translation>État : rognage de l’image %1 sur %2...</translation>
    </message>
    <message>
        <source>Status: fitting frame %1 of %2...</source>
        <translation>État : ajustement de l’image %1 sur %2...</translation>
    </message>
    <message>
        <source>Status: drawing on frame %1 of %2...</source>
        <translation>État : dessin sur l’image %1 sur %2...</translation>
    </message>
    <message>
        <source>Status: resizing frame %1 of %2...</source>
        <translation>État : redimensionnement de l’image %1 sur %2...</translation>
    </message>
    <message>
        <source>Status: turning frame %1 of %2...</source>
        <translation>État : rotation de l’image %1 sur %2...</translation>
    </message>
    <message>
        <source>Status: writing frame %1 of %2...</source>
        <translation>État : écriture de l’image %1 sur %2...</translation>
    </message>
    <message>
        <source>Status: loading frame %1...</source>
        <translation>État : chargement de l’image %1...</translation>
    </message>
    <message>
        <source>%1 can&apos;t be less than %2.</source>
        <translation>%1 : pas moins de %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be greater than %2.</source>
        <translation>%1 : pas plus de %2.</translation>
    </message>
    <message>
        <source>Frame count must be between 1 and 100.</source>
        <translation>Le nombre d’images doit être compris entre 1 et 100.</translation>
    </message>
    <message>
        <source>This value</source>
        <translation>Cette valeur</translation>
    </message>
    <message>
        <source>You must enter a valid, absolute path and file name.</source>
        <translation>Vous devez saisir un chemin absolu valide avec un nom de fichier.</translation>
    </message>
    <message>
        <source>You must enter a valid absolute path.</source>
        <translation>Vous devez saisir un chemin absolu valide.</translation>
    </message>
    <message>
        <source>You must enter a color as #rrggbb.</source>
        <translation>Vous devez saisir une couleur sous la forme #rrggbb.</translation>
    </message>
    <message>
        <source>You must enter colors as #rrggbb, with blanks between them.</source>
        <translation>Vous devez saisir des couleurs sous la forme #rrggbb, séparées par des espaces.</translation>
    </message>
    <message>
        <source>The preset can&apos;t be kept under this name.</source>
        <translation>Le préréglage ne peut pas être gardé sous ce nom.</translation>
    </message>
    <message>
        <source>Insert Tiled Frame</source>
        <translation>Insérer des tuiles comme images</translation>
    </message>
    <message>
        <source>Insert Frames</source>
        <translation>Insérer des images</translation>
    </message>
    <message>
        <source>Open Animation</source>
        <translation>Ouvrir une animation</translation>
    </message>
    <message>
        <source>A file named &quot;%1&quot; already exists. Do you want to replace it?</source>
        <translation>Un fichier nommé « %1 » existe déjà. Voulez-vous le remplacer ?</translation>
    </message>
    <message>
        <source>A file named &quot;%1&quot; already exists. Do you want to replace the files of this sequence?</source>
        <translation>Un fichier nommé « %1 » existe déjà. Voulez-vous remplacer les fichiers de cette séquence ?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Save Animation</source>
        <translation>Enregistrer l’animation</translation>
    </message>
    <message>
        <source>Animated GIF</source>
        <translation>GIF animé</translation>
    </message>
    <message>
        <source>%1 sequence</source>
        <translation>Séquence %1</translation>
    </message>
    <message>
        <source>Kirto v1.4
An editor for frame animations, by Morvik
https://kirto.example.org

Please send in bug reports and feature requests.

Thanks to all who shared their code for GIF files, and for a long conversation about dithering.</source>
        <translation>Kirto v1.4
Un éditeur d’animations, par Morvik
https://kirto.example.org

Envoyez vos rapports d’erreurs et vos souhaits.

Merci à tous ceux qui ont partagé leur code pour les fichiers GIF, et pour une longue conversation sur le tramage.</translation>
    </message>
    <message>
        <source>Open Paletted File</source>
        <translation>Ouvrir un fichier avec palette</translation>
    </message>
    <message>
        <source>The preview was written, but no program to show it was found.</source>
        <translation>L’aperçu a été écrit, mais aucun programme pour le montrer n’a été trouvé.</translation>
    </message>
    <message>
        <source>Do you want all actions to have the keys again that they had at first?</source>
        <translation>Voulez-vous que toutes les actions retrouvent les touches qu’elles avaient au début ?</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>The file could not be saved because the Targa translator is either missing or failed.</source>
        <translation>Le fichier n’a pas pu être enregistré, car le traducteur Targa manque ou a échoué.</translation>
    </message>
    <message>
        <source> %1 of %2 files were written.</source>
        <translation> %1 fichiers sur %2 ont été écrits.</translation>
    </message>
    <message>
        <source>The sheet would be too large.</source>
        <translation>La planche serait trop grande.</translation>
    </message>
    <message>
        <source>There is nothing here that writes this image format.</source>
        <translation>Rien ici n’écrit ce format d’image.</translation>
    </message>
    <message>
        <source>The image can&apos;t be written in this format.</source>
        <translation>L’image ne peut pas être écrite dans ce format.</translation>
    </message>
</context>
<context>
    <name>UiText</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>Vignette</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>Miscellaneous</source>
        <translation>Divers</translation>
    </message>
    <message>
        <source>Compatibility</source>
        <translation>Compatibilité</translation>
    </message>
    <message>
        <source>Control Defaults</source>
        <translation>Valeurs par défaut des réglages</translation>
    </message>
    <message>
        <source>Width in pixels:</source>
        <translation>Largeur en pixels :</translation>
    </message>
    <message>
        <source>Height in pixels:</source>
        <translation>Hauteur en pixels :</translation>
    </message>
    <message>
        <source>Pause this long between frames:</source>
        <translation>Pause entre les images :</translation>
    </message>
    <message>
        <source>Loop this many times (0 is infinitely):</source>
        <translation>Nombre de boucles (0 : sans fin) :</translation>
    </message>
    <message>
        <source>Other Settings</source>
        <translation>Autres réglages</translation>
    </message>
    <message>
        <source>Set size of animation from first frame inserted</source>
        <translation>Reprendre la taille de la première image insérée</translation>
    </message>
    <message>
        <source>Pause length should be measured in:</source>
        <translation>La durée des pauses est donnée en :</translation>
    </message>
    <message>
        <source>Hundredths of a second (GIF standard)</source>
        <translation>Centièmes de seconde (norme GIF)</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Secondes</translation>
    </message>
    <message>
        <source>Mapping Defaults</source>
        <translation>Valeurs par défaut des couleurs</translation>
    </message>
    <message>
        <source>The global palette should use:</source>
        <translation>La palette de l’animation sera :</translation>
    </message>
    <message>
        <source>The web safe palette (standard 216 colors)</source>
        <translation>La palette web (216 couleurs standard)</translation>
    </message>
    <message>
        <source>The BeOS system palette (256 colors)</source>
        <translation>La palette système de BeOS (256 couleurs)</translation>
    </message>
    <message>
        <source>A greyscale palette (256 levels of grey)</source>
        <translation>Une palette de gris (256 niveaux)</translation>
    </message>
    <message>
        <source>A palette from:</source>
        <translation>Une palette prise dans :</translation>
    </message>
    <message>
        <source>Other Defaults</source>
        <translation>Autres valeurs par défaut</translation>
    </message>
    <message>
        <source>Use dithering</source>
        <translation>Utiliser le tramage</translation>
    </message>
    <message>
        <source>Background index:</source>
        <translation>Index du fond :</translation>
    </message>
    <message>
        <source>Transparent index from global palette:</source>
        <translation>Index transparent de la palette :</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>When a frame is inserted, the thumbnail height:</source>
        <translation>À l’insertion d’une image, la hauteur des vignettes :</translation>
    </message>
    <message>
        <source>Should be set to the full size of the first frame</source>
        <translation>Prend toute la hauteur de la première image</translation>
    </message>
    <message>
        <source>Should be set to half the size of the first frame</source>
        <translation>Prend la moitié de la hauteur de la première image</translation>
    </message>
    <message>
        <source>Should be set to this value:</source>
        <translation>Prend cette valeur :</translation>
    </message>
    <message>
        <source>Should not change</source>
        <translation>Ne change pas</translation>
    </message>
    <message>
        <source>Maximum thumbnail height:</source>
        <translation>Hauteur maximale des vignettes :</translation>
    </message>
    <message>
        <source>Minimum thumbnail height:</source>
        <translation>Hauteur minimale des vignettes :</translation>
    </message>
    <message>
        <source>Draw frames with transparency</source>
        <translation>Dessiner les images avec leur transparence</translation>
    </message>
    <message>
        <source>Advanced GIF Settings</source>
        <translation>Réglages GIF avancés</translation>
    </message>
    <message>
        <source>After each frame, the GIF decoder should:</source>
        <translation>Après chaque image, le décodeur GIF devrait :</translation>
    </message>
    <message>
        <source>Take no action (default)</source>
        <translation>Ne rien faire (par défaut)</translation>
    </message>
    <message>
        <source>Leave the current frame</source>
        <translation>Laisser l’image en place</translation>
    </message>
    <message>
        <source>Restore the background color</source>
        <translation>Rétablir la couleur du fond</translation>
    </message>
    <message>
        <source>Restore the previous frame (rarely supported)</source>
        <translation>Rétablir l’image précédente (rarement pris en charge)</translation>
    </message>
    <message>
        <source>Write interlaced frames</source>
        <translation>Écrire des images entrelacées</translation>
    </message>
    <message>
        <source>Write &quot;Made with Kirto on BeOS&quot; comment</source>
        <translation>Écrire le commentaire « Made with Kirto on BeOS »</translation>
    </message>
    <message>
        <source>If the animation uses delta compression, assemble each frame</source>
        <translation>Assembler chaque image si l’animation ne contient que des différences</translation>
    </message>
    <message>
        <source>On startup, use:</source>
        <translation>Au démarrage, afficher :</translation>
    </message>
    <message>
        <source>Thumbnail mode</source>
        <translation>Vignettes</translation>
    </message>
    <message>
        <source>Frame list mode</source>
        <translation>Liste d’images</translation>
    </message>
    <message>
        <source>Save and restore main window size and position</source>
        <translation>Retenir la taille et la place de la fenêtre</translation>
    </message>
    <message>
        <source>Write temporary files to:</source>
        <translation>Écrire les fichiers temporaires dans :</translation>
    </message>
    <message>
        <source>Browsers</source>
        <translation>Navigateurs</translation>
    </message>
    <message>
        <source>Read and save as browsers show it</source>
        <translation>Lire et enregistrer comme les navigateurs</translation>
    </message>
    <message>
        <source>Frames of more than 256 colors are saved then</source>
        <translation>Les images de plus de 256 couleurs sont alors enregistrées</translation>
    </message>
    <message>
        <source>Without dithering</source>
        <translation>Sans tramage</translation>
    </message>
    <message>
        <source>Dithered as best suits each frame (Floyd-Steinberg)</source>
        <translation>Tramées au mieux pour chaque image (Floyd-Steinberg)</translation>
    </message>
    <message>
        <source>Dithered so that what stands still does not flicker</source>
        <translation>Tramées sans que ce qui est immobile scintille</translation>
    </message>
    <message>
        <source>In the same colors for all frames</source>
        <translation>Dans les mêmes couleurs pour toutes les images</translation>
    </message>
    <message>
        <source>Keep these colors:</source>
        <translation>Garder ces couleurs :</translation>
    </message>
    <message>
        <source>Lay soft edges on:</source>
        <translation>Poser les bords doux sur :</translation>
    </message>
    <message>
        <source>Transparent below alpha:</source>
        <translation>Transparent sous l’alpha :</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Pick from &amp;Screen</source>
        <translation>Prélever à l’é&amp;cran</translation>
    </message>
    <message>
        <source>Takes the color that is clicked next, anywhere on the screen</source>
        <translation>Prend la couleur du prochain clic, n’importe où à l’écran</translation>
    </message>
    <message>
        <source>This desktop lets no program see the screen</source>
        <translation>Ce bureau ne laisse aucun programme voir l’écran</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Color %1, %2, %3 pixels</source>
        <translation>Couleur %1, %2, %3 pixels</translation>
    </message>
    <message>
        <source>, background</source>
        <translation>, fond</translation>
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
        <translation>Couleurs :</translation>
    </message>
    <message>
        <source>current frame</source>
        <translation>de l’image actuelle</translation>
    </message>
    <message>
        <source>all frames</source>
        <translation>de toutes les images</translation>
    </message>
    <message>
        <source>All frames are those without a palette of their own</source>
        <translation>Toutes les images : celles qui n’ont pas de palette propre</translation>
    </message>
    <message>
        <source>Sorted by:</source>
        <translation>Triées par :</translation>
    </message>
    <message>
        <source>index</source>
        <translation>index</translation>
    </message>
    <message>
        <source>hue</source>
        <translation>teinte</translation>
    </message>
    <message>
        <source>use</source>
        <translation>usage</translation>
    </message>
    <message>
        <source>Use is the number of pixels that have the color</source>
        <translation>L’usage est le nombre de pixels de cette couleur</translation>
    </message>
    <message>
        <source>A click:</source>
        <translation>Un clic :</translation>
    </message>
    <message>
        <source>only tells</source>
        <translation>renseigne seulement</translation>
    </message>
    <message>
        <source>makes it the background</source>
        <translation>en fait le fond</translation>
    </message>
    <message>
        <source>makes it transparent</source>
        <translation>la rend transparente</translation>
    </message>
    <message>
        <source>What a click or the Enter key does with a color</source>
        <translation>Ce que fait un clic ou la touche Entrée avec une couleur</translation>
    </message>
    <message>
        <source>Fade Effects</source>
        <translation>Effets de fondu</translation>
    </message>
    <message>
        <source>to an rgb color</source>
        <translation>vers une couleur RVB</translation>
    </message>
    <message>
        <source>from an rgb color</source>
        <translation>depuis une couleur RVB</translation>
    </message>
    <message>
        <source>to next frame</source>
        <translation>vers l’image suivante</translation>
    </message>
    <message>
        <source>from previous frame</source>
        <translation>depuis l’image précédente</translation>
    </message>
    <message>
        <source>What to blend the current frame with</source>
        <translation>Avec quoi l’image actuelle est mélangée</translation>
    </message>
    <message>
        <source>The number of new frames, from 1 to 100</source>
        <translation>Le nombre de nouvelles images, de 1 à 100</translation>
    </message>
    <message>
        <source>The color to fade to or from</source>
        <translation>La couleur d’arrivée ou de départ du fondu</translation>
    </message>
    <message>
        <source>Blends the current frame alone, whatever else is selected.</source>
        <translation>Mélange l’image actuelle seule, quelle que soit la sélection.</translation>
    </message>
    <message>
        <source>Fade mode:</source>
        <translation>Type de fondu :</translation>
    </message>
    <message>
        <source>Frame count:</source>
        <translation>Nombre d’images :</translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation>Aperçu :</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>C&amp;hoose...</source>
        <translation>C&amp;hoisir...</translation>
    </message>
    <message>
        <source>Works on the %1 selected frames.</source>
        <translation>Agit sur les %1 images sélectionnées.</translation>
    </message>
    <message>
        <source>Works on all %1 frames, since only one is selected.</source>
        <translation>Agit sur toutes les %1 images, car une seule est sélectionnée.</translation>
    </message>
    <message>
        <source>&amp;Frames:</source>
        <translation>&amp;Images :</translation>
    </message>
    <message>
        <source>Select Every Nth</source>
        <translation>Sélectionner une image sur n</translation>
    </message>
    <message>
        <source>Selects among all frames. The first frame is frame 0.</source>
        <translation>Sélectionne parmi toutes les images. La première est l’image 0.</translation>
    </message>
    <message>
        <source>&amp;Beginning with frame:</source>
        <translation>À &amp;partir de l’image :</translation>
    </message>
    <message>
        <source>&amp;Every:</source>
        <translation>&amp;Une sur :</translation>
    </message>
    <message>
        <source>Select Range</source>
        <translation>Sélectionner une plage</translation>
    </message>
    <message>
        <source>Frames are numbered from 0 to %1, or from the end: the last is -1. Examples: 3-7, 0-20/2 for every second one, 0,4,7, all.</source>
        <translation>Les images sont numérotées de 0 à %1, ou depuis la fin : la dernière est -1. Exemples : 3-7, 0-20/2 pour une sur deux, 0,4,7, all.</translation>
    </message>
    <message>
        <source>Go to Frame</source>
        <translation>Aller à l’image</translation>
    </message>
    <message>
        <source>Makes a frame the current one. They are numbered from 0 to %1.</source>
        <translation>Rend une image actuelle. Elles sont numérotées de 0 à %1.</translation>
    </message>
    <message>
        <source>&amp;Frame:</source>
        <translation>&amp;Image :</translation>
    </message>
    <message>
        <source>Drop Every Nth</source>
        <translation>Retirer une image sur n</translation>
    </message>
    <message>
        <source> The frame before each one that goes is shown for as long as both were.</source>
        <translation> L’image qui précède chaque image retirée dure autant que les deux.</translation>
    </message>
    <message>
        <source>&amp;Drop every:</source>
        <translation>&amp;Retirer une sur :</translation>
    </message>
    <message>
        <source>Remove Duplicates</source>
        <translation>Supprimer les doublons</translation>
    </message>
    <message>
        <source> A frame that shows what the one before shows is removed, and its pause added to that one.</source>
        <translation> Une image qui montre la même chose que la précédente est retirée, et sa pause ajoutée à celle-ci.</translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation>&amp;Tolérance :</translation>
    </message>
    <message>
        <source>By how much red, green and blue of a pixel may differ; 0: not at all</source>
        <translation>De combien peuvent différer le rouge, le vert et le bleu d’un pixel ; 0 : pas du tout</translation>
    </message>
    <message>
        <source>Move To</source>
        <translation>Déplacer vers</translation>
    </message>
    <message>
        <source>Frames are numbered from 0 to %1; %2 is behind the last. Both at once: 3-7&gt;12.</source>
        <translation>Les images sont numérotées de 0 à %1 ; %2 est derrière la dernière. Les deux à la fois : 3-7&gt;12.</translation>
    </message>
    <message>
        <source>&amp;Before frame:</source>
        <translation>&amp;Avant l’image :</translation>
    </message>
    <message>
        <source>Set Pause</source>
        <translation>Régler la pause</translation>
    </message>
    <message>
        <source>In milliseconds (40ms), frames per second (15fps), percent of what it is (150%), or without a unit in %1. Browsers play pauses below 20ms slower.</source>
        <translation>En millisecondes (40ms), images par seconde (15fps), pourcentage de la valeur (150%), ou sans unité en %1. Les navigateurs jouent plus lentement les pauses de moins de 20ms.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>secondes</translation>
    </message>
    <message>
        <source>hundredths of a second</source>
        <translation>centièmes de seconde</translation>
    </message>
    <message>
        <source>&amp;Pause:</source>
        <translation>&amp;Pause :</translation>
    </message>
    <message>
        <source>Of the %1 &amp;selected frames</source>
        <translation>Des %1 images &amp;sélectionnées</translation>
    </message>
    <message>
        <source>Of the &amp;current frame</source>
        <translation>De l’image a&amp;ctuelle</translation>
    </message>
    <message>
        <source>Of &amp;all %1 frames</source>
        <translation>De &amp;toutes les %1 images</translation>
    </message>
    <message>
        <source>Also frames with a pause of their &amp;own</source>
        <translation>Aussi les images à pause pr&amp;opre</translation>
    </message>
    <message>
        <source>any</source>
        <translation>libre</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>&amp;Gauche :</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>&amp;Haut :</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Largeur :</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>Hau&amp;teur :</translation>
    </message>
    <message>
        <source>&amp;Ratio:</source>
        <translation>&amp;Rapport :</translation>
    </message>
    <message>
        <source>Trim Transparent &amp;Edges</source>
        <translation>Rogner les bor&amp;ds transparents</translation>
    </message>
    <message>
        <source>Trim to &amp;Changes</source>
        <translation>Rogner aux différen&amp;ces</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Rogner</translation>
    </message>
    <message>
        <source>Works on all frames and the canvas. Draw a rectangle on the picture, or type where it is.</source>
        <translation>Agit sur toutes les images et le canevas. Tracez un rectangle sur l’image, ou saisissez sa place.</translation>
    </message>
    <message>
        <source>the %1 selected frames</source>
        <translation>les %1 images sélectionnées</translation>
    </message>
    <message>
        <source>the current frame</source>
        <translation>l’image actuelle</translation>
    </message>
    <message>
        <source>Make Transparent</source>
        <translation>Rendre transparent</translation>
    </message>
    <message>
        <source>Works on %1. Click on the color in the picture, or type it.</source>
        <translation>Agit sur %1. Cliquez sur la couleur dans l’image, ou saisissez-la.</translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation>&amp;Couleur :</translation>
    </message>
    <message>
        <source>Works on all frames and the canvas.</source>
        <translation>Agit sur toutes les images et le canevas.</translation>
    </message>
    <message>
        <source>nearest: keeps pixels as they are</source>
        <translation>plus proche : garde les pixels tels quels</translation>
    </message>
    <message>
        <source>bilinear: soft</source>
        <translation>bilinéaire : doux</translation>
    </message>
    <message>
        <source>Lanczos: sharp</source>
        <translation>Lanczos : net</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>en haut à gauche</translation>
    </message>
    <message>
        <source>top</source>
        <translation>en haut</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>en haut à droite</translation>
    </message>
    <message>
        <source>left</source>
        <translation>à gauche</translation>
    </message>
    <message>
        <source>center</source>
        <translation>au centre</translation>
    </message>
    <message>
        <source>right</source>
        <translation>à droite</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>en bas à gauche</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>en bas</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>en bas à droite</translation>
    </message>
    <message>
        <source>Works on the current frame, the only one that is selected.</source>
        <translation>Agit sur l’image actuelle, la seule sélectionnée.</translation>
    </message>
    <message>
        <source>Resize Animation</source>
        <translation>Redimensionner l’animation</translation>
    </message>
    <message>
        <source>&amp;Percent:</source>
        <translation>&amp;Pour cent :</translation>
    </message>
    <message>
        <source>&amp;Keep the ratio</source>
        <translation>&amp;Garder le rapport</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>&amp;Filtre :</translation>
    </message>
    <message>
        <source>Canvas Size</source>
        <translation>Taille du canevas</translation>
    </message>
    <message>
        <source>Works on all frames. Pictures keep their size; what a smaller canvas has no room for is cut off.</source>
        <translation>Agit sur toutes les images. Elles gardent leur taille ; ce qui n’a pas de place sur un canevas plus petit est coupé.</translation>
    </message>
    <message>
        <source>&amp;Pictures stay at:</source>
        <translation>Les images &amp;restent :</translation>
    </message>
    <message>
        <source>scaled to the canvas</source>
        <translation>redimensionnées au canevas</translation>
    </message>
    <message>
        <source>padded to the canvas</source>
        <translation>étendues au canevas</translation>
    </message>
    <message>
        <source>cropped to the canvas</source>
        <translation>rognées au canevas</translation>
    </message>
    <message>
        <source>Fit Frames to Animation</source>
        <translation>Ajuster les images à l’animation</translation>
    </message>
    <message>
        <source>Pictures are &amp;to be:</source>
        <translation>Les images &amp;seront :</translation>
    </message>
    <message>
        <source>Adjust Colors</source>
        <translation>Régler les couleurs</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Luminosité :</translation>
    </message>
    <message>
        <source>&amp;Contrast:</source>
        <translation>&amp;Contraste :</translation>
    </message>
    <message>
        <source>&amp;Saturation:</source>
        <translation>&amp;Saturation :</translation>
    </message>
    <message>
        <source>&amp;Greyscale</source>
        <translation>Niveaux de &amp;gris</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>&amp;Opacity in percent:</source>
        <translation>&amp;Opacité en pour cent :</translation>
    </message>
    <message>
        <source>Overlay Image</source>
        <translation>Superposer une image</translation>
    </message>
    <message>
        <source>&amp;Image:</source>
        <translation>&amp;Image :</translation>
    </message>
    <message>
        <source>&amp;X offset:</source>
        <translation>Décalage &amp;X :</translation>
    </message>
    <message>
        <source>&amp;Y offset:</source>
        <translation>Décalage &amp;Y :</translation>
    </message>
    <message>
        <source>Writes the %1 selected frames side by side into one PNG image, and a JSON text beside it that says where each is.</source>
        <translation>Écrit les %1 images sélectionnées côte à côte dans une image PNG, et à côté un texte JSON qui dit où est chacune.</translation>
    </message>
    <message>
        <source>Writes the %1 frames side by side into one PNG image, and a JSON text beside it that says where each is.</source>
        <translation>Écrit les %1 images côte à côte dans une image PNG, et à côté un texte JSON qui dit où est chacune.</translation>
    </message>
    <message>
        <source>Export Sheet</source>
        <translation>Exporter une planche</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>&amp;Colonnes :</translation>
    </message>
    <message>
        <source>as many as rows</source>
        <translation>autant que de lignes</translation>
    </message>
    <message>
        <source>&amp;Padding in pixels:</source>
        <translation>&amp;Marge en pixels :</translation>
    </message>
    <message>
        <source>Sides are powers of &amp;two</source>
        <translation>Côtés en puissances de &amp;deux</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Texte :</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>&amp;Police :</translation>
    </message>
    <message>
        <source>&amp;Size in pixels:</source>
        <translation>Tai&amp;lle en pixels :</translation>
    </message>
    <message>
        <source>&amp;Outline in pixels:</source>
        <translation>C&amp;ontour en pixels :</translation>
    </message>
    <message>
        <source>Out&amp;line color:</source>
        <translation>Co&amp;uleur du contour :</translation>
    </message>
    <message>
        <source>Frames to fade &amp;in:</source>
        <translation>Images d’&amp;apparition :</translation>
    </message>
    <message>
        <source>Frames to fade o&amp;ut:</source>
        <translation>Images de &amp;disparition :</translation>
    </message>
    <message>
        <source>Draws on the %1 selected frames.</source>
        <translation>Dessine sur les %1 images sélectionnées.</translation>
    </message>
    <message>
        <source>Draws on the current frame, the only one that is selected.</source>
        <translation>Dessine sur l’image actuelle, la seule sélectionnée.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source> Click on the picture where it is to begin.</source>
        <translation> Cliquez dans l’image là où il doit commencer.</translation>
    </message>
    <message>
        <source>Insert Video</source>
        <translation>Insérer une vidéo</translation>
    </message>
    <message>
        <source>Makes frames of a part of the video &quot;%1&quot;. Draw a rectangle on the picture to cut it.</source>
        <translation>Fait des images d’une partie de la vidéo « %1 ». Tracez un rectangle sur l’image pour la rogner.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>À</translation>
    </message>
    <message>
        <source>Pla&amp;y</source>
        <translation>&amp;Jouer</translation>
    </message>
    <message>
        <source>Reading the video...</source>
        <translation>Lecture de la vidéo...</translation>
    </message>
    <message>
        <source>Frames a &amp;second:</source>
        <translation>Images par &amp;seconde :</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;De :</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;À :</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Width of the cut</source>
        <translation>Largeur du cadre</translation>
    </message>
    <message>
        <source>Height of the cut</source>
        <translation>Hauteur du cadre</translation>
    </message>
    <message>
        <source>C&amp;ut (x, y, w, h):</source>
        <translation>&amp;Cadre (x, y, l, h) :</translation>
    </message>
    <message>
        <source>This part is not in the video.</source>
        <translation>Cette partie n’est pas dans la vidéo.</translation>
    </message>
    <message>
        <source> The smallest that was tried has %1.</source>
        <translation> Le plus petit essai fait %1.</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>Suppri&amp;mer</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>E&amp;xporter...</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>&amp;Preset:</source>
        <translation>&amp;Préréglage :</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Préréglage</translation>
    </message>
    <message>
        <source>Keep &amp;As...</source>
        <translation>&amp;Garder sous...</translation>
    </message>
    <message>
        <source>Keep Preset</source>
        <translation>Garder le préréglage</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom :</translation>
    </message>
    <message>
        <source>Working...</source>
        <translation>En cours...</translation>
    </message>
    <message>
        <source>No file</source>
        <translation>Aucun fichier</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 octets</translation>
    </message>
    <message>
        <source>With </source>
        <translation>Avec </translation>
    </message>
    <message>
        <source>Export As</source>
        <translation>Exporter sous</translation>
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
        <translation>PNG animé</translation>
    </message>
    <message>
        <source>MP4 video</source>
        <translation>Vidéo MP4</translation>
    </message>
    <message>
        <source>WebM video</source>
        <translation>Vidéo WebM</translation>
    </message>
    <message>
        <source>F&amp;ormat:</source>
        <translation>F&amp;ormat :</translation>
    </message>
    <message>
        <source>&amp;Colors:</source>
        <translation>&amp;Couleurs :</translation>
    </message>
    <message>
        <source>The same colors in all fra&amp;mes</source>
        <translation>Les mêmes co&amp;uleurs dans toutes les images</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>diffusion</source>
        <translation>diffusion</translation>
    </message>
    <message>
        <source>ordered</source>
        <translation>ordonné</translation>
    </message>
    <message>
        <source>&amp;Dither:</source>
        <translation>&amp;Tramage :</translation>
    </message>
    <message>
        <source>&amp;Loss:</source>
        <translation>P&amp;erte :</translation>
    </message>
    <message>
        <source>&amp;Keep every pixel</source>
        <translation>Garder ch&amp;aque pixel</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>&amp;Qualité :</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>Éche&amp;lle :</translation>
    </message>
    <message>
        <source>&amp;Every n-th frame:</source>
        <translation>U&amp;ne image sur :</translation>
    </message>
    <message>
        <source>Fit &amp;under</source>
        <translation>Tenir &amp;sous</translation>
    </message>
    <message>
        <source>Fit under</source>
        <translation>Tenir sous</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> Ko</translation>
    </message>
    <message>
        <source>Chat 8 MB</source>
        <translation>Messagerie 8 Mo</translation>
    </message>
    <message>
        <source>E-mail 1 MB</source>
        <translation>Courriel 1 Mo</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentation</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Number of rows of tiles in the image</source>
        <translation>Nombre de lignes de tuiles dans l’image</translation>
    </message>
    <message>
        <source>Number of columns of tiles in the image</source>
        <translation>Nombre de colonnes de tuiles dans l’image</translation>
    </message>
    <message>
        <source>Row by row</source>
        <translation>Ligne par ligne</translation>
    </message>
    <message>
        <source>Column by column</source>
        <translation>Colonne par colonne</translation>
    </message>
    <message>
        <source>Rows:</source>
        <translation>Lignes :</translation>
    </message>
    <message>
        <source>Columns:</source>
        <translation>Colonnes :</translation>
    </message>
    <message>
        <source>Size of a tile in pixels, in place of rows and columns; 0: by rows and columns. Width, height and spacing may be typed at once: 64x48+2, or 64+2 for squares</source>
        <translation>Taille d’une tuile en pixels, au lieu des lignes et colonnes ; 0 : par lignes et colonnes. Largeur, hauteur et espacement peuvent être saisis d’un coup : 64x48+2, ou 64+2 pour des carrés</translation>
    </message>
    <message>
        <source>Tile &amp;width:</source>
        <translation>&amp;Largeur de tuile :</translation>
    </message>
    <message>
        <source>Tile &amp;height:</source>
        <translation>&amp;Hauteur de tuile :</translation>
    </message>
    <message>
        <source>&amp;Margin:</source>
        <translation>&amp;Marge :</translation>
    </message>
    <message>
        <source>Pixels around all tiles</source>
        <translation>Pixels autour de toutes les tuiles</translation>
    </message>
    <message>
        <source>&amp;Spacing:</source>
        <translation>&amp;Espacement :</translation>
    </message>
    <message>
        <source>Pixels between two tiles</source>
        <translation>Pixels entre deux tuiles</translation>
    </message>
    <message>
        <source>Skip &amp;empty tiles</source>
        <translation>Sauter les tuiles &amp;vides</translation>
    </message>
    <message>
        <source>Makes no frames of tiles that are transparent everywhere</source>
        <translation>Ne fait pas d’images des tuiles partout transparentes</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format :</translation>
    </message>
    <message>
        <source>One animation, or one image file per frame</source>
        <translation>Une animation, ou un fichier par image</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Réglages...</translation>
    </message>
    <message>
        <source>Options of the chosen format</source>
        <translation>Options du format choisi</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Planche</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compression</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Sans perte</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>Codage par plages</translation>
    </message>
    <message>
        <source>Translator Settings</source>
        <translation>Réglages du traducteur</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Guide</translation>
    </message>
    <message>
        <source>Kirto - Guide</source>
        <translation>Kirto - Guide</translation>
    </message>
    <message>
        <source>The page &quot;%1&quot; is not part of the installed guide.</source>
        <translation>La page « %1 » ne fait pas partie du guide installé.</translation>
    </message>
    <message>
        <source>The guide is not installed with this program.</source>
        <translation>Le guide n’est pas installé avec ce programme.</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Sommaire</translation>
    </message>
    <message>
        <source>The first page</source>
        <translation>La première page</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Retour</translation>
    </message>
    <message>
        <source>The page before this one (Alt+Left)</source>
        <translation>La page d’avant (Alt+Gauche)</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Suivante</translation>
    </message>
    <message>
        <source>The page after it (Alt+Right)</source>
        <translation>La page d’après (Alt+Droite)</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>C&amp;hercher :</translation>
    </message>
    <message>
        <source>Find on this page</source>
        <translation>Chercher dans cette page</translation>
    </message>
    <message>
        <source>Finds a text on this page; Return finds the next place</source>
        <translation>Cherche un texte dans cette page ; Entrée trouve le suivant</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not on this page.</source>
        <translation>« %1 » n’est pas dans cette page.</translation>
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
        <translation>La pause dans d’autres unités</translation>
    </message>
    <message>
        <source>, %1 fps</source>
        <translation>, %L1 im/s</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>mixed</source>
        <translation>divers</translation>
    </message>
    <message>
        <source>Width of the animation in pixels</source>
        <translation>Largeur de l’animation en pixels</translation>
    </message>
    <message>
        <source>Height of the animation in pixels</source>
        <translation>Hauteur de l’animation en pixels</translation>
    </message>
    <message>
        <source>Pause after every frame that has no pause of its own</source>
        <translation>Pause après chaque image qui n’en a pas de propre</translation>
    </message>
    <message>
        <source>Use pause:</source>
        <translation>Pause :</translation>
    </message>
    <message>
        <source>Length of the pause, in the unit chosen in the preferences</source>
        <translation>Durée de la pause, dans l’unité choisie dans les préférences</translation>
    </message>
    <message>
        <source>Play the animation more than once</source>
        <translation>Jouer l’animation plus d’une fois</translation>
    </message>
    <message>
        <source>Use loop:</source>
        <translation>Boucle :</translation>
    </message>
    <message>
        <source>How many times to play the animation; 0 = forever</source>
        <translation>Combien de fois jouer l’animation ; 0 = sans fin</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message numerus="yes">
        <source>1 color</source>
        <comment>%n colors</comment>
        <translation>
            <numerusform>%n couleur</numerusform>
            <numerusform>%n couleurs</numerusform>
        </translation>
    </message>
    <message>
        <source>Current Frame</source>
        <translation>Image actuelle</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Distance of the frame from the animation&apos;s left edge, in pixels</source>
        <translation>Distance de l’image au bord gauche de l’animation, en pixels</translation>
    </message>
    <message>
        <source>X offset:</source>
        <translation>Décalage X :</translation>
    </message>
    <message>
        <source>Distance of the frame from the animation&apos;s top edge, in pixels</source>
        <translation>Distance de l’image au bord supérieur de l’animation, en pixels</translation>
    </message>
    <message>
        <source>Y offset:</source>
        <translation>Décalage Y :</translation>
    </message>
    <message>
        <source>Give the frame a pause of its own</source>
        <translation>Donner à l’image une pause propre</translation>
    </message>
    <message>
        <source>Use pause</source>
        <translation>Pause propre</translation>
    </message>
    <message>
        <source>Length of the frame&apos;s pause, in the unit chosen in the preferences</source>
        <translation>Durée de la pause de l’image, dans l’unité choisie dans les préférences</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Durée :</translation>
    </message>
    <message>
        <source>Save the frame with a palette of its own</source>
        <translation>Enregistrer l’image avec une palette propre</translation>
    </message>
    <message>
        <source>Local palette</source>
        <translation>Palette propre</translation>
    </message>
    <message>
        <source>BeOS system</source>
        <translation>système BeOS</translation>
    </message>
    <message>
        <source>web safe</source>
        <translation>couleurs web</translation>
    </message>
    <message>
        <source>greyscale</source>
        <translation>niveaux de gris</translation>
    </message>
    <message>
        <source>optimal</source>
        <translation>optimale</translation>
    </message>
    <message>
        <source>from a file</source>
        <translation>d’un fichier</translation>
    </message>
    <message>
        <source>The colors of the frame&apos;s own palette</source>
        <translation>Les couleurs de la palette propre de l’image</translation>
    </message>
    <message>
        <source>Local palette colors</source>
        <translation>Couleurs de la palette propre</translation>
    </message>
    <message>
        <source>Frame list</source>
        <translation>Liste d’images</translation>
    </message>
    <message>
        <source>Show the frames as pictures</source>
        <translation>Montrer les images en vignettes</translation>
    </message>
    <message>
        <source>Show the frames as a list, with a preview of the current one</source>
        <translation>Montrer les images en liste, avec un aperçu de l’actuelle</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Avis</translation>
    </message>
    <message>
        <source>Palette:</source>
        <translation>Palette :</translation>
    </message>
    <message>
        <source>first frame</source>
        <translation>première image</translation>
    </message>
    <message>
        <source>The colors used to save all frames that have no palette of their own</source>
        <translation>Les couleurs d’enregistrement des images sans palette propre</translation>
    </message>
    <message>
        <source>Mapping:</source>
        <translation>Couleurs :</translation>
    </message>
    <message>
        <source>Approximate missing colors by dithering</source>
        <translation>Approcher les couleurs manquantes par tramage</translation>
    </message>
    <message>
        <source>Palette index of the background color</source>
        <translation>Index de la couleur du fond dans la palette</translation>
    </message>
    <message>
        <source>Make one color of the palette transparent</source>
        <translation>Rendre transparente une couleur de la palette</translation>
    </message>
    <message>
        <source>Transparent index:</source>
        <translation>Index transparent :</translation>
    </message>
    <message>
        <source>Palette index of the transparent color</source>
        <translation>Index de la couleur transparente dans la palette</translation>
    </message>
    <message>
        <source>%1 kB</source>
        <translation>%L1 ko</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%L1 Mo</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%L1 Go</translation>
    </message>
    <message>
        <source>Status: 0 frame(s), unmodified</source>
        <translation>État : 0 image(s), non modifié</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Stops what is being done; what is complete is kept</source>
        <translation>Arrête le travail en cours ; ce qui est complet est gardé</translation>
    </message>
    <message>
        <source>Status: %1 frame(s), %2</source>
        <translation>État : %1 image(s), %2</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>modifié</translation>
    </message>
    <message>
        <source>unmodified</source>
        <translation>non modifié</translation>
    </message>
    <message>
        <source>%1 in memory</source>
        <translation>%1 en mémoire</translation>
    </message>
    <message>
        <source>The size of the file is not known yet.</source>
        <translation>La taille du fichier n’est pas encore connue.</translation>
    </message>
    <message>
        <source>file %1</source>
        <translation>fichier %1</translation>
    </message>
    <message>
        <source>file about %1</source>
        <translation>fichier environ %1</translation>
    </message>
    <message>
        <source>Saved as a GIF file, it has %1 bytes.</source>
        <translation>Enregistrée en GIF, elle fait %1 octets.</translation>
    </message>
    <message>
        <source>Saved as a GIF file, it has about %1 bytes.</source>
        <translation>Enregistrée en GIF, elle fait environ %1 octets.</translation>
    </message>
    <message>
        <source>The animation and what can be undone take %1.</source>
        <translation>L’animation et ce qui peut être annulé occupent %1.</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%L1 s</translation>
    </message>
    <message>
        <source>%1 of %2 selected, %3 s of %4</source>
        <translation>%1 sur %2 sélectionnées, %L3 s sur %4</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Plus petit</translation>
    </message>
    <message>
        <source>How large pixels are shown</source>
        <translation>Taille des pixels affichés</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Plus grand</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>As large as fits</source>
        <translation>Aussi grand que possible</translation>
    </message>
    <message>
        <source>In its own size</source>
        <translation>À sa propre taille</translation>
    </message>
    <message>
        <source>Onion skin</source>
        <translation>Pelure d’oignon</translation>
    </message>
    <message>
        <source>Let the frames beside this one be seen through it</source>
        <translation>Laisser voir les images voisines au travers</translation>
    </message>
    <message>
        <source>No onion skin</source>
        <translation>Sans pelure d’oignon</translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation>Image précédente</translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation>Image suivante</translation>
    </message>
    <message>
        <source>Both frames</source>
        <translation>Les deux images</translation>
    </message>
    <message>
        <source>Opacity of the onion skin</source>
        <translation>Opacité de la pelure d’oignon</translation>
    </message>
    <message>
        <source>How much of the frames beside this one is seen</source>
        <translation>Ce qu’on voit des images voisines</translation>
    </message>
    <message>
        <source>Saved colors</source>
        <translation>Couleurs enregistrées</translation>
    </message>
    <message>
        <source>Show the frame with the colors that a GIF file will have</source>
        <translation>Montrer l’image avec les couleurs qu’aura un fichier GIF</translation>
    </message>
    <message>
        <source>no frame</source>
        <translation>aucune image</translation>
    </message>
    <message>
        <source>transparent</source>
        <translation>transparent</translation>
    </message>
    <message>
        <source>, alpha %1</source>
        <translation>, alpha %1</translation>
    </message>
    <message>
        <source>, index %1</source>
        <translation>, index %1</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>image %1</translation>
    </message>
    <message>
        <source>To the start</source>
        <translation>Au début</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Jouer</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>To the end</source>
        <translation>À la fin</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Répétition</translation>
    </message>
    <message>
        <source>How often the animation is played</source>
        <translation>Combien de fois l’animation est jouée</translation>
    </message>
    <message>
        <source>As saved</source>
        <translation>Comme enregistrée</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Toujours</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>Une fois</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>How many times as fast as the animation says</source>
        <translation>Combien de fois plus vite que ne le dit l’animation</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>Play the selected frames only</source>
        <translation>Ne jouer que les images sélectionnées</translation>
    </message>
    <message>
        <source>Like a browser</source>
        <translation>Comme un navigateur</translation>
    </message>
    <message>
        <source>Show frames for 0.10 s whose pause is below 0.02 s, as browsers do</source>
        <translation>Montrer 0,10 s les images dont la pause est inférieure à 0,02 s, comme les navigateurs</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>#%1 of %2, %3 s of %4 s</source>
        <translation>#%1 sur %2, %3 s sur %4 s</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;de</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Guide</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts...</source>
        <translation>&amp;Raccourcis clavier...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>À &amp;propos...</translation>
    </message>
    <message>
        <source>Kirto - untitled</source>
        <translation>Kirto - untitled</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>A&amp;bout...</source>
        <translation>À &amp;propos...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Dupliquer</translation>
    </message>
    <message>
        <source>&amp;Move To...</source>
        <translation>Dé&amp;placer vers...</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>Ne rien sélect&amp;ionner</translation>
    </message>
    <message>
        <source>&amp;Invert Selection</source>
        <translation>In&amp;verser la sélection</translation>
    </message>
    <message>
        <source>Select &amp;Every Nth...</source>
        <translation>Sélectionner u&amp;ne image sur n...</translation>
    </message>
    <message>
        <source>Select Ran&amp;ge...</source>
        <translation>Sélectionner une pla&amp;ge...</translation>
    </message>
    <message>
        <source>Go to &amp;Frame...</source>
        <translation>A&amp;ller à l’image...</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Aperçu</translation>
    </message>
    <message>
        <source>Toggle &amp;Mode</source>
        <translation>Changer d’affic&amp;hage</translation>
    </message>
    <message>
        <source>P&amp;references...</source>
        <translation>&amp;Préférences...</translation>
    </message>
    <message>
        <source>Show Pla&amp;yer</source>
        <translation>Montrer le &amp;lecteur</translation>
    </message>
    <message>
        <source>Pl&amp;ay or Pause</source>
        <translation>&amp;Jouer ou suspendre</translation>
    </message>
    <message>
        <source>Hide Frame &amp;Labels</source>
        <translation>Masquer les é&amp;tiquettes</translation>
    </message>
    <message>
        <source>&amp;Colors...</source>
        <translation>&amp;Couleurs...</translation>
    </message>
    <message>
        <source>&amp;Insert...</source>
        <translation>&amp;Insérer...</translation>
    </message>
    <message>
        <source>Insert &amp;Tiled...</source>
        <translation>Insérer des &amp;tuiles...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Descendre</translation>
    </message>
    <message>
        <source>Re&amp;verse All</source>
        <translation>Tout in&amp;verser</translation>
    </message>
    <message>
        <source>&amp;Fade Effects...</source>
        <translation>&amp;Effets de fondu...</translation>
    </message>
    <message>
        <source>&amp;Insert Animation...</source>
        <translation>&amp;Insérer une animation...</translation>
    </message>
    <message>
        <source>Export &amp;Sheet...</source>
        <translation>Exporter une p&amp;lanche...</translation>
    </message>
    <message>
        <source>Set &amp;Pause...</source>
        <translation>Régler la &amp;pause...</translation>
    </message>
    <message>
        <source>&amp;Forward and Back</source>
        <translation>Aller et &amp;retour</translation>
    </message>
    <message>
        <source>Shift Start to Curre&amp;nt Frame</source>
        <translation>Commencer à l’image act&amp;uelle</translation>
    </message>
    <message>
        <source>Remove D&amp;uplicates...</source>
        <translation>Supprimer les &amp;doublons...</translation>
    </message>
    <message>
        <source>&amp;Drop Every Nth...</source>
        <translation>Retirer u&amp;ne image sur n...</translation>
    </message>
    <message>
        <source>&amp;Resize Animation...</source>
        <translation>Redimen&amp;sionner l’animation...</translation>
    </message>
    <message>
        <source>&amp;Crop...</source>
        <translation>Ro&amp;gner...</translation>
    </message>
    <message>
        <source>Can&amp;vas Size...</source>
        <translation>Taille du cane&amp;vas...</translation>
    </message>
    <message>
        <source>Rotate Ri&amp;ght</source>
        <translation>Tourner à dr&amp;oite</translation>
    </message>
    <message>
        <source>Rotate &amp;Left</source>
        <translation>Tourner à gauc&amp;he</translation>
    </message>
    <message>
        <source>Flip &amp;Horizontally</source>
        <translation>Retourner hori&amp;zontalement</translation>
    </message>
    <message>
        <source>Flip Verticall&amp;y</source>
        <translation>Retourner verticalement (&amp;y)</translation>
    </message>
    <message>
        <source>Fit Fra&amp;mes to Animation...</source>
        <translation>A&amp;juster les images à l’animation...</translation>
    </message>
    <message>
        <source>&amp;Adjust Colors...</source>
        <translation>Régler les &amp;couleurs...</translation>
    </message>
    <message>
        <source>&amp;Opacity...</source>
        <translation>Op&amp;acité...</translation>
    </message>
    <message>
        <source>Overlay Imag&amp;e...</source>
        <translation>Superposer une i&amp;mage...</translation>
    </message>
    <message>
        <source>&amp;Text...</source>
        <translation>&amp;Texte...</translation>
    </message>
    <message>
        <source>Ma&amp;ke Transparent...</source>
        <translation>R&amp;endre transparent...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>F&amp;rame</source>
        <translation>&amp;Image</translation>
    </message>
    <message>
        <source>&amp;Animation</source>
        <translation>A&amp;nimation</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Annuler %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rétablir %1</translation>
    </message>
    <message>
        <source>Re&amp;verse Selected</source>
        <translation>In&amp;verser la sélection</translation>
    </message>
    <message>
        <source>Hide Pla&amp;yer</source>
        <translation>Masquer le &amp;lecteur</translation>
    </message>
    <message>
        <source>Show Frame &amp;Labels</source>
        <translation>Montrer les é&amp;tiquettes</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Vider la liste</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Ouvrir un fichier &amp;récent</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open an animation</source>
        <translation>Ouvrir une animation</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insérer</translation>
    </message>
    <message>
        <source>Insert images as frames</source>
        <translation>Insérer des fichiers comme images</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Take the last change back</source>
        <translation>Reprendre la dernière modification</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Make it again</source>
        <translation>La refaire</translation>
    </message>
    <message>
        <source>Play the animation, or pause it</source>
        <translation>Jouer l’animation, ou la suspendre</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Save under another name or as images</source>
        <translation>Enregistrer sous un autre nom ou en images</translation>
    </message>
    <message>
        <source>Write as another format, or smaller</source>
        <translation>Écrire dans un autre format, ou plus petit</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Show the animation in the browser</source>
        <translation>Montrer l’animation dans le navigateur</translation>
    </message>
    <message>
        <source>%1 (tool bar)</source>
        <translation>%1 (barre d’outils)</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>&amp;Tool Bar</source>
        <translation>Barre d’&amp;outils</translation>
    </message>
    <message>
        <source>Hit a key</source>
        <translation>Frappez une touche</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>Search for an action or a key</source>
        <translation>Chercher une action ou une touche</translation>
    </message>
    <message>
        <source>Shows only the actions with this in their name or key</source>
        <translation>Ne montre que les actions dont le nom ou la touche contient ceci</translation>
    </message>
    <message>
        <source>Actions and their keys</source>
        <translation>Les actions et leurs touches</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Touche</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation>&amp;Touche :</translation>
    </message>
    <message>
        <source>Key of the chosen action</source>
        <translation>Touche de l’action choisie</translation>
    </message>
    <message>
        <source>Hit the key that the action is to have; Backspace for none</source>
        <translation>Frappez la touche que l’action doit avoir ; Retour arrière pour aucune</translation>
    </message>
    <message>
        <source>&amp;Take Over</source>
        <translation>&amp;Reprendre</translation>
    </message>
    <message>
        <source>Takes the key from the other action</source>
        <translation>Prend la touche à l’autre action</translation>
    </message>
    <message>
        <source>&amp;Default</source>
        <translation>Par &amp;défaut</translation>
    </message>
    <message>
        <source>The key that this action has at first</source>
        <translation>La touche que cette action a au début</translation>
    </message>
    <message>
        <source>&amp;Restore Defaults</source>
        <translation>&amp;Rétablir tout</translation>
    </message>
    <message>
        <source>The keys that all actions have at first</source>
        <translation>Les touches que toutes les actions ont au début</translation>
    </message>
    <message>
        <source>Such a key is needed for typing, moving or opening menus. Hit one with Ctrl, or a function key.</source>
        <translation>Une telle touche sert à écrire, à se déplacer ou à ouvrir des menus. Frappez-en une avec Ctrl, ou une touche de fonction.</translation>
    </message>
    <message>
        <source>%1 is the key of &quot;%2&quot; in the menu &quot;%3&quot;.</source>
        <translation>%1 est la touche de « %2 » dans le menu « %3 ».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer has %2.</source>
        <translation>« %1 » n’a plus %2.</translation>
    </message>
    <message>
        <source>The keys could not be stored; they hold until the program ends.</source>
        <translation>Les touches n’ont pas pu être enregistrées ; elles valent jusqu’à la fin du programme.</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Différences</translation>
    </message>
    <message>
        <source>The frame in Kirto</source>
        <translation>L’image dans Kirto</translation>
    </message>
    <message>
        <source>The frame in browsers</source>
        <translation>L’image dans les navigateurs</translation>
    </message>
    <message>
        <source>In Kirto</source>
        <translation>Dans Kirto</translation>
    </message>
    <message>
        <source>In browsers</source>
        <translation>Dans les navigateurs</translation>
    </message>
    <message>
        <source>Frame that differs</source>
        <translation>Image qui diffère</translation>
    </message>
    <message>
        <source>&amp;In turns</source>
        <translation>&amp;En alternance</translation>
    </message>
    <message>
        <source>In turns</source>
        <translation>En alternance</translation>
    </message>
    <message>
        <source>Shows both in one place, one after the other</source>
        <translation>Montre les deux au même endroit, l’une après l’autre</translation>
    </message>
    <message>
        <source>Frame %1 of %2</source>
        <translation>Image %1 sur %2</translation>
    </message>
    <message>
        <source>own pause</source>
        <translation>pause propre</translation>
    </message>
    <message>
        <source>own palette</source>
        <translation>palette propre</translation>
    </message>
    <message>
        <source>cleared after it was shown</source>
        <translation>effacée après avoir été montrée</translation>
    </message>
    <message>
        <source>what was before comes back after it</source>
        <translation>ce qui était avant revient ensuite</translation>
    </message>
    <message>
        <source>frame #%1    %2</source>
        <translation>image #%1    %2</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Insert image files</source>
        <translation>Insérer des fichiers d’images</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Remove the current frame</source>
        <translation>Supprimer l’image actuelle</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move the current frame toward the start</source>
        <translation>Déplacer l’image actuelle vers le début</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Move the current frame toward the end</source>
        <translation>Déplacer l’image actuelle vers la fin</translation>
    </message>
    <message>
        <source>Preview: 100%</source>
        <translation>Aperçu : 100%</translation>
    </message>
    <message>
        <source>Preview: %1%</source>
        <translation>Aperçu : %1%</translation>
    </message>
    <message>
        <source>Select frames</source>
        <translation>Sélectionner des images</translation>
    </message>
    <message>
        <source>Frames as 3-7, 0-20/2 or 0,4,7; Return selects them, Escape leaves the selection</source>
        <translation>Images comme 3-7, 0-20/2 ou 0,4,7 ; Entrée les sélectionne, Échap garde la sélection</translation>
    </message>
    <message>
        <source>Recent animations</source>
        <translation>Animations récentes</translation>
    </message>
    <message>
        <source>%1 in %2, %3</source>
        <translation>%1 dans %2, %3</translation>
    </message>
    <message>
        <source>
The file is not there.</source>
        <translation>
Le fichier n’est pas là.</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Vignettes</translation>
    </message>
    <message>
        <source>no frames</source>
        <translation>aucune image</translation>
    </message>
    <message>
        <source>frame #%1 %2, %3 x %4, %5 frame(s)</source>
        <translation>image #%1 %2, %3 x %4, %5 image(s)</translation>
    </message>
    <message>
        <source>, %1 selected</source>
        <translation>, %1 sélectionnées</translation>
    </message>
    <message>
        <source>frame #%1    %2
%3 x %4</source>
        <translation>image #%1    %2
%3 x %4</translation>
    </message>
    <message>
        <source>Drop images or an animation here,
or choose Insert...
from the Frame menu.</source>
        <translation>Déposez ici des images ou une animation,
ou choisissez « Insérer... »
dans le menu « Image ».</translation>
    </message>
    <message>
        <source>Insert Frame</source>
        <translation>Insérer une image</translation>
    </message>
    <message>
        <source>Remove Frame</source>
        <translation>Supprimer l’image</translation>
    </message>
    <message>
        <source>Fade Effects...</source>
        <translation>Effets de fondu...</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Set Pause...</source>
        <translation>Régler la pause...</translation>
    </message>
    <message>
        <source>Thumbnail height: %1</source>
        <translation>Hauteur des vignettes : %1</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Ouvrir...</translation>
    </message>
    <message>
        <source>Insert Images...</source>
        <translation>Insérer des images...</translation>
    </message>
    <message>
        <source>Make an animation of images</source>
        <translation>Faire une animation à partir d’images</translation>
    </message>
    <message>
        <source>Recent animations:</source>
        <translation>Animations récentes :</translation>
    </message>
    <message>
        <source>Also found in the preferences, under Compatibility</source>
        <translation>Aussi dans les préférences, sous « Compatibilité »</translation>
    </message>
    <message>
        <source>Thumbnail height</source>
        <translation>Hauteur des vignettes</translation>
    </message>
    <message>
        <source>Height of the thumbnails in pixels</source>
        <translation>Hauteur des vignettes en pixels</translation>
    </message>
    <message>
        <source>Use frame:</source>
        <translation>D’après :</translation>
    </message>
    <message>
        <source>first half sized</source>
        <translation>première, moitié</translation>
    </message>
    <message>
        <source>current half sized</source>
        <translation>actuelle, moitié</translation>
    </message>
    <message>
        <source>first full sized</source>
        <translation>première, entière</translation>
    </message>
    <message>
        <source>current full sized</source>
        <translation>actuelle, entière</translation>
    </message>
    <message>
        <source>Set the thumbnail height from a frame, or so that all frames fit</source>
        <translation>Régler la hauteur des vignettes d’après une image, ou pour que toutes tiennent</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Chronologie</translation>
    </message>
    <message>
        <source>Drag a block to move its frame, its right edge to change its pause, the ruler to go to a frame. Ctrl and the wheel zoom.</source>
        <translation>Faites glisser un bloc pour déplacer son image, son bord droit pour changer sa pause, la règle pour aller à une image. Ctrl et la molette zooment.</translation>
    </message>
    <message>
        <source>Frame %1, %2</source>
        <translation>Image %1, %2</translation>
    </message>
    <message>
        <source>The file exists already. Do you want to replace it?</source>
        <translation>Le fichier existe déjà. Voulez-vous le remplacer ?</translation>
    </message>
    <message>
        <source>Some of the files exist already (%1). Do you want to replace them?</source>
        <translation>Certains des fichiers existent déjà (%1). Voulez-vous les remplacer ?</translation>
    </message>
    <message>
        <source>Sheet with JSON</source>
        <translation>Planche avec JSON</translation>
    </message>
    <message>
        <source>Numbered images</source>
        <translation>Images numérotées</translation>
    </message>
    <message>
        <source>Stren&amp;gth:</source>
        <translation>Fo&amp;rce :</translation>
    </message>
    <message>
        <source>Cha&amp;nged areas only</source>
        <translation>Zones mo&amp;difiées seulement</translation>
    </message>
    <message>
        <source>Off: each frame is written whole, for programs that do not build on the one before</source>
        <translation>Décoché : chaque image est écrite en entier, pour les programmes qui ne partent pas de la précédente</translation>
    </message>
    <message>
        <source>Ma&amp;tte:</source>
        <translation>&amp;Fond :</translation>
    </message>
    <message>
        <source>&amp;Image format:</source>
        <translation>Format d’&amp;image :</translation>
    </message>
    <message>
        <source>Colum&amp;ns:</source>
        <translation>Colonn&amp;es :</translation>
    </message>
    <message>
        <source>Pa&amp;dding:</source>
        <translation>Espacemen&amp;t :</translation>
    </message>
    <message>
        <source>damaged, what was good was kept</source>
        <translation>endommagée, ce qui était bon a été gardé</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1 :</translation>
    </message>
</context>
</TS>
