<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Contraste local</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>Contraste por IA</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Rotação automática</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Rotação do ecrã</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Rotação</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Rotação do ecrã</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Luz azul reduzida Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Luz azul reduzida</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nível</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>Fora do intervalo</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>Defina o nascer do sol entre 00:00 e 11:59 e o pôr do sol entre 12:00 e 23:59.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Modo circadiano</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Do nascer ao pôr do sol</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Nascer do sol</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Pôr do sol</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>O filtro segue o sol do seu local. Nível %1 até %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>Devido a uma ligação instável ou a outros problemas, não foi possível obter as horas do sol. Mude para o modo manual.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Dados meteorológicos de</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Nível ao longo do dia</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Luz azul reduzida Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Luz azul reduzida</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nível</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Modo circadiano</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Do nascer ao pôr do sol</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Proteção noturna</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>O modo automático ativa ou desativa a proteção noturna conforme a luz ambiente, cuidando dos olhos sem esforço.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nível</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Proteção noturna</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desligado</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Proteção noturna</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nível</translation>
    </message>
</context>
</TS>
