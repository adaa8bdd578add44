<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Lokaal contrast</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>AI-contrast</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Automatisch draaien</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Schermrotatie</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Draaien</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Schermrotatie</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Weinig blauw licht Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Weinig blauw licht</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>Buiten bereik</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>Stel zonsopgang in tussen 00:00 en 11:59 en zonsondergang tussen 12:00 en 23:59.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Circadiaanse modus</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Zonsop- tot -ondergang</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handmatig</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Zonsopgang</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Zonsondergang</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>Het filter volgt de zon waar u bent. Niveau %1 tot %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>Door een instabiele internetverbinding of een ander probleem zijn de zonnetijden niet ontvangen. Schakel over naar de handmatige modus.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Weergegevens van</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Niveau door de dag</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Weinig blauw licht Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Weinig blauw licht</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Circadiaanse modus</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handmatig</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Zonsop- tot -ondergang</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nachtbescherming</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>Automatisch schakelen zet de nachtbescherming aan en uit op basis van het omgevingslicht, zodat uw ogen altijd ontzien worden.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nachtbescherming</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Aan</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Uit</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nachtbescherming</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
</context>
</TS>
