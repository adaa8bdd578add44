<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
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
        <translation>当前设备位置</translation>
    </message>
    <message>
        <source>Connected to the other computer</source>
        <translation>已连接到另一台计算机</translation>
    </message>
    <message>
        <source>Connect the other computer</source>
        <translation>连接另一台计算机</translation>
    </message>
</context>
<context>
    <name>KvmPorts</name>
    <message>
        <source>Auto Switch</source>
        <translation>自动切换</translation>
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
        <translation>局部对比度</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>AI 对比度</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>自动旋转</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>屏幕旋转</translation>
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
        <translation>一根线缆即可轻松连接所有显示器。</translation>
    </message>
    <message>
        <source>About Daisy Chain (MST)</source>
        <translation>关于 Daisy Chain (MST)</translation>
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
        <translation>输入源</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>输入</translation>
    </message>
    <message>
        <source>Built-in</source>
        <translation>内置</translation>
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
        <translation>要关闭 PBP 模式和 %1 吗？</translation>
    </message>
    <message>
        <source>%1 only works in PBP mode. If you choose to turn off PBP mode, %1 will be disabled as well.</source>
        <translation>%1 仅在 PBP 模式下工作。关闭 PBP 模式后，%1 也会关闭。</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>屏幕旋转</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>低蓝光 Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>低蓝光</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>超出范围</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>请将日出时间设在 00:00 至 11:59，日落时间设在 12:00 至 23:59。</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>昼夜节律模式</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>日出至日落</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手动</translation>
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
        <translation>应用</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>滤镜随您所在地的太阳变化。%2 前为级别 %1。</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>由于网络不稳定或其他问题，系统未能获取日出和日落时间。请切换到手动模式。</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>天气数据提供方</translation>
    </message>
    <message>
        <source>Set your location</source>
        <translation>设置您的位置</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>全天级别</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>低蓝光 Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>低蓝光</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>昼夜节律模式</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手动</translation>
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
        <translation>夜间保护</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>自动切换会根据环境光开启或关闭夜间保护，轻松持续地呵护眼睛。</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
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
        <translation>Smart KVM Basic 已开启</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>要切换到 PBP 模式吗？</translation>
    </message>
    <message>
        <source>Smart KVM Basic works only in PBP Mode. Turning off PBP Mode will also disable Smart KVM Basic.</source>
        <translation>Smart KVM Basic 仅在 PBP 模式下工作。关闭 PBP 模式也会关闭 Smart KVM Basic。</translation>
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
        <translation>Orvane Smart KVM Basic 让多任务更轻松：一套键盘鼠标即可控制两台电脑。光标越过屏幕边缘时自动切换，跨系统工作畅通无阻。在两台设备上安装 Lumen Desk 2 并开启 PBP 模式即可开始。</translation>
    </message>
</context>
<context>
    <name>LuSmartKvmWidget</name>
    <message>
        <source>Driver installation is required</source>
        <translation>需要安装驱动程序</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>正在搜索</translation>
    </message>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Smart KVM Enabled</source>
        <translation>Smart KVM 已开启</translation>
    </message>
    <message>
        <source>Driver installation is required.</source>
        <translation>需要安装驱动程序。</translation>
    </message>
    <message>
        <source>Smart KVM requires your permission to install its driver. Would you like to install it now?</source>
        <translation>Smart KVM 需要您的许可才能安装驱动程序。现在安装吗？</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>要切换到 PBP 模式吗？</translation>
    </message>
    <message>
        <source>Smart KVM only works in PBP mode. If you'd like to continue using Smart KVM, we can switch to PBP mode for you.</source>
        <translation>Smart KVM 仅在 PBP 模式下工作。如需继续使用，我们可以为您切换到 PBP 模式。</translation>
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
        <translation>夜间保护</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>自动切换</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>夜间保护</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
    </message>
</context>
<context>
    <name>PictureGoneNote</name>
    <message>
        <source>This computer's picture goes away with its input. %1 brings it back.</source>
        <translation>本机画面会随输入切换而消失。按 %1 可恢复。</translation>
    </message>
    <message>
        <source>This computer's picture goes away with its input. Choose %1 in the monitor's menu to bring it back.</source>
        <translation>本机画面会随输入切换而消失。请在显示器菜单中选择 %1 来恢复。</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>返回 %1</translation>
    </message>
    <message>
        <source>Turn on shortcuts</source>
        <translation>开启快捷键</translation>
    </message>
</context>
<context>
    <name>PipOptions</name>
    <message>
        <source>Sub size</source>
        <translation>副窗口大小</translation>
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
        <translation>副窗口位置</translation>
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
        <translation>画中画</translation>
    </message>
    <message>
        <source>Half and half</source>
        <translation>各占一半</translation>
    </message>
    <message>
        <source>Four windows</source>
        <translation>四个窗口</translation>
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
        <translation>音频来源</translation>
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
        <translation>交换</translation>
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
        <translation>软件调光</translation>
    </message>
    <message>
        <source>Darkens the picture below the lowest brightness of the monitor. Ambient brightness functions switch it off for as long as they run.</source>
        <translation>使画面比显示器的最低亮度更暗。环境光功能运行时会将其关闭。</translation>
    </message>
    <message>
        <source>Brightness Sync</source>
        <translation>亮度同步</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>对比度</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>锐度</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色调</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>饱和度</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>伽马</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>色域</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>均匀性</translation>
    </message>
    <message>
        <source>Reset Color</source>
        <translation>重置色彩</translation>
    </message>
</context>
<context>
    <name>BrightnessSliders</name>
    <message>
        <source>Software Dimming</source>
        <translation>软件调光</translation>
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
        <translation>色温</translation>
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
</context>
<context>
    <name>AxisControls</name>
    <message>
        <source>Red</source>
        <translation>红</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>品红</translation>
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
        <translation>对比度</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>锐度</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>色温</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色调</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>饱和度</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>伽马</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>色域</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>均匀性</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>低蓝光</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>夜间保护</translation>
    </message>
    <message>
        <source>Ambient brightness</source>
        <translation>环境亮度</translation>
    </message>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>与色彩模式绑定</translation>
    </message>
    <message>
        <source>Stored for each color mode: %1.</source>
        <translation>每种色彩模式分别保存：%1。</translation>
    </message>
</context>
<context>
    <name>LuBuiltInBrightnessWidget</name>
    <message>
        <source>Built-in brightness</source>
        <translation>内置屏幕亮度</translation>
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
        <translation>红：%1</translation>
    </message>
    <message>
        <source>Green: %1</source>
        <translation>绿：%1</translation>
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
        <translation>由于 macOS 的缩放设置，HDR 暂时不可用。请尝试关闭 HiDPI 或降低分辨率。</translation>
    </message>
    <message>
        <source>This monitor has no HDR mode to switch to.</source>
        <translation>此显示器没有可切换的 HDR 模式。</translation>
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
        <translation>桌面的颜色配置文件现在跟随此显示器的色彩模式。</translation>
    </message>
</context>
<context>
    <name>PackageStrings</name>
    <message>
        <source>Coding - Light Theme</source>
        <translation>编程 - 浅色主题</translation>
    </message>
    <message>
        <source>Coding - Dark Theme</source>
        <translation>编程 - 深色主题</translation>
    </message>
    <message>
        <source>Coding - Paper Color</source>
        <translation>编程 - 纸张色</translation>
    </message>
    <message>
        <source>M-book</source>
        <translation>M-book</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>影院</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>游戏</translation>
    </message>
    <message>
        <source>ePaper</source>
        <translation>ePaper</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>Bluish</source>
        <translation>偏蓝</translation>
    </message>
    <message>
        <source>Reddish</source>
        <translation>偏红</translation>
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
        <translation>关于 %1</translation>
    </message>
    <message>
        <source>To meet individual preferences, %1 allows manual control of screen brightness. It learns and records your last adjustment, applying it to optimize its automatic brightness adjustment curve to better match your preferences.</source>
        <translation>为满足个人喜好，%1 允许手动调节屏幕亮度。它会学习并记录您的上一次调节，据此优化自动亮度曲线，使其更符合您的喜好。</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Brightness + Color Temperature</source>
        <translation>亮度 + 色温</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>光度计</translation>
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
        <translation>光度计</translation>
    </message>
</context>
<context>
    <name>SensitivitySlider</name>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>传感器灵敏度</translation>
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
        <translation>自动调光</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
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
        <translation>色温</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>灯光模式</translation>
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
        <translation>自动调光会根据环境光调节 BackGlow 的亮度，在弱光环境中保护您的眼睛。仅在启用 A.B. Gen2 时可用。</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>色彩模式绑定</translation>
    </message>
    <message>
        <source>The system will automatically switch to the bundled BackGlow settings when you change the color mode.</source>
        <translation>切换色彩模式时，系统会自动切换到绑定的 BackGlow 设置。</translation>
    </message>
    <message>
        <source>Non-stop Mode</source>
        <translation>不间断模式</translation>
    </message>
    <message>
        <source>To activate BackGlow while the monitor is in sleep mode, you can enable the non-stop mode.</source>
        <translation>若要在显示器睡眠时启用 BackGlow，可开启不间断模式。</translation>
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
        <translation>5 分钟</translation>
    </message>
    <message>
        <source>10 min.</source>
        <translation>10 分钟</translation>
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
        <translation>远</translation>
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
        <translation>闲置一段时间后调暗显示器。</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Display + BackGlow</source>
        <translation>屏幕 + BackGlow</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>屏幕</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>传感器灵敏度</translation>
    </message>
    <message>
        <source>EcoPrivacy helps protect your screen privacy and dims your monitor after inactivity through your built-in monitor sensor.</source>
        <translation>EcoPrivacy 通过内置传感器在您离开后调暗显示器，帮助保护屏幕隐私。</translation>
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
        <translation>传感器灵敏度</translation>
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
        <translation>光度计</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>传感器灵敏度</translation>
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
        <translation>色温</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>灯光模式</translation>
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
        <translation>%1后调暗显示器</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>传感器灵敏度</translation>
    </message>
</context>
<context>
    <name>LuShortcutsWidget</name>
    <message>
        <source>Shortcuts</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>The key combination can not be used.</source>
        <translation>无法使用此组合键。</translation>
    </message>
    <message>
        <source>This shortcut cannot be used as it is currently being used by another function.</source>
        <translation>此快捷键正被其他功能使用，因此无法使用。</translation>
    </message>
    <message>
        <source>Reset All Shortcuts</source>
        <translation>重置所有快捷键</translation>
    </message>
    <message>
        <source>To reset your keyboard shortcuts, click on the 'Reset' button below. Once confirmed, the app will immediately restore the default settings.</source>
        <translation>要重置快捷键，请点击下面的“重置”按钮。确认后，应用会立即恢复默认设置。</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
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
        <translation>输入</translation>
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
        <translation>夜间保护</translation>
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
        <translation>额外复制/粘贴</translation>
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
        <translation>开启/关闭</translation>
    </message>
    <message>
        <source>Loop all KVM switch</source>
        <translation>循环切换 KVM</translation>
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
        <source>This function supports image, text, file, and URL formats. Copying other types of content may impact the content of the clipboard.</source>
        <translation>此功能支持图像、文本、文件和网址。复制其他类型的内容可能会影响剪贴板的内容。</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <translation>切换到 %1</translation>
    </message>
    <message>
        <source>Loop all color mode</source>
        <translation>循环切换色彩模式</translation>
    </message>
    <message>
        <source>Loop all Audio Mode</source>
        <translation>循环切换音频模式</translation>
    </message>
    <message>
        <source>Loop all speaker output</source>
        <translation>循环切换扬声器输出</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>静音</translation>
    </message>
</context>
<context>
    <name>LuVolumeWidget</name>
    <message>
        <source>Audio</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>Volume can be adjusted in main page at anytime. You can also expand the menu to choose the audio source.</source>
        <translation>可随时在主页面调整音量，也可以展开菜单选择音频源。</translation>
    </message>
    <message>
        <source>iKeyboard Control</source>
        <translation>iKeyboard 控制</translation>
    </message>
    <message>
        <source>Enable iKeyboard Control to use the F11/F12 volume keys on Mac keyboard to adjust the volume of the selected audio output.</source>
        <translation>启用 iKeyboard 控制后，可使用 Mac 键盘的 F11/F12 音量键调整所选音频输出的音量。</translation>
    </message>
</context>
<context>
    <name>AudioModeChoice</name>
    <message>
        <source>Audio Mode</source>
        <translation>音频模式</translation>
    </message>
</context>
<context>
    <name>Equaliser</name>
    <message>
        <source>Equalizer Setting</source>
        <translation>均衡器设置</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>重置</translation>
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
        <translation>输出</translation>
    </message>
    <message>
        <source>Sound Settings</source>
        <translation>声音设置</translation>
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
        <translation>系统音量</translation>
    </message>
    <message>
        <source>Audio Mode</source>
        <translation>音频模式</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>The volume of this monitor can be set while the system plays through it.</source>
        <translation>当系统通过此显示器播放时，可以设置其音量。</translation>
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
        <translation>音频</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Audio Mode :</source>
        <translation>音频模式：</translation>
    </message>
</context>
<context>
    <name>Walkthrough</name>
    <message>
        <source>BackGlow Auto-dimming</source>
        <translation>BackGlow：自动调光</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>夜间保护</translation>
    </message>
    <message>
        <source>The light behind your monitor dims with the room, so that your eyes stay at ease.</source>
        <translation>显示器背后的灯光会随室内亮度变暗，让您的眼睛保持舒适。</translation>
    </message>
    <message>
        <source>After dark the picture turns darker than the lowest brightness, without losing its details.</source>
        <translation>天黑后，画面会比最低亮度更暗，但不会丢失细节。</translation>
    </message>
</context>
</TS>
