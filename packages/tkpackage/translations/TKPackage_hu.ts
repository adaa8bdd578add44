<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="hu" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Helyi kontraszt</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>MI-kontraszt</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Automatikus elforgatás</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Képernyő elforgatása</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Elforgatás</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Képernyő elforgatása</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Kékfényszűrő Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Kékfényszűrő</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Szint</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>Tartományon kívül</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>A napkeltét 00:00 és 11:59, a napnyugtát 12:00 és 23:59 közé állítsa.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Cirkadián mód</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Napkeltétől napnyugtáig</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Kézi</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Napkelte</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Napnyugta</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Alkalmaz</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>A szűrő az Ön helyének napjárását követi. %1. szint eddig: %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>Instabil internetkapcsolat vagy más hiba miatt a napkelte és napnyugta ideje nem érkezett meg. Váltson kézi módra.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Időjárási adatok:</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Szint a nap folyamán</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Kékfényszűrő Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Kékfényszűrő</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Szint</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Cirkadián mód</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mód</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Kézi</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Napkeltétől napnyugtáig</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Éjszakai védelem</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>Az automatikus váltás a környezeti fény szerint be- és kikapcsolja az éjszakai védelmet, így a szem kímélése folyamatos.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Szint</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Éjszakai védelem</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automatikus</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Be</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Ki</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Éjszakai védelem</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Szint</translation>
    </message>
</context>
</TS>
