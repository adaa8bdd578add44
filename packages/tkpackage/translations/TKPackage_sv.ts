<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Lokal kontrast</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>AI-kontrast</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Automatisk rotering</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Skärmrotering</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Rotering</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Skärmrotering</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Mindre blått ljus Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Mindre blått ljus</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivå</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>Utanför intervallet</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>Ställ in soluppgången mellan 00:00 och 11:59 och solnedgången mellan 12:00 och 23:59.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Dygnsrytmläge</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Soluppgång–nedgång</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuellt</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Soluppgång</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Solnedgång</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Tillämpa</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>Filtret följer solen där du är. Nivå %1 till %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>På grund av en instabil anslutning eller andra problem kunde soltiderna inte hämtas. Byt till manuellt läge.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Väderdata från</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Nivå över dagen</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Mindre blått ljus Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Mindre blått ljus</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivå</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Dygnsrytmläge</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Läge</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuellt</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Soluppgång–nedgång</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nattskydd</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>Automatiken slår på och av nattskyddet efter ljuset i rummet och skonar ögonen utan besvär.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivå</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nattskydd</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automatiskt</translation>
    </message>
    <message>
        <source>On</source>
        <translation>På</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Av</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nattskydd</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivå</translation>
    </message>
</context>
</TS>
