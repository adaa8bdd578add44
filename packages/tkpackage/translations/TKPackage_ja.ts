<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>ローカルコントラスト</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>AIコントラスト</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>自動ピボット</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>画面のピボット</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>ピボット</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>画面のピボット</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>ブルーライト軽減 Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>ブルーライト軽減</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>レベル</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>範囲外</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>日の出は00:00～11:59、日没は12:00～23:59の範囲で設定してください。</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>サーカディアンモード</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>日の出から日没</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手動</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>日の出</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>日没</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>フィルターは現在地の太陽に従います。%2までレベル%1。</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>インターネット接続が不安定などの理由で、日の出・日没の時刻を取得できませんでした。手動モードに切り替えてください。</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>気象データ提供</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>1日のレベル</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>ブルーライト軽減 Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>ブルーライト軽減</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>レベル</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>サーカディアンモード</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手動</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>日の出から日没</translation>
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
        <translation>自動切替は周囲の明るさに応じて夜間保護をオン・オフし、手間なく目をいたわります。</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>レベル</translation>
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
        <translation>自動切替</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
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
        <translation>レベル</translation>
    </message>
</context>
</TS>
