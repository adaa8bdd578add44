<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>FourWindows</name>
    <message>
        <source>Upper left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>右下</translation>
    </message>
</context>
<context>
    <name>KvmPage</name>
    <message>
        <source>Current Device Location</source>
        <translation>目前裝置位置</translation>
    </message>
    <message>
        <source>Connected to the other computer</source>
        <translation>已連線到另一台電腦</translation>
    </message>
    <message>
        <source>Connect the other computer</source>
        <translation>連線另一台電腦</translation>
    </message>
</context>
<context>
    <name>KvmPorts</name>
    <message>
        <source>Auto Switch</source>
        <translation>自動切換</translation>
    </message>
    <message>
        <source>USB-C Upstream</source>
        <translation>USB-C 上行</translation>
    </message>
    <message>
        <source>USB-B Upstream</source>
        <translation>USB-B 上行</translation>
    </message>
    <message>
        <source>TBT Upstream</source>
        <translation>TBT 上行</translation>
    </message>
</context>
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>局部對比</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>AI 對比</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>自動旋轉</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>螢幕旋轉</translation>
    </message>
</context>
<context>
    <name>LuDaisyChainWidget</name>
    <message>
        <source>Daisy Chain (MST)</source>
        <translation>Daisy Chain (MST)</translation>
    </message>
    <message>
        <source>One cable to easily connect all your monitors.</source>
        <translation>一條線材即可輕鬆連接所有螢幕。</translation>
    </message>
    <message>
        <source>About Daisy Chain (MST)</source>
        <translation>關於 Daisy Chain (MST)</translation>
    </message>
</context>
<context>
    <name>LuDualViewPlusWidget</name>
    <message>
        <source>DualView Plus</source>
        <translation>DualView Plus</translation>
    </message>
    <message>
        <source>Main: </source>
        <translation>主： </translation>
    </message>
    <message>
        <source>Left: </source>
        <translation>左： </translation>
    </message>
    <message>
        <source>Sub: </source>
        <translation>副： </translation>
    </message>
    <message>
        <source>Right: </source>
        <translation>右： </translation>
    </message>
</context>
<context>
    <name>LuDualViewWidget</name>
    <message>
        <source>DualView</source>
        <translation>DualView</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>左：</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>右：</translation>
    </message>
</context>
<context>
    <name>LuInputSourceWidget</name>
    <message>
        <source>Input source</source>
        <translation>輸入來源</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>輸入</translation>
    </message>
    <message>
        <source>Built-in</source>
        <translation>內建</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
</context>
<context>
    <name>LuPIPPBPWidget</name>
    <message>
        <source>Smart KVM</source>
        <translation>Smart KVM</translation>
    </message>
    <message>
        <source>Smart KVM Basic</source>
        <translation>Smart KVM Basic</translation>
    </message>
    <message>
        <source>PIP / PBP</source>
        <translation>PIP / PBP</translation>
    </message>
    <message>
        <source>PIP</source>
        <translation>PIP</translation>
    </message>
    <message>
        <source>PBP</source>
        <translation>PBP</translation>
    </message>
    <message>
        <source>Do you want to turn off PBP Mode and %1?</source>
        <translation>要關閉 PBP 模式和 %1 嗎？</translation>
    </message>
    <message>
        <source>%1 only works in PBP mode. If you choose to turn off PBP mode, %1 will be disabled as well.</source>
        <translation>%1 僅在 PBP 模式下運作。關閉 PBP 模式後，%1 也會關閉。</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>旋轉</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>螢幕旋轉</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>低藍光 Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>低藍光</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>等級</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>超出範圍</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>請將日出時間設在 00:00 至 11:59，日落時間設在 12:00 至 23:59。</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>晝夜節律模式</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>日出至日落</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手動</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>日出</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>日落</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>套用</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>濾鏡隨您所在地的太陽變化。%2 前為等級 %1。</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>由於網路不穩定或其他問題，系統未能取得日出和日落時間。請切換到手動模式。</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>天氣資料提供者</translation>
    </message>
    <message>
        <source>Set your location</source>
        <translation>設定您的位置</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>全天等級</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>低藍光 Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>低藍光</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>等級</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>晝夜節律模式</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手動</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>日出至日落</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>夜間保護</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>自動切換會依環境光開啟或關閉夜間保護，輕鬆持續地呵護眼睛。</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>等級</translation>
    </message>
</context>
<context>
    <name>LuSmartKvmBasicWidget</name>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Smart KVM Basic is enabled</source>
        <translation>Smart KVM Basic 已開啟</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>要切換到 PBP 模式嗎？</translation>
    </message>
    <message>
        <source>Smart KVM Basic works only in PBP Mode. Turning off PBP Mode will also disable Smart KVM Basic.</source>
        <translation>Smart KVM Basic 僅在 PBP 模式下運作。關閉 PBP 模式也會關閉 Smart KVM Basic。</translation>
    </message>
    <message>
        <source>Smart KVM Basic</source>
        <translation>Smart KVM Basic</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Orvane Smart KVM Basic makes multitasking effortless - use one keyboard and mouse to control two computers. With automatic switching when your cursor crosses the screen edge, you can work seamlessly across systems. Just install Lumen Desk 2 on both devices and enable PBP Mode to get started.</source>
        <translation>Orvane Smart KVM Basic 讓多工更輕鬆：一組鍵盤滑鼠即可控制兩台電腦。游標越過螢幕邊緣時自動切換，跨系統工作順暢無阻。在兩台裝置上安裝 Lumen Desk 2 並開啟 PBP 模式即可開始。</translation>
    </message>
</context>
<context>
    <name>LuSmartKvmWidget</name>
    <message>
        <source>Driver installation is required</source>
        <translation>需要安裝驅動程式</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已連線</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>正在搜尋</translation>
    </message>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Smart KVM Enabled</source>
        <translation>Smart KVM 已開啟</translation>
    </message>
    <message>
        <source>Driver installation is required.</source>
        <translation>需要安裝驅動程式。</translation>
    </message>
    <message>
        <source>Smart KVM requires your permission to install its driver. Would you like to install it now?</source>
        <translation>Smart KVM 需要您的許可才能安裝驅動程式。現在安裝嗎？</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>要切換到 PBP 模式嗎？</translation>
    </message>
    <message>
        <source>Smart KVM only works in PBP mode. If you'd like to continue using Smart KVM, we can switch to PBP mode for you.</source>
        <translation>Smart KVM 僅在 PBP 模式下運作。如需繼續使用，我們可以為您切換到 PBP 模式。</translation>
    </message>
    <message>
        <source>Smart KVM</source>
        <translation>Smart KVM</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>夜間保護</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>自動切換</translation>
    </message>
    <message>
        <source>On</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>關</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>夜間保護</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>等級</translation>
    </message>
</context>
<context>
    <name>PictureGoneNote</name>
    <message>
        <source>This computer's picture goes away with its input. %1 brings it back.</source>
        <translation>本機畫面會隨輸入切換而消失。按 %1 可恢復。</translation>
    </message>
    <message>
        <source>This computer's picture goes away with its input. Choose %1 in the monitor's menu to bring it back.</source>
        <translation>本機畫面會隨輸入切換而消失。請在螢幕選單中選擇 %1 來恢復。</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>返回 %1</translation>
    </message>
    <message>
        <source>Turn on shortcuts</source>
        <translation>開啟快速鍵</translation>
    </message>
</context>
<context>
    <name>PipOptions</name>
    <message>
        <source>Sub size</source>
        <translation>子視窗大小</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>小</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>大</translation>
    </message>
    <message>
        <source>Sub position</source>
        <translation>子視窗位置</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>左下</translation>
    </message>
</context>
<context>
    <name>PipPbpPage</name>
    <message>
        <source>Picture in picture</source>
        <translation>子母畫面</translation>
    </message>
    <message>
        <source>Half and half</source>
        <translation>各占一半</translation>
    </message>
    <message>
        <source>Four windows</source>
        <translation>四個視窗</translation>
    </message>
    <message>
        <source>16 : 9 and 9 : 5</source>
        <translation>16 : 9 和 9 : 5</translation>
    </message>
    <message>
        <source>Two to one</source>
        <translation>二比一</translation>
    </message>
    <message>
        <source>Three to one</source>
        <translation>三比一</translation>
    </message>
    <message>
        <source>Audio Source</source>
        <translation>音訊來源</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>交換</translation>
    </message>
</context>
<context>
    <name>TwoWindows</name>
    <message>
        <source>Main:</source>
        <translation>主：</translation>
    </message>
    <message>
        <source>Sub:</source>
        <translation>副：</translation>
    </message>
    <message>
        <source>16 : 9</source>
        <translation>16 : 9</translation>
    </message>
    <message>
        <source>9 : 5</source>
        <translation>9 : 5</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>左：</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>右：</translation>
    </message>
</context>
<context>
    <name>LuBrightnessWidget</name>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>色彩模式 / 亮度</translation>
    </message>
</context>
<context>
    <name>BrightnessPage</name>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>色彩模式 / 亮度</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>色彩模式</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Software Dimming</source>
        <translation>軟體調光</translation>
    </message>
    <message>
        <source>Darkens the picture below the lowest brightness of the monitor. Ambient brightness functions switch it off for as long as they run.</source>
        <translation>使畫面比顯示器的最低亮度更暗。環境光功能執行時會將其關閉。</translation>
    </message>
    <message>
        <source>Brightness Sync</source>
        <translation>亮度同步</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>對比</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>銳利度</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色調</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>飽和度</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>伽瑪</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>色域</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>均勻性</translation>
    </message>
    <message>
        <source>Reset Color</source>
        <translation>重設色彩</translation>
    </message>
</context>
<context>
    <name>BrightnessSliders</name>
    <message>
        <source>Software Dimming</source>
        <translation>軟體調光</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
</context>
<context>
    <name>ColorModeChoice</name>
    <message>
        <source>Color Mode</source>
        <translation>色彩模式</translation>
    </message>
</context>
<context>
    <name>ColorTemperatureControls</name>
    <message>
        <source>Color Temperature</source>
        <translation>色溫</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>紅</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>綠</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>藍</translation>
    </message>
</context>
<context>
    <name>AxisControls</name>
    <message>
        <source>Red</source>
        <translation>紅</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黃</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>綠</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>藍</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>洋紅</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>ModeBundleHint</name>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>對比</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>銳利度</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>色溫</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色調</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>飽和度</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>伽瑪</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>色域</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>均勻性</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>低藍光</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>夜間保護</translation>
    </message>
    <message>
        <source>Ambient brightness</source>
        <translation>環境亮度</translation>
    </message>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>與色彩模式綁定</translation>
    </message>
    <message>
        <source>Stored for each color mode: %1.</source>
        <translation>每種色彩模式分別儲存：%1。</translation>
    </message>
</context>
<context>
    <name>LuBuiltInBrightnessWidget</name>
    <message>
        <source>Built-in brightness</source>
        <translation>內建螢幕亮度</translation>
    </message>
</context>
<context>
    <name>LuColorWeaknessWidget</name>
    <message>
        <source>Color Weakness</source>
        <translation>色弱</translation>
    </message>
    <message>
        <source>Red: %1</source>
        <translation>紅：%1</translation>
    </message>
    <message>
        <source>Green: %1</source>
        <translation>綠：%1</translation>
    </message>
</context>
<context>
    <name>LuHDRWidget</name>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>Due to macOS scaling settings, HDR is temporarily unavailable. Please try turning off HiDPI or lowering the resolution.</source>
        <translation>由於 macOS 的縮放設定，HDR 暫時無法使用。請嘗試關閉 HiDPI 或降低解析度。</translation>
    </message>
    <message>
        <source>This monitor has no HDR mode to switch to.</source>
        <translation>此顯示器沒有可切換的 HDR 模式。</translation>
    </message>
</context>
<context>
    <name>LuPopupColorModeAction</name>
    <message>
        <source>Color Mode</source>
        <translation>色彩模式</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
</context>
<context>
    <name>LuPopupBrightnessShortcut</name>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
</context>
<context>
    <name>LuPopupIccSyncHint</name>
    <message>
        <source>Color Sync</source>
        <translation>色彩同步</translation>
    </message>
    <message>
        <source>The color profile of the desktop now follows the color mode of this monitor.</source>
        <translation>桌面的色彩描述檔現在會跟隨此顯示器的色彩模式。</translation>
    </message>
</context>
<context>
    <name>PackageStrings</name>
    <message>
        <source>Coding - Light Theme</source>
        <translation>編程 - 淺色主題</translation>
    </message>
    <message>
        <source>Coding - Dark Theme</source>
        <translation>編程 - 深色主題</translation>
    </message>
    <message>
        <source>Coding - Paper Color</source>
        <translation>編程 - 紙張色</translation>
    </message>
    <message>
        <source>M-book</source>
        <translation>M-book</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>劇院</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>遊戲</translation>
    </message>
    <message>
        <source>ePaper</source>
        <translation>ePaper</translation>
    </message>
    <message>
        <source>User</source>
        <translation>使用者</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Bluish</source>
        <translation>偏藍</translation>
    </message>
    <message>
        <source>Reddish</source>
        <translation>偏紅</translation>
    </message>
</context>
<context>
    <name>LuABPlusWidget</name>
    <message>
        <source>Visual Optimizer</source>
        <translation>Visual Optimizer</translation>
    </message>
    <message>
        <source>A.B.+ Gen2</source>
        <translation>A.B.+ Gen2</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>關於 %1</translation>
    </message>
    <message>
        <source>To meet individual preferences, %1 allows manual control of screen brightness. It learns and records your last adjustment, applying it to optimize its automatic brightness adjustment curve to better match your preferences.</source>
        <translation>為符合個人喜好，%1 允許手動調整螢幕亮度。它會學習並記錄您的上一次調整，據此最佳化自動亮度曲線，使其更符合您的喜好。</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>參數</translation>
    </message>
    <message>
        <source>Brightness + Color Temperature</source>
        <translation>亮度 + 色溫</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>光度計</translation>
    </message>
</context>
<context>
    <name>LuABSettingWidget</name>
    <message>
        <source>A.B. Gen2</source>
        <translation>A.B. Gen2</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>光度計</translation>
    </message>
</context>
<context>
    <name>SensitivitySlider</name>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>感應器靈敏度</translation>
    </message>
</context>
<context>
    <name>BackLightStateChoice</name>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Auto Dimming</source>
        <translation>自動調光</translation>
    </message>
    <message>
        <source>On</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>關</translation>
    </message>
</context>
<context>
    <name>BackLightControls</name>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>色溫</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>燈光模式</translation>
    </message>
</context>
<context>
    <name>LuBackLightWidget</name>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Auto Dimming automatically adjusts BackGlow's brightness based on ambient light detection, safeguarding your eyes in low-light environments. Auto Dimming can only be used when A.B. Gen2 is enabled.</source>
        <translation>自動調光會依環境光調整 BackGlow 的亮度，在弱光環境中保護您的眼睛。僅在啟用 A.B. Gen2 時可用。</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>色彩模式綁定</translation>
    </message>
    <message>
        <source>The system will automatically switch to the bundled BackGlow settings when you change the color mode.</source>
        <translation>切換色彩模式時，系統會自動切換到綁定的 BackGlow 設定。</translation>
    </message>
    <message>
        <source>Non-stop Mode</source>
        <translation>不中斷模式</translation>
    </message>
    <message>
        <source>To activate BackGlow while the monitor is in sleep mode, you can enable the non-stop mode.</source>
        <translation>若要在螢幕睡眠時啟用 BackGlow，可開啟不中斷模式。</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
</context>
<context>
    <name>EcoPrivacyTexts</name>
    <message>
        <source>5 sec.</source>
        <translation>5 秒</translation>
    </message>
    <message>
        <source>10 sec.</source>
        <translation>10 秒</translation>
    </message>
    <message>
        <source>20 sec.</source>
        <translation>20 秒</translation>
    </message>
    <message>
        <source>30 sec.</source>
        <translation>30 秒</translation>
    </message>
    <message>
        <source>60 sec.</source>
        <translation>60 秒</translation>
    </message>
    <message>
        <source>5 min.</source>
        <translation>5 分鐘</translation>
    </message>
    <message>
        <source>10 min.</source>
        <translation>10 分鐘</translation>
    </message>
    <message>
        <source>Near</source>
        <translation>近</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>遠</translation>
    </message>
</context>
<context>
    <name>LuEcoPrivacyWidget</name>
    <message>
        <source>EcoPrivacy</source>
        <translation>EcoPrivacy</translation>
    </message>
    <message>
        <source>Dim your monitor after a period of inactivity.</source>
        <translation>閒置一段時間後調暗螢幕。</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Display + BackGlow</source>
        <translation>螢幕 + BackGlow</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>螢幕</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>感應器靈敏度</translation>
    </message>
    <message>
        <source>EcoPrivacy helps protect your screen privacy and dims your monitor after inactivity through your built-in monitor sensor.</source>
        <translation>EcoPrivacy 透過內建感應器在您離開後調暗螢幕，協助保護螢幕隱私。</translation>
    </message>
</context>
<context>
    <name>LuPopupABPlusAction</name>
    <message>
        <source>Visual Optimizer</source>
        <translation>Visual Optimizer</translation>
    </message>
    <message>
        <source>A.B.+ Gen2</source>
        <translation>A.B.+ Gen2</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>感應器靈敏度</translation>
    </message>
</context>
<context>
    <name>LuPopupABAction</name>
    <message>
        <source>A.B. Gen2</source>
        <translation>A.B. Gen2</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>光度計</translation>
    </message>
    <message>
        <source>On</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>關</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>感應器靈敏度</translation>
    </message>
</context>
<context>
    <name>LuPopupBackLightAction</name>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>色溫</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>燈光模式</translation>
    </message>
</context>
<context>
    <name>LuPopupEcoPrivacyAction</name>
    <message>
        <source>EcoPrivacy</source>
        <translation>EcoPrivacy</translation>
    </message>
    <message>
        <source>Dim your monitor after %1</source>
        <translation>%1後調暗螢幕</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>感應器靈敏度</translation>
    </message>
</context>
<context>
    <name>LuShortcutsWidget</name>
    <message>
        <source>Shortcuts</source>
        <translation>快速鍵</translation>
    </message>
    <message>
        <source>The key combination can not be used.</source>
        <translation>無法使用此組合鍵。</translation>
    </message>
    <message>
        <source>This shortcut cannot be used as it is currently being used by another function.</source>
        <translation>此快速鍵正由其他功能使用，因此無法使用。</translation>
    </message>
    <message>
        <source>Reset All Shortcuts</source>
        <translation>重設所有快速鍵</translation>
    </message>
    <message>
        <source>To reset your keyboard shortcuts, click on the 'Reset' button below. Once confirmed, the app will immediately restore the default settings.</source>
        <translation>若要重設快速鍵，請按下方的「重設」按鈕。確認後，應用程式會立即還原預設設定。</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>ShortcutRows</name>
    <message>
        <source>Input</source>
        <translation>輸入</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>色彩模式</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>夜間保護</translation>
    </message>
    <message>
        <source>EcoPrivacy</source>
        <translation>EcoPrivacy</translation>
    </message>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Extra Copy/Paste</source>
        <translation>額外複製/貼上</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>降低</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>提高</translation>
    </message>
    <message>
        <source>TurnOn/Off</source>
        <translation>開啟/關閉</translation>
    </message>
    <message>
        <source>Loop all KVM switch</source>
        <translation>循環切換 KVM</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼上</translation>
    </message>
    <message>
        <source>This function supports image, text, file, and URL formats. Copying other types of content may impact the content of the clipboard.</source>
        <translation>此功能支援影像、文字、檔案與網址。複製其他類型的內容可能會影響剪貼簿的內容。</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <translation>切換至 %1</translation>
    </message>
    <message>
        <source>Loop all color mode</source>
        <translation>循環切換色彩模式</translation>
    </message>
    <message>
        <source>Loop all Audio Mode</source>
        <translation>循環切換音訊模式</translation>
    </message>
    <message>
        <source>Loop all speaker output</source>
        <translation>循環切換喇叭輸出</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>靜音</translation>
    </message>
</context>
<context>
    <name>LuVolumeWidget</name>
    <message>
        <source>Audio</source>
        <translation>音訊</translation>
    </message>
    <message>
        <source>Volume can be adjusted in main page at anytime. You can also expand the menu to choose the audio source.</source>
        <translation>可隨時在主頁面調整音量，也可以展開選單選擇音訊來源。</translation>
    </message>
    <message>
        <source>iKeyboard Control</source>
        <translation>iKeyboard 控制</translation>
    </message>
    <message>
        <source>Enable iKeyboard Control to use the F11/F12 volume keys on Mac keyboard to adjust the volume of the selected audio output.</source>
        <translation>啟用 iKeyboard 控制後，可使用 Mac 鍵盤的 F11/F12 音量鍵調整所選音訊輸出的音量。</translation>
    </message>
</context>
<context>
    <name>AudioModeChoice</name>
    <message>
        <source>Audio Mode</source>
        <translation>音訊模式</translation>
    </message>
</context>
<context>
    <name>Equaliser</name>
    <message>
        <source>Equalizer Setting</source>
        <translation>等化器設定</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>+6db</source>
        <translation>+6db</translation>
    </message>
    <message>
        <source>0db</source>
        <translation>0db</translation>
    </message>
    <message>
        <source>-6db</source>
        <translation>-6db</translation>
    </message>
</context>
<context>
    <name>OutputChoice</name>
    <message>
        <source>Output</source>
        <translation>輸出</translation>
    </message>
    <message>
        <source>Sound Settings</source>
        <translation>音效設定</translation>
    </message>
</context>
<context>
    <name>VolumePage</name>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>System's volume</source>
        <translation>系統音量</translation>
    </message>
    <message>
        <source>Audio Mode</source>
        <translation>音訊模式</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>輸出</translation>
    </message>
    <message>
        <source>The volume of this monitor can be set while the system plays through it.</source>
        <translation>當系統透過此螢幕播放時，即可設定其音量。</translation>
    </message>
</context>
<context>
    <name>LuPopupVolumeShortcut</name>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
</context>
<context>
    <name>LuPopupVolumeAction</name>
    <message>
        <source>Audio</source>
        <translation>音訊</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Audio Mode :</source>
        <translation>音訊模式：</translation>
    </message>
</context>
<context>
    <name>Walkthrough</name>
    <message>
        <source>BackGlow Auto-dimming</source>
        <translation>BackGlow：自動調光</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>夜間保護</translation>
    </message>
    <message>
        <source>The light behind your monitor dims with the room, so that your eyes stay at ease.</source>
        <translation>顯示器背後的燈光會隨室內亮度變暗，讓您的眼睛保持舒適。</translation>
    </message>
    <message>
        <source>After dark the picture turns darker than the lowest brightness, without losing its details.</source>
        <translation>天黑後，畫面會比最低亮度更暗，但不會遺失細節。</translation>
    </message>
</context>
</TS>
