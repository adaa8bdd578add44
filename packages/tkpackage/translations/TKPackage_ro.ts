<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ro" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Contrast local</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>Contrast AI</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Pivotare automată</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Pivotarea ecranului</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Pivotare</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Pivotarea ecranului</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Lumină albastră redusă Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Lumină albastră redusă</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>În afara intervalului</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>Setați răsăritul între 00:00 și 11:59 și apusul între 12:00 și 23:59.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Mod circadian</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Răsărit – apus</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Răsărit</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Apus</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplică</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>Filtrul urmează soarele din locul dvs. Nivel %1 până la %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>Din cauza unei conexiuni instabile sau a altor probleme, orele soarelui nu au putut fi primite. Treceți la modul manual.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Date meteo furnizate de</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Nivelul pe parcursul zilei</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Lumină albastră redusă Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Lumină albastră redusă</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Mod circadian</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mod</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Răsărit – apus</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protecție nocturnă</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>Comutarea automată pornește sau oprește protecția nocturnă în funcție de lumina ambiantă și vă menajează constant ochii.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protecție nocturnă</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automat</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Pornit</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Oprit</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protecție nocturnă</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
</context>
</TS>
