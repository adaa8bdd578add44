<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
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
</TS>
