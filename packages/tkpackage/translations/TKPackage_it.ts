<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Contrasto locale</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>Contrasto IA</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Rotazione automatica</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Rotazione dello schermo</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Rotazione</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Rotazione dello schermo</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Luce blu ridotta Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Luce blu ridotta</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Livello</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>Fuori intervallo</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>Imposta l'alba tra le 00:00 e le 11:59 e il tramonto tra le 12:00 e le 23:59.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Modalità circadiana</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Dall'alba al tramonto</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuale</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Alba</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Tramonto</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>Il filtro segue il sole del luogo. Livello %1 fino alle %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>A causa di una connessione instabile o di altri problemi non è stato possibile ricevere gli orari del sole. Passa alla modalità manuale.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Dati meteo forniti da</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Livello durante il giorno</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Luce blu ridotta Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Luce blu ridotta</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Livello</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Modalità circadiana</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modalità</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuale</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Dall'alba al tramonto</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protezione notturna</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>La modalità automatica attiva o disattiva la protezione notturna in base alla luce ambientale, per un comfort visivo costante.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Livello</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protezione notturna</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automatico</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Attivo</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Disattivo</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protezione notturna</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Livello</translation>
    </message>
</context>
</TS>
