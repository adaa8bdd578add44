<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Локальный контраст</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>ИИ-контраст</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Автоповорот</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Поворот экрана</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Поворот</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Поворот экрана</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Снижение синего света Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Снижение синего света</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Уровень</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>Вне диапазона</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>Задайте восход между 00:00 и 11:59, а закат между 12:00 и 23:59.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Циркадный режим</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>От восхода до заката</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Вручную</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Восход</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Закат</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>Фильтр следует за солнцем в вашей местности. Уровень %1 до %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>Из-за нестабильного подключения или других проблем не удалось получить время восхода и заката. Перейдите в ручной режим.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Данные о погоде</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Уровень в течение дня</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Снижение синего света Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Снижение синего света</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Уровень</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Циркадный режим</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Режим</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Вручную</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>От восхода до заката</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Ночная защита</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>Автоматический режим включает и выключает ночную защиту по освещённости и постоянно бережёт глаза.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Уровень</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Ночная защита</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Автоматически</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Выкл.</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Ночная защита</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Уровень</translation>
    </message>
</context>
</TS>
