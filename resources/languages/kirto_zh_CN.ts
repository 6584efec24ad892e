<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CoreText</name>
    <message>
        <source>the frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>both frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all %1 frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for ever</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>less than 1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more than 99 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 pixel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, by %1 of 255 on average</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>browsers will play 1 frame slower: its pause is below 0.02 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>browsers will play %1 frames slower: their pauses are below 0.02 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the animation will have %1 x %2 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no frame will be shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 frame(s) will be shown instead of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 will show trails, of up to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 will show trails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 will show pixels of others, too few to be seen: up to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 will show pixels of others, too few to be seen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 will not be transparent: no color stands for that</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 will lack pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of the pixels lost their color%2: %3 colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 will be shown for another time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the animation will play %1 instead of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forward and Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop Every Nth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Frame Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The video can&apos;t be written because the program ffmpeg was not found. Install the package &quot;ffmpeg&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no frame to export.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The animation is too large for a %1 file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing here that writes %1 files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Out of memory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program that writes videos has failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The animation can&apos;t be made so small.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is on the clipboard can&apos;t be pasted because it was damaged or is unsupported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file can&apos;t be inserted because it does not describe a sheet: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file can&apos;t be inserted because a frame is not on the sheet: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert Tiled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Frame Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Frame Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reverse All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit Frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to open or create a settings file. Default values will be used instead, but may not be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings file was damaged. It has been put aside as &quot;%1&quot;, and default values will be used instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>canceled, %1 new frame(s) kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you wish to insert this image into the current animation or open it as a new animation?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The animation can&apos;t be opened because this file type is unsupported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to save your changes?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The palette can&apos;t be loaded because the file was corrupted or unreadable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program has changed the file &quot;%1&quot; since it was opened or saved. Do you want to overwrite it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>saving was canceled, the file is as it was before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The animation can&apos;t be saved because one of the frames has a larger size than the animation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The animation can&apos;t be saved because %1 is not between 0 and 65535.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>saved, but %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>saving was canceled, %1 of %2 file(s) written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The animation can&apos;t be previewed because one of the frames has a larger size than the animation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The animation can&apos;t be previewed because %1 is not between 0 and 65535.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the preview was canceled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The animation can&apos;t be previewed because a temporary file could not be created.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The animation can&apos;t be recovered because its copy was damaged. The copy has been put aside.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The animation can&apos;t be recovered because it needs more memory than there is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The animation can&apos;t be recovered because its copy can&apos;t be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The animation can&apos;t be recovered because the open one has unsaved changes. It will be offered again when the editor is started next.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>saving was canceled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opened as browsers do. Animations are read and saved that way from now on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 frame(s) are larger than the animation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Faithfully</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In browsers %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open as Browsers Do</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Salvage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an image has codes for fewer colors than its palette has</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an image is larger than the screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file ends without its trailer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has a record of an unknown type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The video can&apos;t be opened because the chosen part is not in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The animation can&apos;t be opened because it was corrupted or unreadable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The video can&apos;t be opened because the program ffmpeg was not found. Install the package &quot;ffmpeg&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>canceled, nothing changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no frame shows anything else than another</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all frames are transparent everywhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status: adjusting frame %1 of %2...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status: fading frame %1 of %2...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status: changing frame %1 of %2...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file can&apos;t be drawn because this file type is unsupported: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Canvas Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overlay Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make Transparent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The editor ended unexpectedly. &quot;%1&quot; (%2 frame(s), %3) can be recovered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1% of the pixels got another color, by %2 of 255 on average</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>XOffset of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>YOffset of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>loop count %1 was saved as %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 pause(s) above 655.35 seconds were saved shorter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The animation can&apos;t be saved because the file could not be created at this location.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The animation can&apos;t be saved because the selected translator is not valid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: a frame of the text is not on the picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 as the text says.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, %1 without the empty ones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This image is too large to be shown here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: rows or columns are missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no tile has room.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 and %3 of %4 × %5 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no frame to save.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sheet can&apos;t be saved because it would be too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 frame of %2, at most %3 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 frames of %2, at most %3 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Pause Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Loop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loop count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Loop Count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Background Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Transparency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparent index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Transparent Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dither</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Dither</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>XOffset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change X Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>YOffset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Y Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Frame Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Frame Pause Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Local Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status: loading tile %1 of %2...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file can&apos;t be inserted because this file type is unsupported: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file can&apos;t be inserted because the color space is unsupported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status: generating frame %1 of %2...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These files can&apos;t be inserted because their types are unsupported:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status: loading frame %1 of %2...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This frame can&apos;t be inserted because the number of rows or columns is illegal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status: cropping frame %1 of %2...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status: fitting frame %1 of %2...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status: drawing on frame %1 of %2...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status: resizing frame %1 of %2...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status: turning frame %1 of %2...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status: writing frame %1 of %2...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status: loading frame %1...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be less than %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be greater than %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame count must be between 1 and 100.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You must enter a valid, absolute path and file name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You must enter a valid absolute path.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You must enter a color as #rrggbb.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You must enter colors as #rrggbb, with blanks between them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preset can&apos;t be kept under this name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert Tiled Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert Frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file named &quot;%1&quot; already exists. Do you want to replace it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file named &quot;%1&quot; already exists. Do you want to replace the files of this sequence?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animated GIF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sequence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kirto v1.4
An editor for frame animations, by Morvik
https://kirto.example.org

Please send in bug reports and feature requests.

Thanks to all who shared their code for GIF files, and for a long conversation about dithering.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Paletted File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preview was written, but no program to show it was found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want all actions to have the keys again that they had at first?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file could not be saved because the Targa translator is either missing or failed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UiText</name>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Global</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Miscellaneous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compatibility</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Control Defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width in pixels:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height in pixels:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause this long between frames:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loop this many times (0 is infinitely):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set size of animation from first frame inserted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause length should be measured in:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hundredths of a second (GIF standard)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mapping Defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The global palette should use:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The web safe palette (standard 216 colors)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The BeOS system palette (256 colors)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A greyscale palette (256 levels of grey)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A palette from:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other Defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use dithering</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background index:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparent index from global palette:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When a frame is inserted, the thumbnail height:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Should be set to the full size of the first frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Should be set to half the size of the first frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Should be set to this value:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Should not change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum thumbnail height:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum thumbnail height:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw frames with transparency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced GIF Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After each frame, the GIF decoder should:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take no action (default)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave the current frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore the background color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore the previous frame (rarely supported)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write interlaced frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write &quot;Made with Kirto on BeOS&quot; comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If the animation uses delta compression, assemble each frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On startup, use:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thumbnail mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame list mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save and restore main window size and position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write temporary files to:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browsers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read and save as browsers show it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames of more than 256 colors are saved then</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without dithering</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dithered as best suits each frame (Floyd-Steinberg)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dithered so that what stands still does not flicker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the same colors for all frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep these colors:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lay soft edges on:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparent below alpha:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick from &amp;Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes the color that is clicked next, anywhere on the screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This desktop lets no program see the screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color %1, %2, %3 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, transparent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colors of:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>current frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All frames are those without a palette of their own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorted by:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use is the number of pixels that have the color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A click:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only tells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>makes it the background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>makes it transparent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What a click or the Enter key does with a color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade Effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to an rgb color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from an rgb color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to next frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from previous frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What to blend the current frame with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The number of new frames, from 1 to 100</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The color to fade to or from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blends the current frame alone, whatever else is selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade mode:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame count:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;hoose...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Works on the %1 selected frames.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Works on all %1 frames, since only one is selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Frames:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Every Nth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selects among all frames. The first frame is frame 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Beginning with frame:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Every:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames are numbered from 0 to %1, or from the end: the last is -1. Examples: 3-7, 0-20/2 for every second one, 0,4,7, all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes a frame the current one. They are numbered from 0 to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Frame:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop Every Nth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> The frame before each one that goes is shown for as long as both were.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Drop every:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> A frame that shows what the one before shows is removed, and its pause added to that one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By how much red, green and blue of a pixel may differ; 0: not at all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames are numbered from 0 to %1; %2 is behind the last. Both at once: 3-7&gt;12.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Before frame:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In milliseconds (40ms), frames per second (15fps), percent of what it is (150%), or without a unit in %1. Browsers play pauses below 20ms slower.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hundredths of a second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pause:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of the %1 &amp;selected frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of the &amp;current frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of &amp;all %1 frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Also frames with a pause of their &amp;own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>any</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ratio:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trim Transparent &amp;Edges</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trim to &amp;Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Works on all frames and the canvas. Draw a rectangle on the picture, or type where it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the %1 selected frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the current frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make Transparent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Works on %1. Click on the color in the picture, or type it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Works on all frames and the canvas.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nearest: keeps pixels as they are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bilinear: soft</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lanczos: sharp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>top left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>top right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Works on the current frame, the only one that is selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Percent:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep the ratio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Canvas Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Works on all frames. Pictures keep their size; what a smaller canvas has no room for is cut off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pictures stay at:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>scaled to the canvas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>padded to the canvas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cropped to the canvas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit Frames to Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures are &amp;to be:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Contrast:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Saturation:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Greyscale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Opacity in percent:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overlay Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Image:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;X offset:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Y offset:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the %1 selected frames side by side into one PNG image, and a JSON text beside it that says where each is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the %1 frames side by side into one PNG image, and a JSON text beside it that says where each is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as many as rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Padding in pixels:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sides are powers of &amp;two</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Size in pixels:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Outline in pixels:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Out&amp;line color:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames to fade &amp;in:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames to fade o&amp;ut:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draws on the %1 selected frames.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draws on the current frame, the only one that is selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Click on the picture where it is to begin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes frames of a part of the video &quot;%1&quot;. Draw a rectangle on the picture to cut it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pla&amp;y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the video...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames a &amp;second:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> px</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width of the cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height of the cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ut (x, y, w, h):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This part is not in the video.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> The smallest that was tried has %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preset:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep &amp;As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Working...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GIF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WebP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animated PNG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MP4 video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WebM video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ormat:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Colors:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The same colors in all fra&amp;mes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>diffusion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ordered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dither:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Loss:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep every pixel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Every n-th frame:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit &amp;under</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit under</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> KB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chat 8 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E-mail 1 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of rows of tiles in the image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of columns of tiles in the image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row by row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column by column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Columns:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of a tile in pixels, in place of rows and columns; 0: by rows and columns. Width, height and spacing may be typed at once: 64x48+2, or 64+2 for squares</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile &amp;width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile &amp;height:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Margin:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixels around all tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Spacing:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixels between two tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip &amp;empty tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes no frames of tiles that are transparent everywhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One animation, or one image file per frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options of the chosen format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translator Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kirto - Guide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page &quot;%1&quot; is not part of the installed guide.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The guide is not installed with this program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page before this one (Alt+Left)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page after it (Alt+Right)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find on this page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finds a text on this page; Return finds the next place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not on this page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>px</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1/100 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the pause is in other units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, %1 fps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mixed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width of the animation in pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height of the animation in pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause after every frame that has no pause of its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use pause:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length of the pause, in the unit chosen in the preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play the animation more than once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use loop:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many times to play the animation; 0 = forever</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>1 color</source>
        <comment>%n colors</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Current Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance of the frame from the animation&apos;s left edge, in pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X offset:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance of the frame from the animation&apos;s top edge, in pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y offset:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the frame a pause of its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length of the frame&apos;s pause, in the unit chosen in the preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the frame with a palette of its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Local palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BeOS system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>web safe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>greyscale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>optimal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colors of the frame&apos;s own palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Local palette colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the frames as pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the frames as a list, with a preview of the current one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>first frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colors used to save all frames that have no palette of their own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mapping:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Approximate missing colors by dithering</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette index of the background color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make one color of the palette transparent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparent index:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette index of the transparent color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 kB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status: 0 frame(s), unmodified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stops what is being done; what is complete is kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status: %1 frame(s), %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>modified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unmodified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 in memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The size of the file is not known yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file about %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved as a GIF file, it has %1 bytes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved as a GIF file, it has about %1 bytes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The animation and what can be undone take %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 selected, %3 s of %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How large pixels are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Larger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As large as fits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In its own size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Onion skin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Let the frames beside this one be seen through it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No onion skin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Both frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity of the onion skin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How much of the frames beside this one is seen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the frame with the colors that a GIF file will have</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>transparent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, alpha %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, index %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To the start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To the end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How often the animation is played</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Always</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many times as fast as the animation says</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play the selected frames only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Like a browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show frames for 0.10 s whose pause is below 0.02 s, as browsers do</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>#%1 of %2, %3 s of %4 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kirto - untitled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;bout...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Move To...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Invert Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;Every Nth...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Ran&amp;ge...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to &amp;Frame...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toggle &amp;Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;references...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Pla&amp;yer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pl&amp;ay or Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide Frame &amp;Labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Colors...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Insert...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert &amp;Tiled...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;verse All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fade Effects...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Insert Animation...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export &amp;Sheet...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set &amp;Pause...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Forward and Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift Start to Curre&amp;nt Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove D&amp;uplicates...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Drop Every Nth...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Resize Animation...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Crop...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&amp;vas Size...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate Ri&amp;ght</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate &amp;Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip &amp;Horizontally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip Verticall&amp;y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit Fra&amp;mes to Animation...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Adjust Colors...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Opacity...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overlay Imag&amp;e...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Text...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ma&amp;ke Transparent...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;rame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;verse Selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide Pla&amp;yer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Frame &amp;Labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open an animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert images as frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the last change back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make it again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play the animation, or pause it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save under another name or as images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write as another format, or smaller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the animation in the browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (tool bar)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tool Bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hit a key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search for an action or a key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows only the actions with this in their name or key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actions and their keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key of the chosen action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hit the key that the action is to have; Backspace for none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Take Over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes the key from the other action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key that this action has at first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Restore Defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The keys that all actions have at first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Such a key is needed for typing, moving or opening menus. Hit one with Ctrl, or a function key.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is the key of &quot;%2&quot; in the menu &quot;%3&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer has %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The keys could not be stored; they hold until the program ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Differences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The frame in Kirto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The frame in browsers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In Kirto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In browsers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame that differs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;In turns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In turns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows both in one place, one after the other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>own pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>own palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cleared after it was shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what was before comes back after it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>frame #%1    %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert image files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the current frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the current frame toward the start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the current frame toward the end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview: 100%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview: %1%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames as 3-7, 0-20/2 or 0,4,7; Return selects them, Escape leaves the selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 in %2, %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
The file is not there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>frame #%1 %2, %3 x %4, %5 frame(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, %1 selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>frame #%1    %2
%3 x %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop images or an animation here,
or choose Insert...
from the Frame menu.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade Effects...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Pause...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thumbnail height: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert Images...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make an animation of images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent animations:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Also found in the preferences, under Compatibility</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thumbnail height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height of the thumbnails in pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use frame:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>first half sized</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>current half sized</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>first full sized</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>current full sized</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the thumbnail height from a frame, or so that all frames fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag a block to move its frame, its right edge to change its pause, the ruler to go to a frame. Ctrl and the wheel zoom.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
