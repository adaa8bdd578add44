<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Kontrast lokalny</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>Kontrast AI</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Automatyczny obrót</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Obrót ekranu</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Obrót</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Obrót ekranu</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Redukcja niebieskiego światła Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Redukcja niebieskiego światła</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Poziom</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>Poza zakresem</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>Ustaw wschód słońca między 00:00 a 11:59, a zachód między 12:00 a 23:59.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Tryb dobowy</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Od wschodu do zachodu</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Ręcznie</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Wschód słońca</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Zachód słońca</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>Filtr podąża za słońcem w Twojej okolicy. Poziom %1 do %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>Z powodu niestabilnego połączenia lub innych problemów nie udało się pobrać godzin wschodu i zachodu słońca. Przełącz na tryb ręczny.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Dane pogodowe dostarcza</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Poziom w ciągu dnia</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Redukcja niebieskiego światła Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Redukcja niebieskiego światła</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Poziom</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Tryb dobowy</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Tryb</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Ręcznie</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Od wschodu do zachodu</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Ochrona nocna</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>Tryb automatyczny włącza i wyłącza ochronę nocną zależnie od światła otoczenia, stale dbając o wzrok.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Poziom</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Ochrona nocna</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automatycznie</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Wł.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Wył.</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Ochrona nocna</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Poziom</translation>
    </message>
</context>
</TS>
