<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
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
</TS>
