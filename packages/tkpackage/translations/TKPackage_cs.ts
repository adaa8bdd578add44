<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Lokální kontrast</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>AI kontrast</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Automatické otáčení</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Otočení obrazovky</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Otočení</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Otočení obrazovky</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Redukce modrého světla Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Redukce modrého světla</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Úroveň</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>Mimo rozsah</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>Nastavte východ slunce mezi 00:00 a 11:59 a západ slunce mezi 12:00 a 23:59.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Cirkadiánní režim</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Od východu do západu</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Ručně</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Východ slunce</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Západ slunce</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použít</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>Filtr se řídí sluncem ve vašem místě. Úroveň %1 do %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>Kvůli nestabilnímu připojení k internetu nebo jiným potížím se nepodařilo získat časy východu a západu slunce. Přepněte na ruční režim.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Údaje o počasí poskytuje</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Úroveň během dne</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Redukce modrého světla Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Redukce modrého světla</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Úroveň</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Cirkadiánní režim</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Režim</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Ručně</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Od východu do západu</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Ochrana v noci</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>Automatické přepínání zapíná a vypíná ochranu v noci podle okolního světla, takže o oči je trvale a bez námahy postaráno.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Úroveň</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Ochrana v noci</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automaticky</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Zapnuto</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Vypnuto</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Ochrana v noci</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Úroveň</translation>
    </message>
</context>
</TS>
