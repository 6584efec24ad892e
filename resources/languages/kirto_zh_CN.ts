<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CoreText</name>
    <message>
        <source>the frame</source>
        <translation>该帧</translation>
    </message>
    <message>
        <source>both frames</source>
        <translation>两帧</translation>
    </message>
    <message>
        <source>all %1 frames</source>
        <translation>全部 %1 帧</translation>
    </message>
    <message>
        <source>%1 of %2 frames</source>
        <translation>%2 帧中的 %1 帧</translation>
    </message>
    <message>
        <source>for ever</source>
        <translation>无限次</translation>
    </message>
    <message>
        <source>once</source>
        <translation>一次</translation>
    </message>
    <message>
        <source>%1 times</source>
        <translation>%1 次</translation>
    </message>
    <message>
        <source>less than 1 %</source>
        <translation>不到 1 %</translation>
    </message>
    <message>
        <source>more than 99 %</source>
        <translation>超过 99 %</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>1 pixel</source>
        <translation>1 个像素</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 个像素</translation>
    </message>
    <message>
        <source>, by %1 of 255 on average</source>
        <translation>，平均相差 %1（最大 255）</translation>
    </message>
    <message>
        <source>browsers will play 1 frame slower: its pause is below 0.02 seconds</source>
        <translation>浏览器会把 1 帧播放得更慢：它的停留时间低于 0.02 秒</translation>
    </message>
    <message>
        <source>browsers will play %1 frames slower: their pauses are below 0.02 seconds</source>
        <translation>浏览器会把 %1 帧播放得更慢：它们的停留时间低于 0.02 秒</translation>
    </message>
    <message>
        <source>the animation will have %1 x %2 pixels</source>
        <translation>动画将为 %1 x %2 像素</translation>
    </message>
    <message>
        <source>no frame will be shown</source>
        <translation>不会显示任何帧</translation>
    </message>
    <message>
        <source>%1 frame(s) will be shown instead of %2</source>
        <translation>将显示 %1 帧而不是 %2 帧</translation>
    </message>
    <message>
        <source>%1 will show trails, of up to %2</source>
        <translation>%1会留下残影，最多 %2</translation>
    </message>
    <message>
        <source>%1 will show trails</source>
        <translation>%1会留下残影</translation>
    </message>
    <message>
        <source>%1 will show pixels of others, too few to be seen: up to %2</source>
        <translation>%1会显示其他帧的像素，少到看不出来：最多 %2</translation>
    </message>
    <message>
        <source>%1 will show pixels of others, too few to be seen</source>
        <translation>%1会显示其他帧的像素，少到看不出来</translation>
    </message>
    <message>
        <source>%1 will not be transparent: no color stands for that</source>
        <translation>%1不会透明：没有颜色表示透明</translation>
    </message>
    <message>
        <source>%1 will lack pixels</source>
        <translation>%1会缺少像素</translation>
    </message>
    <message>
        <source>%1 of the pixels lost their color%2: %3 colors</source>
        <translation>%1的像素失去了颜色%2：%3 种颜色</translation>
    </message>
    <message>
        <source>%1 will be shown for another time</source>
        <translation>%1的显示时间会不同</translation>
    </message>
    <message>
        <source>the animation will play %1 instead of %2</source>
        <translation>动画将播放 %1 而不是 %2</translation>
    </message>
    <message>
        <source>Move Frames</source>
        <translation>移动帧</translation>
    </message>
    <message>
        <source>Copy Frames</source>
        <translation>复制帧</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>制作副本</translation>
    </message>
    <message>
        <source>Forward and Back</source>
        <translation>正放再倒放</translation>
    </message>
    <message>
        <source>Remove Duplicates</source>
        <translation>删除重复帧</translation>
    </message>
    <message>
        <source>Drop Every Nth</source>
        <translation>每 N 帧丢弃一帧</translation>
    </message>
    <message>
        <source>Shift Start</source>
        <translation>移动起点</translation>
    </message>
    <message>
        <source>Set Pause</source>
        <translation>设置停留时间</translation>
    </message>
    <message>
        <source>Change Palette</source>
        <translation>更改调色板</translation>
    </message>
    <message>
        <source>Change Frame Palette</source>
        <translation>更改帧调色板</translation>
    </message>
    <message>
        <source>The video can&apos;t be written because the program ffmpeg was not found. Install the package &quot;ffmpeg&quot;.</source>
        <translation>无法写入视频，因为找不到程序 ffmpeg。请安装软件包“ffmpeg”。</translation>
    </message>
    <message>
        <source>There is no frame to export.</source>
        <translation>没有可导出的帧。</translation>
    </message>
    <message>
        <source>The animation is too large for a %1 file.</source>
        <translation>动画太大，无法存为 %1 文件。</translation>
    </message>
    <message>
        <source>There is nothing here that writes %1 files.</source>
        <translation>这里没有能写 %1 文件的程序。</translation>
    </message>
    <message>
        <source>Out of memory.</source>
        <translation>内存不足。</translation>
    </message>
    <message>
        <source>The program that writes videos has failed.</source>
        <translation>写视频的程序失败了。</translation>
    </message>
    <message>
        <source>The animation can&apos;t be made so small.</source>
        <translation>动画无法变得这么小。</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>已停止。</translation>
    </message>
    <message>
        <source>What is on the clipboard can&apos;t be pasted because it was damaged or is unsupported.</source>
        <translation>无法粘贴剪贴板的内容，因为它已损坏或不受支持。</translation>
    </message>
    <message>
        <source>This file can&apos;t be inserted because it does not describe a sheet: %1</source>
        <translation>无法插入此文件，因为它没有描述图集：%1</translation>
    </message>
    <message>
        <source>This file can&apos;t be inserted because a frame is not on the sheet: %1</source>
        <translation>无法插入此文件，因为有一帧不在图集上：%1</translation>
    </message>
    <message>
        <source>Insert Animation</source>
        <translation>插入动画</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>插入</translation>
    </message>
    <message>
        <source>Insert Tiled</source>
        <translation>插入图块</translation>
    </message>
    <message>
        <source>Remove Frame</source>
        <translation>删除帧</translation>
    </message>
    <message>
        <source>Move Frame Up</source>
        <translation>帧上移</translation>
    </message>
    <message>
        <source>Move Frame Down</source>
        <translation>帧下移</translation>
    </message>
    <message>
        <source>Reverse All</source>
        <translation>全部反转</translation>
    </message>
    <message>
        <source>Fit Frames</source>
        <translation>调整帧大小</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>渐变</translation>
    </message>
    <message>
        <source>Unable to open or create a settings file. Default values will be used instead, but may not be saved.</source>
        <translation>无法打开或创建设置文件。将使用默认值，但可能无法保存。</translation>
    </message>
    <message>
        <source>The settings file was damaged. It has been put aside as &quot;%1&quot;, and default values will be used instead.</source>
        <translation>设置文件已损坏。它已另存为“%1”，并将使用默认值。</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>状态：%1</translation>
    </message>
    <message>
        <source>canceled, %1 new frame(s) kept</source>
        <translation>已取消，保留了 %1 个新帧</translation>
    </message>
    <message>
        <source>Do you wish to insert this image into the current animation or open it as a new animation?</source>
        <translation>要把此图像插入当前动画，还是作为新动画打开？</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>The animation can&apos;t be opened because this file type is unsupported.</source>
        <translation>无法打开动画，因为不支持此文件类型。</translation>
    </message>
    <message>
        <source>Do you want to save your changes?</source>
        <translation>要保存更改吗？</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>The palette can&apos;t be loaded because the file was corrupted or unreadable.</source>
        <translation>无法加载调色板，因为文件已损坏或无法读取。</translation>
    </message>
    <message>
        <source>Another program has changed the file &quot;%1&quot; since it was opened or saved. Do you want to overwrite it?</source>
        <translation>自打开或保存以来，另一个程序更改了文件“%1”。要覆盖它吗？</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>覆盖</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>另存为...</translation>
    </message>
    <message>
        <source>saving was canceled, the file is as it was before</source>
        <translation>保存已取消，文件保持原样</translation>
    </message>
    <message>
        <source>The animation can&apos;t be saved because one of the frames has a larger size than the animation.</source>
        <translation>无法保存动画，因为有一帧比动画大。</translation>
    </message>
    <message>
        <source>The animation can&apos;t be saved because %1 is not between 0 and 65535.</source>
        <translation>无法保存动画，因为 %1 不在 0 到 65535 之间。</translation>
    </message>
    <message>
        <source>saved, but %1</source>
        <translation>已保存，但%1</translation>
    </message>
    <message>
        <source>saving was canceled, %1 of %2 file(s) written</source>
        <translation>保存已取消，已写入 %2 个文件中的 %1 个</translation>
    </message>
    <message>
        <source>The animation can&apos;t be previewed because one of the frames has a larger size than the animation.</source>
        <translation>无法预览动画，因为有一帧比动画大。</translation>
    </message>
    <message>
        <source>The animation can&apos;t be previewed because %1 is not between 0 and 65535.</source>
        <translation>无法预览动画，因为 %1 不在 0 到 65535 之间。</translation>
    </message>
    <message>
        <source>the preview was canceled</source>
        <translation>预览已取消</translation>
    </message>
    <message>
        <source>The animation can&apos;t be previewed because a temporary file could not be created.</source>
        <translation>无法预览动画，因为无法创建临时文件。</translation>
    </message>
    <message>
        <source>The animation can&apos;t be recovered because its copy was damaged. The copy has been put aside.</source>
        <translation>无法恢复动画，因为其副本已损坏。副本已放到一边。</translation>
    </message>
    <message>
        <source>The animation can&apos;t be recovered because it needs more memory than there is.</source>
        <translation>无法恢复动画，因为它需要的内存超过现有内存。</translation>
    </message>
    <message>
        <source>The animation can&apos;t be recovered because its copy can&apos;t be read.</source>
        <translation>无法恢复动画，因为无法读取其副本。</translation>
    </message>
    <message>
        <source>The animation can&apos;t be recovered because the open one has unsaved changes. It will be offered again when the editor is started next.</source>
        <translation>无法恢复动画，因为打开的动画有未保存的更改。下次启动编辑器时会再次提供恢复。</translation>
    </message>
    <message>
        <source>saving was canceled</source>
        <translation>保存已取消</translation>
    </message>
    <message>
        <source>Opened as browsers do. Animations are read and saved that way from now on.</source>
        <translation>已按浏览器的方式打开。从现在起，动画都以这种方式读取和保存。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>%1 frame(s) are larger than the animation.</source>
        <translation>%1 帧比动画大。</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>裁剪</translation>
    </message>
    <message>
        <source>Save Faithfully</source>
        <translation>忠实保存</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>In browsers %1.</source>
        <translation>在浏览器中，%1。</translation>
    </message>
    <message>
        <source>Open as Browsers Do</source>
        <translation>按浏览器方式打开</translation>
    </message>
    <message>
        <source>Salvage</source>
        <translation>抢救</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>an image has codes for fewer colors than its palette has</source>
        <translation>某个图像的编码颜色数少于其调色板</translation>
    </message>
    <message>
        <source>an image is larger than the screen</source>
        <translation>某个图像比屏幕大</translation>
    </message>
    <message>
        <source>the file ends without its trailer</source>
        <translation>文件没有结束标记</translation>
    </message>
    <message>
        <source>it has a record of an unknown type</source>
        <translation>含有未知类型的记录</translation>
    </message>
    <message>
        <source>The video can&apos;t be opened because the chosen part is not in it.</source>
        <translation>无法打开视频，因为所选部分不在其中。</translation>
    </message>
    <message>
        <source>The animation can&apos;t be opened because it was corrupted or unreadable.</source>
        <translation>无法打开动画，因为它已损坏或无法读取。</translation>
    </message>
    <message>
        <source>The video can&apos;t be opened because the program ffmpeg was not found. Install the package &quot;ffmpeg&quot;.</source>
        <translation>无法打开视频，因为找不到程序 ffmpeg。请安装软件包“ffmpeg”。</translation>
    </message>
    <message>
        <source>canceled, nothing changed</source>
        <translation>已取消，没有任何更改</translation>
    </message>
    <message>
        <source>no frame shows anything else than another</source>
        <translation>各帧显示的内容都相同</translation>
    </message>
    <message>
        <source>all frames are transparent everywhere</source>
        <translation>所有帧都完全透明</translation>
    </message>
    <message>
        <source>Status: adjusting frame %1 of %2...</source>
        <translation>状态：正在调整第 %1 帧，共 %2 帧...</translation>
    </message>
    <message>
        <source>Status: fading frame %1 of %2...</source>
        <translation>状态：正在改变第 %1 帧的不透明度，共 %2 帧...</translation>
    </message>
    <message>
        <source>Status: changing frame %1 of %2...</source>
        <translation>状态：正在更改第 %1 帧，共 %2 帧...</translation>
    </message>
    <message>
        <source>This file can&apos;t be drawn because this file type is unsupported: %1</source>
        <translation>无法绘制此文件，因为不支持此文件类型：%1</translation>
    </message>
    <message>
        <source>Resize Animation</source>
        <translation>调整动画大小</translation>
    </message>
    <message>
        <source>Canvas Size</source>
        <translation>画布大小</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>翻转</translation>
    </message>
    <message>
        <source>Adjust Colors</source>
        <translation>调整颜色</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Overlay Image</source>
        <translation>叠加图像</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Make Transparent</source>
        <translation>设为透明</translation>
    </message>
    <message>
        <source>The editor ended unexpectedly. &quot;%1&quot; (%2 frame(s), %3) can be recovered.</source>
        <translation>编辑器意外结束。可以恢复“%1”（%2 帧，%3）。</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>以后</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>%1% of the pixels got another color, by %2 of 255 on average</source>
        <translation>%1% 的像素换了颜色，平均相差 %2（最大 255）</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>XOffset of %1</source>
        <translation>%1 的 X 偏移</translation>
    </message>
    <message>
        <source>YOffset of %1</source>
        <translation>%1 的 Y 偏移</translation>
    </message>
    <message>
        <source>loop count %1 was saved as %2</source>
        <translation>循环次数 %1 已存为 %2</translation>
    </message>
    <message>
        <source>%1 pause(s) above 655.35 seconds were saved shorter</source>
        <translation>%1 个超过 655.35 秒的停留时间已缩短</translation>
    </message>
    <message>
        <source>The animation can&apos;t be saved because the file could not be created at this location.</source>
        <translation>无法保存动画，因为无法在此位置创建文件。</translation>
    </message>
    <message>
        <source>The animation can&apos;t be saved because the selected translator is not valid.</source>
        <translation>无法保存动画，因为所选的转换器无效。</translation>
    </message>
    <message>
        <source>1 frame</source>
        <translation>1 帧</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>%1 帧</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 像素</translation>
    </message>
    <message>
        <source>%1: a frame of the text is not on the picture.</source>
        <translation>%1：文本中有一帧不在图像上。</translation>
    </message>
    <message>
        <source>%1: %2 as the text says.</source>
        <translation>%1：按文本所述为 %2。</translation>
    </message>
    <message>
        <source>, %1 without the empty ones</source>
        <translation>，除去空白为 %1</translation>
    </message>
    <message>
        <source>This image is too large to be shown here.</source>
        <translation>此图像太大，无法在此显示。</translation>
    </message>
    <message>
        <source>%1: rows or columns are missing.</source>
        <translation>%1：缺少行数或列数。</translation>
    </message>
    <message>
        <source>%1: no tile has room.</source>
        <translation>%1：放不下图块。</translation>
    </message>
    <message>
        <source>%1: %2 and %3 of %4 × %5 pixels</source>
        <translation>%1：%2、%3，每块 %4 × %5 像素</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 行</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 行</translation>
    </message>
    <message>
        <source>1 column</source>
        <translation>1 列</translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation>%1 列</translation>
    </message>
    <message>
        <source>There is no frame to save.</source>
        <translation>没有可保存的帧。</translation>
    </message>
    <message>
        <source>The sheet can&apos;t be saved because it would be too large.</source>
        <translation>无法保存图集，因为它会太大。</translation>
    </message>
    <message>
        <source>Frames of %1</source>
        <translation>%1 的帧</translation>
    </message>
    <message>
        <source>%1 frame of %2, at most %3 MB</source>
        <translation>%1 帧，%2，最多 %3 MB</translation>
    </message>
    <message>
        <source>%1 frames of %2, at most %3 MB</source>
        <translation>%1 帧，%2，最多 %3 MB</translation>
    </message>
    <message>
        <source>Change Width</source>
        <translation>更改宽度</translation>
    </message>
    <message>
        <source>Change Height</source>
        <translation>更改高度</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>停留</translation>
    </message>
    <message>
        <source>Change Pause</source>
        <translation>更改停留</translation>
    </message>
    <message>
        <source>Pause length</source>
        <translation>停留时间</translation>
    </message>
    <message>
        <source>Change Pause Length</source>
        <translation>更改停留时间</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>循环</translation>
    </message>
    <message>
        <source>Change Loop</source>
        <translation>更改循环</translation>
    </message>
    <message>
        <source>Loop count</source>
        <translation>循环次数</translation>
    </message>
    <message>
        <source>Change Loop Count</source>
        <translation>更改循环次数</translation>
    </message>
    <message>
        <source>Background index</source>
        <translation>背景索引</translation>
    </message>
    <message>
        <source>Change Background Index</source>
        <translation>更改背景索引</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>透明</translation>
    </message>
    <message>
        <source>Change Transparency</source>
        <translation>更改透明</translation>
    </message>
    <message>
        <source>Transparent index</source>
        <translation>透明索引</translation>
    </message>
    <message>
        <source>Change Transparent Index</source>
        <translation>更改透明索引</translation>
    </message>
    <message>
        <source>Dither</source>
        <translation>抖动</translation>
    </message>
    <message>
        <source>Change Dither</source>
        <translation>更改抖动</translation>
    </message>
    <message>
        <source>XOffset</source>
        <translation>X 偏移</translation>
    </message>
    <message>
        <source>Change X Offset</source>
        <translation>更改 X 偏移</translation>
    </message>
    <message>
        <source>YOffset</source>
        <translation>Y 偏移</translation>
    </message>
    <message>
        <source>Change Y Offset</source>
        <translation>更改 Y 偏移</translation>
    </message>
    <message>
        <source>Change Frame Pause</source>
        <translation>更改帧停留</translation>
    </message>
    <message>
        <source>Change Frame Pause Length</source>
        <translation>更改帧停留时间</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>调色板</translation>
    </message>
    <message>
        <source>Change Local Palette</source>
        <translation>更改局部调色板</translation>
    </message>
    <message>
        <source>Status: loading tile %1 of %2...</source>
        <translation>状态：正在加载第 %1 个图块，共 %2 个...</translation>
    </message>
    <message>
        <source>This file can&apos;t be inserted because this file type is unsupported: %1</source>
        <translation>无法插入此文件，因为不支持此文件类型：%1</translation>
    </message>
    <message>
        <source>This file can&apos;t be inserted because the color space is unsupported.</source>
        <translation>无法插入此文件，因为不支持其色彩空间。</translation>
    </message>
    <message>
        <source>Status: generating frame %1 of %2...</source>
        <translation>状态：正在生成第 %1 帧，共 %2 帧...</translation>
    </message>
    <message>
        <source>These files can&apos;t be inserted because their types are unsupported:</source>
        <translation>无法插入这些文件，因为不支持它们的类型：</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>以及另外 %1 个</translation>
    </message>
    <message>
        <source>Status: loading frame %1 of %2...</source>
        <translation>状态：正在加载第 %1 帧，共 %2 帧...</translation>
    </message>
    <message>
        <source>This frame can&apos;t be inserted because the number of rows or columns is illegal.</source>
        <translation>无法插入此帧，因为行数或列数不合法。</translation>
    </message>
    <message>
        <source>Status: cropping frame %1 of %2...</source>
        <translation>状态：正在裁剪第 %1 帧，共 %2 帧...</translation>
    </message>
    <message>
        <source>Status: fitting frame %1 of %2...</source>
        <translation>状态：正在适配第 %1 帧，共 %2 帧...</translation>
    </message>
    <message>
        <source>Status: drawing on frame %1 of %2...</source>
        <translation>状态：正在绘制第 %1 帧，共 %2 帧...</translation>
    </message>
    <message>
        <source>Status: resizing frame %1 of %2...</source>
        <translation>状态：正在缩放第 %1 帧，共 %2 帧...</translation>
    </message>
    <message>
        <source>Status: turning frame %1 of %2...</source>
        <translation>状态：正在转动第 %1 帧，共 %2 帧...</translation>
    </message>
    <message>
        <source>Status: writing frame %1 of %2...</source>
        <translation>状态：正在写入第 %1 帧，共 %2 帧...</translation>
    </message>
    <message>
        <source>Status: loading frame %1...</source>
        <translation>状态：正在加载第 %1 帧...</translation>
    </message>
    <message>
        <source>%1 can&apos;t be less than %2.</source>
        <translation>%1不能小于 %2。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be greater than %2.</source>
        <translation>%1不能大于 %2。</translation>
    </message>
    <message>
        <source>Frame count must be between 1 and 100.</source>
        <translation>帧数必须在 1 到 100 之间。</translation>
    </message>
    <message>
        <source>This value</source>
        <translation>此值</translation>
    </message>
    <message>
        <source>You must enter a valid, absolute path and file name.</source>
        <translation>必须输入有效的绝对路径和文件名。</translation>
    </message>
    <message>
        <source>You must enter a valid absolute path.</source>
        <translation>必须输入有效的绝对路径。</translation>
    </message>
    <message>
        <source>You must enter a color as #rrggbb.</source>
        <translation>必须以 #rrggbb 的形式输入颜色。</translation>
    </message>
    <message>
        <source>You must enter colors as #rrggbb, with blanks between them.</source>
        <translation>必须以 #rrggbb 的形式输入颜色，用空格隔开。</translation>
    </message>
    <message>
        <source>The preset can&apos;t be kept under this name.</source>
        <translation>无法以此名称保留预设。</translation>
    </message>
    <message>
        <source>Insert Tiled Frame</source>
        <translation>插入图块帧</translation>
    </message>
    <message>
        <source>Insert Frames</source>
        <translation>插入帧</translation>
    </message>
    <message>
        <source>Open Animation</source>
        <translation>打开动画</translation>
    </message>
    <message>
        <source>A file named &quot;%1&quot; already exists. Do you want to replace it?</source>
        <translation>名为“%1”的文件已存在。要替换它吗？</translation>
    </message>
    <message>
        <source>A file named &quot;%1&quot; already exists. Do you want to replace the files of this sequence?</source>
        <translation>名为“%1”的文件已存在。要替换此序列的文件吗？</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Save Animation</source>
        <translation>保存动画</translation>
    </message>
    <message>
        <source>Animated GIF</source>
        <translation>GIF 动画</translation>
    </message>
    <message>
        <source>%1 sequence</source>
        <translation>%1序列</translation>
    </message>
    <message>
        <source>Kirto v1.4
An editor for frame animations, by Morvik
https://kirto.example.org

Please send in bug reports and feature requests.

Thanks to all who shared their code for GIF files, and for a long conversation about dithering.</source>
        <translation>Kirto v1.4
帧动画编辑器，作者 Morvik
https://kirto.example.org

欢迎提交错误报告和功能建议。

感谢所有分享 GIF 文件代码的人，以及一次关于抖动的长谈。</translation>
    </message>
    <message>
        <source>Open Paletted File</source>
        <translation>打开带调色板的文件</translation>
    </message>
    <message>
        <source>The preview was written, but no program to show it was found.</source>
        <translation>预览已写入，但找不到显示它的程序。</translation>
    </message>
    <message>
        <source>Do you want all actions to have the keys again that they had at first?</source>
        <translation>要让所有操作恢复最初的快捷键吗？</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>The file could not be saved because the Targa translator is either missing or failed.</source>
        <translation>无法保存文件，因为 Targa 转换器缺失或失败。</translation>
    </message>
    <message>
        <source> %1 of %2 files were written.</source>
        <translation> 已写入 %2 个文件中的 %1 个。</translation>
    </message>
    <message>
        <source>The sheet would be too large.</source>
        <translation>图集会太大。</translation>
    </message>
    <message>
        <source>There is nothing here that writes this image format.</source>
        <translation>这里没有能写此图像格式的程序。</translation>
    </message>
    <message>
        <source>The image can&apos;t be written in this format.</source>
        <translation>无法以此格式写入图像。</translation>
    </message>
</context>
<context>
    <name>UiText</name>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>全局</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>调色板</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>缩略图</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>动画</translation>
    </message>
    <message>
        <source>Miscellaneous</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>Compatibility</source>
        <translation>兼容性</translation>
    </message>
    <message>
        <source>Control Defaults</source>
        <translation>控件默认值</translation>
    </message>
    <message>
        <source>Width in pixels:</source>
        <translation>宽度（像素）：</translation>
    </message>
    <message>
        <source>Height in pixels:</source>
        <translation>高度（像素）：</translation>
    </message>
    <message>
        <source>Pause this long between frames:</source>
        <translation>帧间停留时间：</translation>
    </message>
    <message>
        <source>Loop this many times (0 is infinitely):</source>
        <translation>循环次数（0 为无限）：</translation>
    </message>
    <message>
        <source>Other Settings</source>
        <translation>其他设置</translation>
    </message>
    <message>
        <source>Set size of animation from first frame inserted</source>
        <translation>以插入的第一帧确定动画大小</translation>
    </message>
    <message>
        <source>Pause length should be measured in:</source>
        <translation>停留时间的单位：</translation>
    </message>
    <message>
        <source>Hundredths of a second (GIF standard)</source>
        <translation>百分之一秒（GIF 标准）</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Mapping Defaults</source>
        <translation>颜色映射默认值</translation>
    </message>
    <message>
        <source>The global palette should use:</source>
        <translation>全局调色板使用：</translation>
    </message>
    <message>
        <source>The web safe palette (standard 216 colors)</source>
        <translation>网页安全调色板（标准 216 色）</translation>
    </message>
    <message>
        <source>The BeOS system palette (256 colors)</source>
        <translation>BeOS 系统调色板（256 色）</translation>
    </message>
    <message>
        <source>A greyscale palette (256 levels of grey)</source>
        <translation>灰度调色板（256 级灰度）</translation>
    </message>
    <message>
        <source>A palette from:</source>
        <translation>来自此文件的调色板：</translation>
    </message>
    <message>
        <source>Other Defaults</source>
        <translation>其他默认值</translation>
    </message>
    <message>
        <source>Use dithering</source>
        <translation>使用抖动</translation>
    </message>
    <message>
        <source>Background index:</source>
        <translation>背景索引：</translation>
    </message>
    <message>
        <source>Transparent index from global palette:</source>
        <translation>全局调色板的透明索引：</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>When a frame is inserted, the thumbnail height:</source>
        <translation>插入帧时，缩略图高度：</translation>
    </message>
    <message>
        <source>Should be set to the full size of the first frame</source>
        <translation>设为第一帧的完整大小</translation>
    </message>
    <message>
        <source>Should be set to half the size of the first frame</source>
        <translation>设为第一帧的一半大小</translation>
    </message>
    <message>
        <source>Should be set to this value:</source>
        <translation>设为此值：</translation>
    </message>
    <message>
        <source>Should not change</source>
        <translation>不变</translation>
    </message>
    <message>
        <source>Maximum thumbnail height:</source>
        <translation>缩略图最大高度：</translation>
    </message>
    <message>
        <source>Minimum thumbnail height:</source>
        <translation>缩略图最小高度：</translation>
    </message>
    <message>
        <source>Draw frames with transparency</source>
        <translation>绘制帧的透明部分</translation>
    </message>
    <message>
        <source>Advanced GIF Settings</source>
        <translation>高级 GIF 设置</translation>
    </message>
    <message>
        <source>After each frame, the GIF decoder should:</source>
        <translation>每帧之后，GIF 解码器应：</translation>
    </message>
    <message>
        <source>Take no action (default)</source>
        <translation>不做任何事（默认）</translation>
    </message>
    <message>
        <source>Leave the current frame</source>
        <translation>保留当前帧</translation>
    </message>
    <message>
        <source>Restore the background color</source>
        <translation>恢复背景颜色</translation>
    </message>
    <message>
        <source>Restore the previous frame (rarely supported)</source>
        <translation>恢复上一帧（很少支持）</translation>
    </message>
    <message>
        <source>Write interlaced frames</source>
        <translation>写入隔行扫描的帧</translation>
    </message>
    <message>
        <source>Write &quot;Made with Kirto on BeOS&quot; comment</source>
        <translation>写入注释“Made with Kirto on BeOS”</translation>
    </message>
    <message>
        <source>If the animation uses delta compression, assemble each frame</source>
        <translation>如果动画只存差异，则拼合每一帧</translation>
    </message>
    <message>
        <source>On startup, use:</source>
        <translation>启动时显示：</translation>
    </message>
    <message>
        <source>Thumbnail mode</source>
        <translation>缩略图模式</translation>
    </message>
    <message>
        <source>Frame list mode</source>
        <translation>帧列表模式</translation>
    </message>
    <message>
        <source>Save and restore main window size and position</source>
        <translation>保存并恢复主窗口的大小和位置</translation>
    </message>
    <message>
        <source>Write temporary files to:</source>
        <translation>临时文件写入：</translation>
    </message>
    <message>
        <source>Browsers</source>
        <translation>浏览器</translation>
    </message>
    <message>
        <source>Read and save as browsers show it</source>
        <translation>按浏览器显示的方式读取和保存</translation>
    </message>
    <message>
        <source>Frames of more than 256 colors are saved then</source>
        <translation>超过 256 色的帧保存时</translation>
    </message>
    <message>
        <source>Without dithering</source>
        <translation>不抖动</translation>
    </message>
    <message>
        <source>Dithered as best suits each frame (Floyd-Steinberg)</source>
        <translation>按每帧最佳效果抖动（Floyd-Steinberg）</translation>
    </message>
    <message>
        <source>Dithered so that what stands still does not flicker</source>
        <translation>抖动时静止的内容不闪烁</translation>
    </message>
    <message>
        <source>In the same colors for all frames</source>
        <translation>所有帧使用相同颜色</translation>
    </message>
    <message>
        <source>Keep these colors:</source>
        <translation>保留这些颜色：</translation>
    </message>
    <message>
        <source>Lay soft edges on:</source>
        <translation>柔和边缘的底色：</translation>
    </message>
    <message>
        <source>Transparent below alpha:</source>
        <translation>低于此 alpha 值为透明：</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝</translation>
    </message>
    <message>
        <source>Pick from &amp;Screen</source>
        <translation>从屏幕取色(&amp;S)</translation>
    </message>
    <message>
        <source>Takes the color that is clicked next, anywhere on the screen</source>
        <translation>取下一次在屏幕任意位置点击的颜色</translation>
    </message>
    <message>
        <source>This desktop lets no program see the screen</source>
        <translation>此桌面不允许程序查看屏幕</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Color %1, %2, %3 pixels</source>
        <translation>颜色 %1，%2，%3 个像素</translation>
    </message>
    <message>
        <source>, background</source>
        <translation>，背景</translation>
    </message>
    <message>
        <source>, transparent</source>
        <translation>，透明</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>Colors of:</source>
        <translation>颜色来自：</translation>
    </message>
    <message>
        <source>current frame</source>
        <translation>当前帧</translation>
    </message>
    <message>
        <source>all frames</source>
        <translation>所有帧</translation>
    </message>
    <message>
        <source>All frames are those without a palette of their own</source>
        <translation>所有帧指没有自己调色板的帧</translation>
    </message>
    <message>
        <source>Sorted by:</source>
        <translation>排序方式：</translation>
    </message>
    <message>
        <source>index</source>
        <translation>索引</translation>
    </message>
    <message>
        <source>hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>use</source>
        <translation>使用量</translation>
    </message>
    <message>
        <source>Use is the number of pixels that have the color</source>
        <translation>使用量是该颜色的像素数</translation>
    </message>
    <message>
        <source>A click:</source>
        <translation>点击：</translation>
    </message>
    <message>
        <source>only tells</source>
        <translation>只显示信息</translation>
    </message>
    <message>
        <source>makes it the background</source>
        <translation>设为背景色</translation>
    </message>
    <message>
        <source>makes it transparent</source>
        <translation>设为透明色</translation>
    </message>
    <message>
        <source>What a click or the Enter key does with a color</source>
        <translation>点击或按回车键对颜色的作用</translation>
    </message>
    <message>
        <source>Fade Effects</source>
        <translation>渐变效果</translation>
    </message>
    <message>
        <source>to an rgb color</source>
        <translation>渐变到 RGB 颜色</translation>
    </message>
    <message>
        <source>from an rgb color</source>
        <translation>从 RGB 颜色渐变</translation>
    </message>
    <message>
        <source>to next frame</source>
        <translation>渐变到下一帧</translation>
    </message>
    <message>
        <source>from previous frame</source>
        <translation>从上一帧渐变</translation>
    </message>
    <message>
        <source>What to blend the current frame with</source>
        <translation>与当前帧混合的对象</translation>
    </message>
    <message>
        <source>The number of new frames, from 1 to 100</source>
        <translation>新帧的数量，1 到 100</translation>
    </message>
    <message>
        <source>The color to fade to or from</source>
        <translation>渐变的目标或起始颜色</translation>
    </message>
    <message>
        <source>Blends the current frame alone, whatever else is selected.</source>
        <translation>只混合当前帧，无论还选择了什么。</translation>
    </message>
    <message>
        <source>Fade mode:</source>
        <translation>渐变方式：</translation>
    </message>
    <message>
        <source>Frame count:</source>
        <translation>帧数：</translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation>预览：</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>C&amp;hoose...</source>
        <translation>选择(&amp;H)...</translation>
    </message>
    <message>
        <source>Works on the %1 selected frames.</source>
        <translation>作用于选中的 %1 帧。</translation>
    </message>
    <message>
        <source>Works on all %1 frames, since only one is selected.</source>
        <translation>作用于全部 %1 帧，因为只选中了一帧。</translation>
    </message>
    <message>
        <source>&amp;Frames:</source>
        <translation>帧(&amp;F)：</translation>
    </message>
    <message>
        <source>Select Every Nth</source>
        <translation>每 N 帧选一帧</translation>
    </message>
    <message>
        <source>Selects among all frames. The first frame is frame 0.</source>
        <translation>在所有帧中选择。第一帧是第 0 帧。</translation>
    </message>
    <message>
        <source>&amp;Beginning with frame:</source>
        <translation>起始帧(&amp;B)：</translation>
    </message>
    <message>
        <source>&amp;Every:</source>
        <translation>间隔(&amp;E)：</translation>
    </message>
    <message>
        <source>Select Range</source>
        <translation>选择范围</translation>
    </message>
    <message>
        <source>Frames are numbered from 0 to %1, or from the end: the last is -1. Examples: 3-7, 0-20/2 for every second one, 0,4,7, all.</source>
        <translation>帧从 0 到 %1 编号，或从末尾算起：最后一帧是 -1。例如：3-7，0-20/2 表示隔帧，0,4,7，all。</translation>
    </message>
    <message>
        <source>Go to Frame</source>
        <translation>转到帧</translation>
    </message>
    <message>
        <source>Makes a frame the current one. They are numbered from 0 to %1.</source>
        <translation>把某帧设为当前帧。帧从 0 到 %1 编号。</translation>
    </message>
    <message>
        <source>&amp;Frame:</source>
        <translation>帧(&amp;F)：</translation>
    </message>
    <message>
        <source>Drop Every Nth</source>
        <translation>每 N 帧丢弃一帧</translation>
    </message>
    <message>
        <source> The frame before each one that goes is shown for as long as both were.</source>
        <translation> 每个被丢弃的帧之前的帧会显示两者相加的时间。</translation>
    </message>
    <message>
        <source>&amp;Drop every:</source>
        <translation>丢弃间隔(&amp;D)：</translation>
    </message>
    <message>
        <source>Remove Duplicates</source>
        <translation>删除重复帧</translation>
    </message>
    <message>
        <source> A frame that shows what the one before shows is removed, and its pause added to that one.</source>
        <translation> 与前一帧显示相同内容的帧会被删除，其停留时间加到前一帧。</translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation>容差(&amp;T)：</translation>
    </message>
    <message>
        <source>By how much red, green and blue of a pixel may differ; 0: not at all</source>
        <translation>像素的红、绿、蓝可以相差多少；0：完全相同</translation>
    </message>
    <message>
        <source>Move To</source>
        <translation>移动到</translation>
    </message>
    <message>
        <source>Frames are numbered from 0 to %1; %2 is behind the last. Both at once: 3-7&gt;12.</source>
        <translation>帧从 0 到 %1 编号；%2 在最后一帧之后。可一次输入两者：3-7&gt;12。</translation>
    </message>
    <message>
        <source>&amp;Before frame:</source>
        <translation>移到此帧之前(&amp;B)：</translation>
    </message>
    <message>
        <source>Set Pause</source>
        <translation>设置停留时间</translation>
    </message>
    <message>
        <source>In milliseconds (40ms), frames per second (15fps), percent of what it is (150%), or without a unit in %1. Browsers play pauses below 20ms slower.</source>
        <translation>以毫秒 (40ms)、每秒帧数 (15fps)、原值的百分比 (150%)，或不带单位以%1表示。浏览器播放低于 20ms 的停留会更慢。</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>hundredths of a second</source>
        <translation>百分之一秒</translation>
    </message>
    <message>
        <source>&amp;Pause:</source>
        <translation>停留时间(&amp;P)：</translation>
    </message>
    <message>
        <source>Of the %1 &amp;selected frames</source>
        <translation>选中的 %1 帧(&amp;S)</translation>
    </message>
    <message>
        <source>Of the &amp;current frame</source>
        <translation>当前帧(&amp;C)</translation>
    </message>
    <message>
        <source>Of &amp;all %1 frames</source>
        <translation>全部 %1 帧(&amp;A)</translation>
    </message>
    <message>
        <source>Also frames with a pause of their &amp;own</source>
        <translation>也包括有自己停留时间的帧(&amp;O)</translation>
    </message>
    <message>
        <source>any</source>
        <translation>任意</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>左(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>上(&amp;T)：</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>宽度(&amp;W)：</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>高度(&amp;H)：</translation>
    </message>
    <message>
        <source>&amp;Ratio:</source>
        <translation>比例(&amp;R)：</translation>
    </message>
    <message>
        <source>Trim Transparent &amp;Edges</source>
        <translation>裁掉透明边缘(&amp;E)</translation>
    </message>
    <message>
        <source>Trim to &amp;Changes</source>
        <translation>裁剪到变化区域(&amp;C)</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>裁剪</translation>
    </message>
    <message>
        <source>Works on all frames and the canvas. Draw a rectangle on the picture, or type where it is.</source>
        <translation>作用于所有帧和画布。在图像上画一个矩形，或输入其位置。</translation>
    </message>
    <message>
        <source>the %1 selected frames</source>
        <translation>选中的 %1 帧</translation>
    </message>
    <message>
        <source>the current frame</source>
        <translation>当前帧</translation>
    </message>
    <message>
        <source>Make Transparent</source>
        <translation>设为透明</translation>
    </message>
    <message>
        <source>Works on %1. Click on the color in the picture, or type it.</source>
        <translation>作用于%1。点击图像中的颜色，或输入颜色。</translation>
    </message>
    <message>
        <source>&amp;Color:</source>
        <translation>颜色(&amp;C)：</translation>
    </message>
    <message>
        <source>Works on all frames and the canvas.</source>
        <translation>作用于所有帧和画布。</translation>
    </message>
    <message>
        <source>nearest: keeps pixels as they are</source>
        <translation>最近邻：保持像素原样</translation>
    </message>
    <message>
        <source>bilinear: soft</source>
        <translation>双线性：柔和</translation>
    </message>
    <message>
        <source>Lanczos: sharp</source>
        <translation>Lanczos：锐利</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>center</source>
        <translation>居中</translation>
    </message>
    <message>
        <source>right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Works on the current frame, the only one that is selected.</source>
        <translation>作用于当前帧，即唯一选中的帧。</translation>
    </message>
    <message>
        <source>Resize Animation</source>
        <translation>调整动画大小</translation>
    </message>
    <message>
        <source>&amp;Percent:</source>
        <translation>百分比(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;Keep the ratio</source>
        <translation>保持比例(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>滤镜(&amp;F)：</translation>
    </message>
    <message>
        <source>Canvas Size</source>
        <translation>画布大小</translation>
    </message>
    <message>
        <source>Works on all frames. Pictures keep their size; what a smaller canvas has no room for is cut off.</source>
        <translation>作用于所有帧。图像保持大小；较小画布放不下的部分会被裁掉。</translation>
    </message>
    <message>
        <source>&amp;Pictures stay at:</source>
        <translation>图像位置(&amp;P)：</translation>
    </message>
    <message>
        <source>scaled to the canvas</source>
        <translation>缩放到画布</translation>
    </message>
    <message>
        <source>padded to the canvas</source>
        <translation>填充到画布</translation>
    </message>
    <message>
        <source>cropped to the canvas</source>
        <translation>裁剪到画布</translation>
    </message>
    <message>
        <source>Fit Frames to Animation</source>
        <translation>使帧适合动画</translation>
    </message>
    <message>
        <source>Pictures are &amp;to be:</source>
        <translation>图像将(&amp;T)：</translation>
    </message>
    <message>
        <source>Adjust Colors</source>
        <translation>调整颜色</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>亮度(&amp;B)：</translation>
    </message>
    <message>
        <source>&amp;Contrast:</source>
        <translation>对比度(&amp;C)：</translation>
    </message>
    <message>
        <source>&amp;Saturation:</source>
        <translation>饱和度(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Greyscale</source>
        <translation>灰度(&amp;G)</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>&amp;Opacity in percent:</source>
        <translation>不透明度百分比(&amp;O)：</translation>
    </message>
    <message>
        <source>Overlay Image</source>
        <translation>叠加图像</translation>
    </message>
    <message>
        <source>&amp;Image:</source>
        <translation>图像(&amp;I)：</translation>
    </message>
    <message>
        <source>&amp;X offset:</source>
        <translation>X 偏移(&amp;X)：</translation>
    </message>
    <message>
        <source>&amp;Y offset:</source>
        <translation>Y 偏移(&amp;Y)：</translation>
    </message>
    <message>
        <source>Writes the %1 selected frames side by side into one PNG image, and a JSON text beside it that says where each is.</source>
        <translation>把选中的 %1 帧并排写入一个 PNG 图像，旁边的 JSON 文本说明每帧的位置。</translation>
    </message>
    <message>
        <source>Writes the %1 frames side by side into one PNG image, and a JSON text beside it that says where each is.</source>
        <translation>把 %1 帧并排写入一个 PNG 图像，旁边的 JSON 文本说明每帧的位置。</translation>
    </message>
    <message>
        <source>Export Sheet</source>
        <translation>导出图集</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>列数(&amp;C)：</translation>
    </message>
    <message>
        <source>as many as rows</source>
        <translation>与行数相同</translation>
    </message>
    <message>
        <source>&amp;Padding in pixels:</source>
        <translation>间距（像素）(&amp;P)：</translation>
    </message>
    <message>
        <source>Sides are powers of &amp;two</source>
        <translation>边长为 2 的幂(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>文字(&amp;T)：</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>字体(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Size in pixels:</source>
        <translation>大小（像素）(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Outline in pixels:</source>
        <translation>描边（像素）(&amp;O)：</translation>
    </message>
    <message>
        <source>Out&amp;line color:</source>
        <translation>描边颜色(&amp;L)：</translation>
    </message>
    <message>
        <source>Frames to fade &amp;in:</source>
        <translation>淡入帧数(&amp;I)：</translation>
    </message>
    <message>
        <source>Frames to fade o&amp;ut:</source>
        <translation>淡出帧数(&amp;U)：</translation>
    </message>
    <message>
        <source>Draws on the %1 selected frames.</source>
        <translation>绘制在选中的 %1 帧上。</translation>
    </message>
    <message>
        <source>Draws on the current frame, the only one that is selected.</source>
        <translation>绘制在当前帧上，即唯一选中的帧。</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source> Click on the picture where it is to begin.</source>
        <translation> 点击图像中文字开始的位置。</translation>
    </message>
    <message>
        <source>Insert Video</source>
        <translation>插入视频</translation>
    </message>
    <message>
        <source>Makes frames of a part of the video &quot;%1&quot;. Draw a rectangle on the picture to cut it.</source>
        <translation>把视频“%1”的一部分变成帧。在图像上画一个矩形来裁剪。</translation>
    </message>
    <message>
        <source>From</source>
        <translation>从</translation>
    </message>
    <message>
        <source>To</source>
        <translation>到</translation>
    </message>
    <message>
        <source>Pla&amp;y</source>
        <translation>播放(&amp;Y)</translation>
    </message>
    <message>
        <source>Reading the video...</source>
        <translation>正在读取视频...</translation>
    </message>
    <message>
        <source>Frames a &amp;second:</source>
        <translation>每秒帧数(&amp;S)：</translation>
    </message>
    <message>
        <source> px</source>
        <translation> 像素</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>从(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>到(&amp;T)：</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Width of the cut</source>
        <translation>裁剪宽度</translation>
    </message>
    <message>
        <source>Height of the cut</source>
        <translation>裁剪高度</translation>
    </message>
    <message>
        <source>C&amp;ut (x, y, w, h):</source>
        <translation>裁剪 (x, y, 宽, 高)(&amp;U)：</translation>
    </message>
    <message>
        <source>This part is not in the video.</source>
        <translation>此部分不在视频中。</translation>
    </message>
    <message>
        <source> The smallest that was tried has %1.</source>
        <translation> 尝试过的最小值为 %1。</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>删除(&amp;V)</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>导出(&amp;X)...</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>&amp;Preset:</source>
        <translation>预设(&amp;P)：</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>Keep &amp;As...</source>
        <translation>保留为(&amp;A)...</translation>
    </message>
    <message>
        <source>Keep Preset</source>
        <translation>保留预设</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名称：</translation>
    </message>
    <message>
        <source>Working...</source>
        <translation>正在处理...</translation>
    </message>
    <message>
        <source>No file</source>
        <translation>没有文件</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 字节</translation>
    </message>
    <message>
        <source>With </source>
        <translation>使用 </translation>
    </message>
    <message>
        <source>Export As</source>
        <translation>导出为</translation>
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
        <translation>PNG 动画</translation>
    </message>
    <message>
        <source>MP4 video</source>
        <translation>MP4 视频</translation>
    </message>
    <message>
        <source>WebM video</source>
        <translation>WebM 视频</translation>
    </message>
    <message>
        <source>F&amp;ormat:</source>
        <translation>格式(&amp;O)：</translation>
    </message>
    <message>
        <source>&amp;Colors:</source>
        <translation>颜色数(&amp;C)：</translation>
    </message>
    <message>
        <source>The same colors in all fra&amp;mes</source>
        <translation>所有帧使用相同颜色(&amp;M)</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>diffusion</source>
        <translation>误差扩散</translation>
    </message>
    <message>
        <source>ordered</source>
        <translation>有序</translation>
    </message>
    <message>
        <source>&amp;Dither:</source>
        <translation>抖动(&amp;D)：</translation>
    </message>
    <message>
        <source>&amp;Loss:</source>
        <translation>损失(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;Keep every pixel</source>
        <translation>保留每个像素(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>质量(&amp;Q)：</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>缩放(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Every n-th frame:</source>
        <translation>每 n 帧取一帧(&amp;E)：</translation>
    </message>
    <message>
        <source>Fit &amp;under</source>
        <translation>不超过(&amp;U)</translation>
    </message>
    <message>
        <source>Fit under</source>
        <translation>不超过</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source>Chat 8 MB</source>
        <translation>聊天 8 MB</translation>
    </message>
    <message>
        <source>E-mail 1 MB</source>
        <translation>电子邮件 1 MB</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>原图</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Number of rows of tiles in the image</source>
        <translation>图像中图块的行数</translation>
    </message>
    <message>
        <source>Number of columns of tiles in the image</source>
        <translation>图像中图块的列数</translation>
    </message>
    <message>
        <source>Row by row</source>
        <translation>逐行</translation>
    </message>
    <message>
        <source>Column by column</source>
        <translation>逐列</translation>
    </message>
    <message>
        <source>Rows:</source>
        <translation>行数：</translation>
    </message>
    <message>
        <source>Columns:</source>
        <translation>列数：</translation>
    </message>
    <message>
        <source>Size of a tile in pixels, in place of rows and columns; 0: by rows and columns. Width, height and spacing may be typed at once: 64x48+2, or 64+2 for squares</source>
        <translation>图块大小（像素），代替行数和列数；0：按行数和列数。可一次输入宽、高和间距：64x48+2，或正方形 64+2</translation>
    </message>
    <message>
        <source>Tile &amp;width:</source>
        <translation>图块宽度(&amp;W)：</translation>
    </message>
    <message>
        <source>Tile &amp;height:</source>
        <translation>图块高度(&amp;H)：</translation>
    </message>
    <message>
        <source>&amp;Margin:</source>
        <translation>边距(&amp;M)：</translation>
    </message>
    <message>
        <source>Pixels around all tiles</source>
        <translation>所有图块周围的像素</translation>
    </message>
    <message>
        <source>&amp;Spacing:</source>
        <translation>间距(&amp;S)：</translation>
    </message>
    <message>
        <source>Pixels between two tiles</source>
        <translation>两个图块之间的像素</translation>
    </message>
    <message>
        <source>Skip &amp;empty tiles</source>
        <translation>跳过空图块(&amp;E)</translation>
    </message>
    <message>
        <source>Makes no frames of tiles that are transparent everywhere</source>
        <translation>完全透明的图块不生成帧</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>格式：</translation>
    </message>
    <message>
        <source>One animation, or one image file per frame</source>
        <translation>一个动画，或每帧一个图像文件</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>设置...</translation>
    </message>
    <message>
        <source>Options of the chosen format</source>
        <translation>所选格式的选项</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>图集</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>压缩</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>无损</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>行程编码</translation>
    </message>
    <message>
        <source>Translator Settings</source>
        <translation>转换器设置</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>指南</translation>
    </message>
    <message>
        <source>Kirto - Guide</source>
        <translation>Kirto - 指南</translation>
    </message>
    <message>
        <source>The page &quot;%1&quot; is not part of the installed guide.</source>
        <translation>页面“%1”不在已安装的指南中。</translation>
    </message>
    <message>
        <source>The guide is not installed with this program.</source>
        <translation>此程序没有安装指南。</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>目录(&amp;C)</translation>
    </message>
    <message>
        <source>The first page</source>
        <translation>第一页</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>后退(&amp;B)</translation>
    </message>
    <message>
        <source>The page before this one (Alt+Left)</source>
        <translation>上一页 (Alt+左箭头)</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>前进(&amp;F)</translation>
    </message>
    <message>
        <source>The page after it (Alt+Right)</source>
        <translation>下一页 (Alt+右箭头)</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>查找(&amp;I)：</translation>
    </message>
    <message>
        <source>Find on this page</source>
        <translation>在此页查找</translation>
    </message>
    <message>
        <source>Finds a text on this page; Return finds the next place</source>
        <translation>在此页查找文字；回车查找下一处</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not on this page.</source>
        <translation>“%1”不在此页。</translation>
    </message>
    <message>
        <source>px</source>
        <translation>像素</translation>
    </message>
    <message>
        <source>1/100 s</source>
        <translation>1/100 秒</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%L1 毫秒</translation>
    </message>
    <message>
        <source>What the pause is in other units</source>
        <translation>以其他单位表示的停留时间</translation>
    </message>
    <message>
        <source>, %1 fps</source>
        <translation>，%L1 帧/秒</translation>
    </message>
    <message>
        <source>s</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>mixed</source>
        <translation>多个值</translation>
    </message>
    <message>
        <source>Width of the animation in pixels</source>
        <translation>动画的宽度（像素）</translation>
    </message>
    <message>
        <source>Height of the animation in pixels</source>
        <translation>动画的高度（像素）</translation>
    </message>
    <message>
        <source>Pause after every frame that has no pause of its own</source>
        <translation>在每个没有自己停留时间的帧之后停留</translation>
    </message>
    <message>
        <source>Use pause:</source>
        <translation>停留：</translation>
    </message>
    <message>
        <source>Length of the pause, in the unit chosen in the preferences</source>
        <translation>停留时间的长度，单位在首选项中选择</translation>
    </message>
    <message>
        <source>Play the animation more than once</source>
        <translation>播放动画多次</translation>
    </message>
    <message>
        <source>Use loop:</source>
        <translation>循环：</translation>
    </message>
    <message>
        <source>How many times to play the animation; 0 = forever</source>
        <translation>动画播放多少次；0 = 无限</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message numerus="yes">
        <source>1 color</source>
        <comment>%n colors</comment>
        <translation>
            <numerusform>%n 种颜色</numerusform>
        </translation>
    </message>
    <message>
        <source>Current Frame</source>
        <translation>当前帧</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Distance of the frame from the animation&apos;s left edge, in pixels</source>
        <translation>帧到动画左边缘的距离（像素）</translation>
    </message>
    <message>
        <source>X offset:</source>
        <translation>X 偏移：</translation>
    </message>
    <message>
        <source>Distance of the frame from the animation&apos;s top edge, in pixels</source>
        <translation>帧到动画上边缘的距离（像素）</translation>
    </message>
    <message>
        <source>Y offset:</source>
        <translation>Y 偏移：</translation>
    </message>
    <message>
        <source>Give the frame a pause of its own</source>
        <translation>给此帧自己的停留时间</translation>
    </message>
    <message>
        <source>Use pause</source>
        <translation>自己的停留</translation>
    </message>
    <message>
        <source>Length of the frame&apos;s pause, in the unit chosen in the preferences</source>
        <translation>此帧停留时间的长度，单位在首选项中选择</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>长度：</translation>
    </message>
    <message>
        <source>Save the frame with a palette of its own</source>
        <translation>用自己的调色板保存此帧</translation>
    </message>
    <message>
        <source>Local palette</source>
        <translation>局部调色板</translation>
    </message>
    <message>
        <source>BeOS system</source>
        <translation>BeOS 系统</translation>
    </message>
    <message>
        <source>web safe</source>
        <translation>网页安全</translation>
    </message>
    <message>
        <source>greyscale</source>
        <translation>灰度</translation>
    </message>
    <message>
        <source>optimal</source>
        <translation>最佳</translation>
    </message>
    <message>
        <source>from a file</source>
        <translation>来自文件</translation>
    </message>
    <message>
        <source>The colors of the frame&apos;s own palette</source>
        <translation>此帧自己的调色板的颜色</translation>
    </message>
    <message>
        <source>Local palette colors</source>
        <translation>局部调色板颜色</translation>
    </message>
    <message>
        <source>Frame list</source>
        <translation>帧列表</translation>
    </message>
    <message>
        <source>Show the frames as pictures</source>
        <translation>以图片显示帧</translation>
    </message>
    <message>
        <source>Show the frames as a list, with a preview of the current one</source>
        <translation>以列表显示帧，并预览当前帧</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Palette:</source>
        <translation>调色板：</translation>
    </message>
    <message>
        <source>first frame</source>
        <translation>第一帧</translation>
    </message>
    <message>
        <source>The colors used to save all frames that have no palette of their own</source>
        <translation>保存所有没有自己调色板的帧时使用的颜色</translation>
    </message>
    <message>
        <source>Mapping:</source>
        <translation>映射：</translation>
    </message>
    <message>
        <source>Approximate missing colors by dithering</source>
        <translation>用抖动近似缺少的颜色</translation>
    </message>
    <message>
        <source>Palette index of the background color</source>
        <translation>背景颜色的调色板索引</translation>
    </message>
    <message>
        <source>Make one color of the palette transparent</source>
        <translation>使调色板的一种颜色透明</translation>
    </message>
    <message>
        <source>Transparent index:</source>
        <translation>透明索引：</translation>
    </message>
    <message>
        <source>Palette index of the transparent color</source>
        <translation>透明颜色的调色板索引</translation>
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
        <translation>状态：0 帧，未修改</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Stops what is being done; what is complete is kept</source>
        <translation>停止正在进行的工作；已完成的会保留</translation>
    </message>
    <message>
        <source>Status: %1 frame(s), %2</source>
        <translation>状态：%1 帧，%2</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>已修改</translation>
    </message>
    <message>
        <source>unmodified</source>
        <translation>未修改</translation>
    </message>
    <message>
        <source>%1 in memory</source>
        <translation>内存 %1</translation>
    </message>
    <message>
        <source>The size of the file is not known yet.</source>
        <translation>文件大小尚未知。</translation>
    </message>
    <message>
        <source>file %1</source>
        <translation>文件 %1</translation>
    </message>
    <message>
        <source>file about %1</source>
        <translation>文件约 %1</translation>
    </message>
    <message>
        <source>Saved as a GIF file, it has %1 bytes.</source>
        <translation>存为 GIF 文件时有 %1 字节。</translation>
    </message>
    <message>
        <source>Saved as a GIF file, it has about %1 bytes.</source>
        <translation>存为 GIF 文件时约有 %1 字节。</translation>
    </message>
    <message>
        <source>The animation and what can be undone take %1.</source>
        <translation>动画和可撤销的内容占用 %1。</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%L1 秒</translation>
    </message>
    <message>
        <source>%1 of %2 selected, %3 s of %4</source>
        <translation>选中 %1 / %2，%L3 秒 / %4</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>How large pixels are shown</source>
        <translation>像素的显示大小</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适合</translation>
    </message>
    <message>
        <source>As large as fits</source>
        <translation>尽可能大</translation>
    </message>
    <message>
        <source>In its own size</source>
        <translation>原始大小</translation>
    </message>
    <message>
        <source>Onion skin</source>
        <translation>洋葱皮</translation>
    </message>
    <message>
        <source>Let the frames beside this one be seen through it</source>
        <translation>透过此帧看到相邻的帧</translation>
    </message>
    <message>
        <source>No onion skin</source>
        <translation>无洋葱皮</translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation>上一帧</translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation>下一帧</translation>
    </message>
    <message>
        <source>Both frames</source>
        <translation>前后两帧</translation>
    </message>
    <message>
        <source>Opacity of the onion skin</source>
        <translation>洋葱皮的不透明度</translation>
    </message>
    <message>
        <source>How much of the frames beside this one is seen</source>
        <translation>相邻的帧可见多少</translation>
    </message>
    <message>
        <source>Saved colors</source>
        <translation>保存后的颜色</translation>
    </message>
    <message>
        <source>Show the frame with the colors that a GIF file will have</source>
        <translation>以 GIF 文件将有的颜色显示此帧</translation>
    </message>
    <message>
        <source>no frame</source>
        <translation>没有帧</translation>
    </message>
    <message>
        <source>transparent</source>
        <translation>透明</translation>
    </message>
    <message>
        <source>, alpha %1</source>
        <translation>，alpha %1</translation>
    </message>
    <message>
        <source>, index %1</source>
        <translation>，索引 %1</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>第 %1 帧</translation>
    </message>
    <message>
        <source>To the start</source>
        <translation>到开头</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>To the end</source>
        <translation>到末尾</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>重复</translation>
    </message>
    <message>
        <source>How often the animation is played</source>
        <translation>动画播放多少次</translation>
    </message>
    <message>
        <source>As saved</source>
        <translation>按保存的设置</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>始终</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>一次</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>How many times as fast as the animation says</source>
        <translation>动画原速的倍数</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>选中部分</translation>
    </message>
    <message>
        <source>Play the selected frames only</source>
        <translation>只播放选中的帧</translation>
    </message>
    <message>
        <source>Like a browser</source>
        <translation>像浏览器一样</translation>
    </message>
    <message>
        <source>Show frames for 0.10 s whose pause is below 0.02 s, as browsers do</source>
        <translation>像浏览器一样，停留低于 0.02 秒的帧显示 0.10 秒</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>停留</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空格</translation>
    </message>
    <message>
        <source>#%1 of %2, %3 s of %4 s</source>
        <translation>#%1 / %2，%3 秒 / %4 秒</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>指南(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts...</source>
        <translation>键盘快捷键(&amp;K)...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>关于(&amp;A)...</translation>
    </message>
    <message>
        <source>Kirto - untitled</source>
        <translation>Kirto - untitled</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>新建(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>打开(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>另存为(&amp;A)...</translation>
    </message>
    <message>
        <source>A&amp;bout...</source>
        <translation>关于(&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>制作副本(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Move To...</source>
        <translation>移动到(&amp;M)...</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>全不选(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Invert Selection</source>
        <translation>反选(&amp;I)</translation>
    </message>
    <message>
        <source>Select &amp;Every Nth...</source>
        <translation>每 N 帧选一帧(&amp;E)...</translation>
    </message>
    <message>
        <source>Select Ran&amp;ge...</source>
        <translation>选择范围(&amp;G)...</translation>
    </message>
    <message>
        <source>Go to &amp;Frame...</source>
        <translation>转到帧(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>预览(&amp;P)</translation>
    </message>
    <message>
        <source>Toggle &amp;Mode</source>
        <translation>切换模式(&amp;M)</translation>
    </message>
    <message>
        <source>P&amp;references...</source>
        <translation>首选项(&amp;R)...</translation>
    </message>
    <message>
        <source>Show Pla&amp;yer</source>
        <translation>显示播放器(&amp;Y)</translation>
    </message>
    <message>
        <source>Pl&amp;ay or Pause</source>
        <translation>播放或暂停(&amp;A)</translation>
    </message>
    <message>
        <source>Hide Frame &amp;Labels</source>
        <translation>隐藏帧标签(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Colors...</source>
        <translation>颜色(&amp;C)...</translation>
    </message>
    <message>
        <source>&amp;Insert...</source>
        <translation>插入(&amp;I)...</translation>
    </message>
    <message>
        <source>Insert &amp;Tiled...</source>
        <translation>插入图块(&amp;T)...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>删除(&amp;R)</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>下移(&amp;D)</translation>
    </message>
    <message>
        <source>Re&amp;verse All</source>
        <translation>全部反转(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Fade Effects...</source>
        <translation>渐变效果(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;Insert Animation...</source>
        <translation>插入动画(&amp;I)...</translation>
    </message>
    <message>
        <source>Export &amp;Sheet...</source>
        <translation>导出图集(&amp;S)...</translation>
    </message>
    <message>
        <source>Set &amp;Pause...</source>
        <translation>设置停留时间(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Forward and Back</source>
        <translation>正放再倒放(&amp;F)</translation>
    </message>
    <message>
        <source>Shift Start to Curre&amp;nt Frame</source>
        <translation>从当前帧开始(&amp;N)</translation>
    </message>
    <message>
        <source>Remove D&amp;uplicates...</source>
        <translation>删除重复帧(&amp;U)...</translation>
    </message>
    <message>
        <source>&amp;Drop Every Nth...</source>
        <translation>每 N 帧丢弃一帧(&amp;D)...</translation>
    </message>
    <message>
        <source>&amp;Resize Animation...</source>
        <translation>调整动画大小(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Crop...</source>
        <translation>裁剪(&amp;C)...</translation>
    </message>
    <message>
        <source>Can&amp;vas Size...</source>
        <translation>画布大小(&amp;V)...</translation>
    </message>
    <message>
        <source>Rotate Ri&amp;ght</source>
        <translation>向右旋转(&amp;G)</translation>
    </message>
    <message>
        <source>Rotate &amp;Left</source>
        <translation>向左旋转(&amp;L)</translation>
    </message>
    <message>
        <source>Flip &amp;Horizontally</source>
        <translation>水平翻转(&amp;H)</translation>
    </message>
    <message>
        <source>Flip Verticall&amp;y</source>
        <translation>垂直翻转(&amp;Y)</translation>
    </message>
    <message>
        <source>Fit Fra&amp;mes to Animation...</source>
        <translation>使帧适合动画(&amp;M)...</translation>
    </message>
    <message>
        <source>&amp;Adjust Colors...</source>
        <translation>调整颜色(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Opacity...</source>
        <translation>不透明度(&amp;O)...</translation>
    </message>
    <message>
        <source>Overlay Imag&amp;e...</source>
        <translation>叠加图像(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Text...</source>
        <translation>文字(&amp;T)...</translation>
    </message>
    <message>
        <source>Ma&amp;ke Transparent...</source>
        <translation>设为透明(&amp;K)...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>F&amp;rame</source>
        <translation>帧(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Animation</source>
        <translation>动画(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>撤销 %1(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>重做 %1(&amp;R)</translation>
    </message>
    <message>
        <source>Re&amp;verse Selected</source>
        <translation>反转选中的帧(&amp;V)</translation>
    </message>
    <message>
        <source>Hide Pla&amp;yer</source>
        <translation>隐藏播放器(&amp;Y)</translation>
    </message>
    <message>
        <source>Show Frame &amp;Labels</source>
        <translation>显示帧标签(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>清空列表(&amp;C)</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>最近打开(&amp;R)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Open an animation</source>
        <translation>打开动画</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>插入</translation>
    </message>
    <message>
        <source>Insert images as frames</source>
        <translation>插入图像作为帧</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Take the last change back</source>
        <translation>撤回上一次更改</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Make it again</source>
        <translation>再做一次</translation>
    </message>
    <message>
        <source>Play the animation, or pause it</source>
        <translation>播放或暂停动画</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>Save under another name or as images</source>
        <translation>以其他名称保存或存为图像</translation>
    </message>
    <message>
        <source>Write as another format, or smaller</source>
        <translation>写成其他格式，或更小</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Show the animation in the browser</source>
        <translation>在浏览器中显示动画</translation>
    </message>
    <message>
        <source>%1 (tool bar)</source>
        <translation>%1（工具栏）</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>&amp;Tool Bar</source>
        <translation>工具栏(&amp;T)</translation>
    </message>
    <message>
        <source>Hit a key</source>
        <translation>请按键</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Search for an action or a key</source>
        <translation>搜索操作或按键</translation>
    </message>
    <message>
        <source>Shows only the actions with this in their name or key</source>
        <translation>只显示名称或按键中含有此内容的操作</translation>
    </message>
    <message>
        <source>Actions and their keys</source>
        <translation>操作及其按键</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation>按键(&amp;K)：</translation>
    </message>
    <message>
        <source>Key of the chosen action</source>
        <translation>所选操作的按键</translation>
    </message>
    <message>
        <source>Hit the key that the action is to have; Backspace for none</source>
        <translation>按下该操作要用的键；退格键表示无</translation>
    </message>
    <message>
        <source>&amp;Take Over</source>
        <translation>接管(&amp;T)</translation>
    </message>
    <message>
        <source>Takes the key from the other action</source>
        <translation>从另一个操作取走此键</translation>
    </message>
    <message>
        <source>&amp;Default</source>
        <translation>默认(&amp;D)</translation>
    </message>
    <message>
        <source>The key that this action has at first</source>
        <translation>此操作最初的按键</translation>
    </message>
    <message>
        <source>&amp;Restore Defaults</source>
        <translation>恢复默认(&amp;R)</translation>
    </message>
    <message>
        <source>The keys that all actions have at first</source>
        <translation>所有操作最初的按键</translation>
    </message>
    <message>
        <source>Such a key is needed for typing, moving or opening menus. Hit one with Ctrl, or a function key.</source>
        <translation>这样的键要用于输入、移动或打开菜单。请按带 Ctrl 的键或功能键。</translation>
    </message>
    <message>
        <source>%1 is the key of &quot;%2&quot; in the menu &quot;%3&quot;.</source>
        <translation>%1 是菜单“%3”中“%2”的按键。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer has %2.</source>
        <translation>“%1”不再有 %2。</translation>
    </message>
    <message>
        <source>The keys could not be stored; they hold until the program ends.</source>
        <translation>无法保存按键；它们在程序结束前有效。</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>差异</translation>
    </message>
    <message>
        <source>The frame in Kirto</source>
        <translation>Kirto 中的帧</translation>
    </message>
    <message>
        <source>The frame in browsers</source>
        <translation>浏览器中的帧</translation>
    </message>
    <message>
        <source>In Kirto</source>
        <translation>在 Kirto 中</translation>
    </message>
    <message>
        <source>In browsers</source>
        <translation>在浏览器中</translation>
    </message>
    <message>
        <source>Frame that differs</source>
        <translation>有差异的帧</translation>
    </message>
    <message>
        <source>&amp;In turns</source>
        <translation>轮流显示(&amp;I)</translation>
    </message>
    <message>
        <source>In turns</source>
        <translation>轮流显示</translation>
    </message>
    <message>
        <source>Shows both in one place, one after the other</source>
        <translation>在同一位置依次显示两者</translation>
    </message>
    <message>
        <source>Frame %1 of %2</source>
        <translation>第 %1 帧，共 %2 帧</translation>
    </message>
    <message>
        <source>own pause</source>
        <translation>自己的停留时间</translation>
    </message>
    <message>
        <source>own palette</source>
        <translation>自己的调色板</translation>
    </message>
    <message>
        <source>cleared after it was shown</source>
        <translation>显示后清除</translation>
    </message>
    <message>
        <source>what was before comes back after it</source>
        <translation>之后恢复之前的内容</translation>
    </message>
    <message>
        <source>frame #%1    %2</source>
        <translation>帧 #%1    %2</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>帧</translation>
    </message>
    <message>
        <source>Insert image files</source>
        <translation>插入图像文件</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Remove the current frame</source>
        <translation>删除当前帧</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move the current frame toward the start</source>
        <translation>把当前帧向开头移动</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Move the current frame toward the end</source>
        <translation>把当前帧向末尾移动</translation>
    </message>
    <message>
        <source>Preview: 100%</source>
        <translation>预览：100%</translation>
    </message>
    <message>
        <source>Preview: %1%</source>
        <translation>预览：%1%</translation>
    </message>
    <message>
        <source>Select frames</source>
        <translation>选择帧</translation>
    </message>
    <message>
        <source>Frames as 3-7, 0-20/2 or 0,4,7; Return selects them, Escape leaves the selection</source>
        <translation>帧如 3-7、0-20/2 或 0,4,7；回车选择，Esc 保留现有选择</translation>
    </message>
    <message>
        <source>Recent animations</source>
        <translation>最近的动画</translation>
    </message>
    <message>
        <source>%1 in %2, %3</source>
        <translation>%1，位于 %2，%3</translation>
    </message>
    <message>
        <source>
The file is not there.</source>
        <translation>
文件不在那里。</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>缩略图</translation>
    </message>
    <message>
        <source>no frames</source>
        <translation>没有帧</translation>
    </message>
    <message>
        <source>frame #%1 %2, %3 x %4, %5 frame(s)</source>
        <translation>帧 #%1 %2，%3 x %4，共 %5 帧</translation>
    </message>
    <message>
        <source>, %1 selected</source>
        <translation>，选中 %1</translation>
    </message>
    <message>
        <source>frame #%1    %2
%3 x %4</source>
        <translation>帧 #%1    %2
%3 x %4</translation>
    </message>
    <message>
        <source>Drop images or an animation here,
or choose Insert...
from the Frame menu.</source>
        <translation>把图像或动画拖到这里，
或从“帧”菜单中
选择“插入...”。</translation>
    </message>
    <message>
        <source>Insert Frame</source>
        <translation>插入帧</translation>
    </message>
    <message>
        <source>Remove Frame</source>
        <translation>删除帧</translation>
    </message>
    <message>
        <source>Fade Effects...</source>
        <translation>渐变效果...</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>制作副本</translation>
    </message>
    <message>
        <source>Set Pause...</source>
        <translation>设置停留时间...</translation>
    </message>
    <message>
        <source>Thumbnail height: %1</source>
        <translation>缩略图高度：%1</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>打开...</translation>
    </message>
    <message>
        <source>Insert Images...</source>
        <translation>插入图像...</translation>
    </message>
    <message>
        <source>Make an animation of images</source>
        <translation>用图像制作动画</translation>
    </message>
    <message>
        <source>Recent animations:</source>
        <translation>最近的动画：</translation>
    </message>
    <message>
        <source>Also found in the preferences, under Compatibility</source>
        <translation>也可在首选项的“兼容性”中找到</translation>
    </message>
    <message>
        <source>Thumbnail height</source>
        <translation>缩略图高度</translation>
    </message>
    <message>
        <source>Height of the thumbnails in pixels</source>
        <translation>缩略图的高度（像素）</translation>
    </message>
    <message>
        <source>Use frame:</source>
        <translation>按帧：</translation>
    </message>
    <message>
        <source>first half sized</source>
        <translation>第一帧的一半</translation>
    </message>
    <message>
        <source>current half sized</source>
        <translation>当前帧的一半</translation>
    </message>
    <message>
        <source>first full sized</source>
        <translation>第一帧的大小</translation>
    </message>
    <message>
        <source>current full sized</source>
        <translation>当前帧的大小</translation>
    </message>
    <message>
        <source>Set the thumbnail height from a frame, or so that all frames fit</source>
        <translation>按某帧设置缩略图高度，或使所有帧都放得下</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>时间轴</translation>
    </message>
    <message>
        <source>Drag a block to move its frame, its right edge to change its pause, the ruler to go to a frame. Ctrl and the wheel zoom.</source>
        <translation>拖动块来移动帧，拖动右边缘来改变停留时间，拖动标尺来转到某帧。Ctrl 加滚轮缩放。</translation>
    </message>
    <message>
        <source>Frame %1, %2</source>
        <translation>第 %1 帧，%2</translation>
    </message>
    <message>
        <source>The file exists already. Do you want to replace it?</source>
        <translation>文件已存在。要替换它吗？</translation>
    </message>
    <message>
        <source>Some of the files exist already (%1). Do you want to replace them?</source>
        <translation>部分文件已存在 (%1)。要替换它们吗？</translation>
    </message>
    <message>
        <source>Sheet with JSON</source>
        <translation>图集和 JSON</translation>
    </message>
    <message>
        <source>Numbered images</source>
        <translation>编号的图像</translation>
    </message>
    <message>
        <source>Stren&amp;gth:</source>
        <translation>强度(&amp;G)：</translation>
    </message>
    <message>
        <source>Cha&amp;nged areas only</source>
        <translation>只写变化区域(&amp;N)</translation>
    </message>
    <message>
        <source>Off: each frame is written whole, for programs that do not build on the one before</source>
        <translation>关闭：每帧都完整写入，供不以前一帧为基础的程序使用</translation>
    </message>
    <message>
        <source>Ma&amp;tte:</source>
        <translation>底色(&amp;T)：</translation>
    </message>
    <message>
        <source>&amp;Image format:</source>
        <translation>图像格式(&amp;I)：</translation>
    </message>
    <message>
        <source>Colum&amp;ns:</source>
        <translation>列数(&amp;N)：</translation>
    </message>
    <message>
        <source>Pa&amp;dding:</source>
        <translation>间距(&amp;D)：</translation>
    </message>
    <message>
        <source>damaged, what was good was kept</source>
        <translation>已损坏，保留了完好的部分</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1：</translation>
    </message>
</context>
</TS>
