<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Contraste local</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>Contraste IA</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Pivotement automatique</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Pivotement de l’écran</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Pivotement</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Pivotement de l’écran</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Lumière bleue réduite Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Lumière bleue réduite</translation>
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
        <translation>Hors limites</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>Réglez le lever du soleil entre 00:00 et 11:59 et le coucher entre 12:00 et 23:59.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Mode circadien</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Lever au coucher</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Lever du soleil</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Coucher du soleil</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>Le filtre suit le soleil de votre lieu. Niveau %1 jusqu'à %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>En raison d'une connexion instable ou d'un autre problème, les heures du soleil n'ont pas pu être reçues. Passez en mode manuel.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Données météo fournies par</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Niveau au fil de la journée</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Lumière bleue réduite Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Lumière bleue réduite</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Mode circadien</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Lever au coucher</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protection nocturne</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>Le mode automatique active ou désactive la protection nocturne selon la lumière ambiante, pour un confort des yeux sans effort.</translation>
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
        <translation>Protection nocturne</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protection nocturne</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
</context>
</TS>
