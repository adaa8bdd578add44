<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Lokaler Kontrast</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>KI-Kontrast</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Automatische Drehung</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Bildschirmdrehung</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Bildschirmdrehung</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Blaulichtfilter Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Blaulichtfilter</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>Außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>Stellen Sie den Sonnenaufgang zwischen 00:00 und 11:59 und den Sonnenuntergang zwischen 12:00 und 23:59 ein.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Zirkadianer Modus</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Auf- bis Untergang</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Sonnenaufgang</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Sonnenuntergang</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>Der Filter folgt der Sonne an Ihrem Ort. Stufe %1 bis %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>Wegen einer instabilen Internetverbindung oder anderer Probleme konnten die Sonnenzeiten nicht empfangen werden. Bitte wechseln Sie in den manuellen Modus.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Wetterdaten von</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Stufe im Tagesverlauf</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Blaulichtfilter Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Blaulichtfilter</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Zirkadianer Modus</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Auf- bis Untergang</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nachtschutz</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>Die Automatik schaltet den Nachtschutz nach dem Umgebungslicht ein und aus und schont so die Augen ohne Ihr Zutun.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nachtschutz</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nachtschutz</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
</context>
</TS>
