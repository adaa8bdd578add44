<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="hr" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Lokalni kontrast</translation>
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
        <translation>Automatsko zakretanje</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Zakretanje zaslona</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Zakretanje</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Zakretanje zaslona</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Smanjeno plavo svjetlo Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Smanjeno plavo svjetlo</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Razina</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>Izvan raspona</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>Postavite izlazak sunca između 00:00 i 11:59, a zalazak između 12:00 i 23:59.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Cirkadijalni način</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Od zore do sumraka</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Ručno</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Izlazak sunca</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Zalazak sunca</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Primijeni</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>Filtar prati sunce na vašem mjestu. Razina %1 do %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>Zbog nestabilne internetske veze ili drugih poteškoća vremena sunca nisu primljena. Prijeđite na ručni način.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Vremenske podatke pruža</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Razina tijekom dana</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Smanjeno plavo svjetlo Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Smanjeno plavo svjetlo</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Razina</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Cirkadijalni način</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Način</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Ručno</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Od zore do sumraka</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Noćna zaštita</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>Automatsko prebacivanje uključuje i isključuje noćnu zaštitu prema svjetlu u prostoriji i tako bez truda čuva oči.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Razina</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Noćna zaštita</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automatski</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Uključeno</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Isključeno</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Noćna zaštita</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Razina</translation>
    </message>
</context>
</TS>
