<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Contraste local</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>Contraste con IA</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Giro automático</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Giro de la pantalla</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Giro</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Giro de la pantalla</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Luz azul reducida Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Luz azul reducida</translation>
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
        <translation>Fuera de rango</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>Ajuste el amanecer entre las 00:00 y las 11:59 y el atardecer entre las 12:00 y las 23:59.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Modo circadiano</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Del alba al ocaso</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Amanecer</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Atardecer</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>El filtro sigue al sol de su lugar. Nivel %1 hasta las %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>Por una conexión inestable u otros problemas no se han podido recibir las horas del sol. Cambie al modo manual.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Datos meteorológicos de</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Nivel a lo largo del día</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Luz azul reducida Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Luz azul reducida</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
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
        <translation>Del alba al ocaso</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protección nocturna</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>El modo automático activa o desactiva la protección nocturna según la luz ambiental y cuida la vista sin esfuerzo.</translation>
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
        <translation>Protección nocturna</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protección nocturna</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
</context>
</TS>
