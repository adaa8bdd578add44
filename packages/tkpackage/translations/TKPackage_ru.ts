<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>FourWindows</name>
    <message>
        <source>Upper left</source>
        <translation>Слева вверху</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Справа вверху</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Слева внизу</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Справа внизу</translation>
    </message>
</context>
<context>
    <name>KvmPage</name>
    <message>
        <source>Current Device Location</source>
        <translation>Расположение этого устройства</translation>
    </message>
    <message>
        <source>Connected to the other computer</source>
        <translation>Подключён к другому компьютеру</translation>
    </message>
    <message>
        <source>Connect the other computer</source>
        <translation>Подключить другой компьютер</translation>
    </message>
</context>
<context>
    <name>KvmPorts</name>
    <message>
        <source>Auto Switch</source>
        <translation>Автоматически</translation>
    </message>
    <message>
        <source>USB-C Upstream</source>
        <translation>Вход USB-C</translation>
    </message>
    <message>
        <source>USB-B Upstream</source>
        <translation>Вход USB-B</translation>
    </message>
    <message>
        <source>TBT Upstream</source>
        <translation>Вход TBT</translation>
    </message>
</context>
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
    <name>LuDaisyChainWidget</name>
    <message>
        <source>Daisy Chain (MST)</source>
        <translation>Daisy Chain (MST)</translation>
    </message>
    <message>
        <source>One cable to easily connect all your monitors.</source>
        <translation>Один кабель легко соединит все ваши мониторы.</translation>
    </message>
    <message>
        <source>About Daisy Chain (MST)</source>
        <translation>О функции Daisy Chain (MST)</translation>
    </message>
</context>
<context>
    <name>LuDualViewPlusWidget</name>
    <message>
        <source>DualView Plus</source>
        <translation>DualView Plus</translation>
    </message>
    <message>
        <source>Main: </source>
        <translation>Основной: </translation>
    </message>
    <message>
        <source>Left: </source>
        <translation>Слева: </translation>
    </message>
    <message>
        <source>Sub: </source>
        <translation>Второй: </translation>
    </message>
    <message>
        <source>Right: </source>
        <translation>Справа: </translation>
    </message>
</context>
<context>
    <name>LuDualViewWidget</name>
    <message>
        <source>DualView</source>
        <translation>DualView</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Слева:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Справа:</translation>
    </message>
</context>
<context>
    <name>LuInputSourceWidget</name>
    <message>
        <source>Input source</source>
        <translation>Источник сигнала</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Вход</translation>
    </message>
    <message>
        <source>Built-in</source>
        <translation>Встроенный</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Неизвестно</translation>
    </message>
</context>
<context>
    <name>LuPIPPBPWidget</name>
    <message>
        <source>Smart KVM</source>
        <translation>Smart KVM</translation>
    </message>
    <message>
        <source>Smart KVM Basic</source>
        <translation>Smart KVM Basic</translation>
    </message>
    <message>
        <source>PIP / PBP</source>
        <translation>PIP / PBP</translation>
    </message>
    <message>
        <source>PIP</source>
        <translation>PIP</translation>
    </message>
    <message>
        <source>PBP</source>
        <translation>PBP</translation>
    </message>
    <message>
        <source>Do you want to turn off PBP Mode and %1?</source>
        <translation>Выключить режим PBP и %1?</translation>
    </message>
    <message>
        <source>%1 only works in PBP mode. If you choose to turn off PBP mode, %1 will be disabled as well.</source>
        <translation>%1 работает только в режиме PBP. При выключении режима PBP выключится и %1.</translation>
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
    <message>
        <source>Set your location</source>
        <translation>Указать местоположение</translation>
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
    <name>LuSmartKvmBasicWidget</name>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Smart KVM Basic is enabled</source>
        <translation>Smart KVM Basic включён</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Перейти в режим PBP?</translation>
    </message>
    <message>
        <source>Smart KVM Basic works only in PBP Mode. Turning off PBP Mode will also disable Smart KVM Basic.</source>
        <translation>Smart KVM Basic работает только в режиме PBP. При выключении режима PBP выключится и Smart KVM Basic.</translation>
    </message>
    <message>
        <source>Smart KVM Basic</source>
        <translation>Smart KVM Basic</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Слева</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Справа</translation>
    </message>
    <message>
        <source>Orvane Smart KVM Basic makes multitasking effortless - use one keyboard and mouse to control two computers. With automatic switching when your cursor crosses the screen edge, you can work seamlessly across systems. Just install Lumen Desk 2 on both devices and enable PBP Mode to get started.</source>
        <translation>Orvane Smart KVM Basic упрощает работу: одна клавиатура и одна мышь управляют двумя компьютерами. Переключение происходит автоматически, когда указатель пересекает край экрана. Установите Lumen Desk 2 на оба устройства и включите режим PBP.</translation>
    </message>
</context>
<context>
    <name>LuSmartKvmWidget</name>
    <message>
        <source>Driver installation is required</source>
        <translation>Требуется установка драйвера</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Подключено</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Smart KVM Enabled</source>
        <translation>Smart KVM включён</translation>
    </message>
    <message>
        <source>Driver installation is required.</source>
        <translation>Требуется установка драйвера.</translation>
    </message>
    <message>
        <source>Smart KVM requires your permission to install its driver. Would you like to install it now?</source>
        <translation>Для установки драйвера Smart KVM нужно ваше разрешение. Установить сейчас?</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Перейти в режим PBP?</translation>
    </message>
    <message>
        <source>Smart KVM only works in PBP mode. If you'd like to continue using Smart KVM, we can switch to PBP mode for you.</source>
        <translation>Smart KVM работает только в режиме PBP. Чтобы продолжить, мы можем перейти в режим PBP за вас.</translation>
    </message>
    <message>
        <source>Smart KVM</source>
        <translation>Smart KVM</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Слева</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Справа</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Сверху</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Снизу</translation>
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
<context>
    <name>PictureGoneNote</name>
    <message>
        <source>This computer's picture goes away with its input. %1 brings it back.</source>
        <translation>Изображение этого компьютера исчезает вместе с его входом. Вернуть его: %1.</translation>
    </message>
    <message>
        <source>This computer's picture goes away with its input. Choose %1 in the monitor's menu to bring it back.</source>
        <translation>Изображение этого компьютера исчезает вместе с его входом. Чтобы вернуть его, выберите %1 в меню монитора.</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Назад к %1</translation>
    </message>
    <message>
        <source>Turn on shortcuts</source>
        <translation>Включить сочетания клавиш</translation>
    </message>
</context>
<context>
    <name>PipOptions</name>
    <message>
        <source>Sub size</source>
        <translation>Размер окна</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Малый</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Средний</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Большой</translation>
    </message>
    <message>
        <source>Sub position</source>
        <translation>Положение окна</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Справа вверху</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>Слева вверху</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Справа внизу</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Слева внизу</translation>
    </message>
</context>
<context>
    <name>PipPbpPage</name>
    <message>
        <source>Picture in picture</source>
        <translation>Картинка в картинке</translation>
    </message>
    <message>
        <source>Half and half</source>
        <translation>Пополам</translation>
    </message>
    <message>
        <source>Four windows</source>
        <translation>Четыре окна</translation>
    </message>
    <message>
        <source>16 : 9 and 9 : 5</source>
        <translation>16 : 9 и 9 : 5</translation>
    </message>
    <message>
        <source>Two to one</source>
        <translation>Два к одному</translation>
    </message>
    <message>
        <source>Three to one</source>
        <translation>Три к одному</translation>
    </message>
    <message>
        <source>Audio Source</source>
        <translation>Источник звука</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Слева</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Справа</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Поменять местами</translation>
    </message>
</context>
<context>
    <name>TwoWindows</name>
    <message>
        <source>Main:</source>
        <translation>Основной:</translation>
    </message>
    <message>
        <source>Sub:</source>
        <translation>Второй:</translation>
    </message>
    <message>
        <source>16 : 9</source>
        <translation>16 : 9</translation>
    </message>
    <message>
        <source>9 : 5</source>
        <translation>9 : 5</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Слева:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Справа:</translation>
    </message>
</context>
<context>
    <name>LuBrightnessWidget</name>
    <message>
        <source>Brightness</source>
        <translation>Яркость</translation>
    </message>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Цветовой режим / Яркость</translation>
    </message>
</context>
<context>
    <name>BrightnessPage</name>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Цветовой режим / Яркость</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Цветовой режим</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Яркость</translation>
    </message>
    <message>
        <source>Software Dimming</source>
        <translation>Программное затемнение</translation>
    </message>
    <message>
        <source>Darkens the picture below the lowest brightness of the monitor. Ambient brightness functions switch it off for as long as they run.</source>
        <translation>Затемняет изображение ниже минимальной яркости монитора. Функции внешнего освещения отключают его на время своей работы.</translation>
    </message>
    <message>
        <source>Brightness Sync</source>
        <translation>Синхронизация яркости</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Контраст</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Резкость</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Оттенок</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Насыщенность</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Гамма</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Цветовой охват</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Равномерность</translation>
    </message>
    <message>
        <source>Reset Color</source>
        <translation>Сбросить цвета</translation>
    </message>
</context>
<context>
    <name>BrightnessSliders</name>
    <message>
        <source>Software Dimming</source>
        <translation>Программное затемнение</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Яркость</translation>
    </message>
</context>
<context>
    <name>ColorModeChoice</name>
    <message>
        <source>Color Mode</source>
        <translation>Цветовой режим</translation>
    </message>
</context>
<context>
    <name>ColorTemperatureControls</name>
    <message>
        <source>Color Temperature</source>
        <translation>Цветовая температура</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Красный</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Зелёный</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Синий</translation>
    </message>
</context>
<context>
    <name>AxisControls</name>
    <message>
        <source>Red</source>
        <translation>Красный</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Жёлтый</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Зелёный</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Голубой</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Синий</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Пурпурный</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>ModeBundleHint</name>
    <message>
        <source>Brightness</source>
        <translation>Яркость</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Контраст</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Резкость</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Цветовая температура</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Оттенок</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Насыщенность</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Гамма</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Цветовой охват</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Равномерность</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Снижение синего света</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Ночная защита</translation>
    </message>
    <message>
        <source>Ambient brightness</source>
        <translation>Внешнее освещение</translation>
    </message>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Связано с цветовым режимом</translation>
    </message>
    <message>
        <source>Stored for each color mode: %1.</source>
        <translation>Сохраняется для каждого цветового режима: %1.</translation>
    </message>
</context>
<context>
    <name>LuBuiltInBrightnessWidget</name>
    <message>
        <source>Built-in brightness</source>
        <translation>Яркость встроенного экрана</translation>
    </message>
</context>
<context>
    <name>LuColorWeaknessWidget</name>
    <message>
        <source>Color Weakness</source>
        <translation>Цветовая слабость</translation>
    </message>
    <message>
        <source>Red: %1</source>
        <translation>Красный: %1</translation>
    </message>
    <message>
        <source>Green: %1</source>
        <translation>Зелёный: %1</translation>
    </message>
</context>
<context>
    <name>LuHDRWidget</name>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>Due to macOS scaling settings, HDR is temporarily unavailable. Please try turning off HiDPI or lowering the resolution.</source>
        <translation>Из-за масштабирования macOS режим HDR временно недоступен. Отключите HiDPI или уменьшите разрешение.</translation>
    </message>
    <message>
        <source>This monitor has no HDR mode to switch to.</source>
        <translation>У этого монитора нет режима HDR.</translation>
    </message>
</context>
<context>
    <name>LuPopupColorModeAction</name>
    <message>
        <source>Color Mode</source>
        <translation>Цветовой режим</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Яркость</translation>
    </message>
</context>
<context>
    <name>LuPopupBrightnessShortcut</name>
    <message>
        <source>Brightness</source>
        <translation>Яркость</translation>
    </message>
</context>
<context>
    <name>LuPopupIccSyncHint</name>
    <message>
        <source>Color Sync</source>
        <translation>Синхронизация цвета</translation>
    </message>
    <message>
        <source>The color profile of the desktop now follows the color mode of this monitor.</source>
        <translation>Цветовой профиль рабочего стола теперь следует цветовому режиму этого монитора.</translation>
    </message>
</context>
<context>
    <name>PackageStrings</name>
    <message>
        <source>Coding - Light Theme</source>
        <translation>Код — светлая тема</translation>
    </message>
    <message>
        <source>Coding - Dark Theme</source>
        <translation>Код — тёмная тема</translation>
    </message>
    <message>
        <source>Coding - Paper Color</source>
        <translation>Код — цвет бумаги</translation>
    </message>
    <message>
        <source>M-book</source>
        <translation>M-book</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Кино</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Игра</translation>
    </message>
    <message>
        <source>ePaper</source>
        <translation>ePaper</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Пользователь</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Нормальная</translation>
    </message>
    <message>
        <source>Bluish</source>
        <translation>Синеватая</translation>
    </message>
    <message>
        <source>Reddish</source>
        <translation>Красноватая</translation>
    </message>
</context>
<context>
    <name>LuABPlusWidget</name>
    <message>
        <source>Visual Optimizer</source>
        <translation>Visual Optimizer</translation>
    </message>
    <message>
        <source>A.B.+ Gen2</source>
        <translation>A.B.+ Gen2</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>О функции %1</translation>
    </message>
    <message>
        <source>To meet individual preferences, %1 allows manual control of screen brightness. It learns and records your last adjustment, applying it to optimize its automatic brightness adjustment curve to better match your preferences.</source>
        <translation>%1 позволяет настраивать яркость вручную. Последняя настройка запоминается и помогает лучше подстроить кривую автоматической яркости под ваши предпочтения.</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Параметр</translation>
    </message>
    <message>
        <source>Brightness + Color Temperature</source>
        <translation>Яркость + цветовая температура</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Яркость</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>Измеритель света</translation>
    </message>
</context>
<context>
    <name>LuABSettingWidget</name>
    <message>
        <source>A.B. Gen2</source>
        <translation>A.B. Gen2</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>Измеритель света</translation>
    </message>
</context>
<context>
    <name>SensitivitySlider</name>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Чувствительность датчика</translation>
    </message>
</context>
<context>
    <name>BackLightStateChoice</name>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Auto Dimming</source>
        <translation>Автояркость</translation>
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
    <name>BackLightControls</name>
    <message>
        <source>Brightness</source>
        <translation>Яркость</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Цветовая температура</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Режим света</translation>
    </message>
</context>
<context>
    <name>LuBackLightWidget</name>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Auto Dimming automatically adjusts BackGlow's brightness based on ambient light detection, safeguarding your eyes in low-light environments. Auto Dimming can only be used when A.B. Gen2 is enabled.</source>
        <translation>Автояркость подстраивает BackGlow под освещённость и бережёт глаза при слабом свете. Доступна, только когда включена функция A.B. Gen2.</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Привязка к цветовому режиму</translation>
    </message>
    <message>
        <source>The system will automatically switch to the bundled BackGlow settings when you change the color mode.</source>
        <translation>При смене цветового режима применяются связанные с ним настройки BackGlow.</translation>
    </message>
    <message>
        <source>Non-stop Mode</source>
        <translation>Непрерывный режим</translation>
    </message>
    <message>
        <source>To activate BackGlow while the monitor is in sleep mode, you can enable the non-stop mode.</source>
        <translation>Чтобы BackGlow светил и в спящем режиме монитора, включите непрерывный режим.</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Ещё</translation>
    </message>
</context>
<context>
    <name>EcoPrivacyTexts</name>
    <message>
        <source>5 sec.</source>
        <translation>5 с</translation>
    </message>
    <message>
        <source>10 sec.</source>
        <translation>10 с</translation>
    </message>
    <message>
        <source>20 sec.</source>
        <translation>20 с</translation>
    </message>
    <message>
        <source>30 sec.</source>
        <translation>30 с</translation>
    </message>
    <message>
        <source>60 sec.</source>
        <translation>60 с</translation>
    </message>
    <message>
        <source>5 min.</source>
        <translation>5 мин</translation>
    </message>
    <message>
        <source>10 min.</source>
        <translation>10 мин</translation>
    </message>
    <message>
        <source>Near</source>
        <translation>Близко</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Средне</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>Далеко</translation>
    </message>
</context>
<context>
    <name>LuEcoPrivacyWidget</name>
    <message>
        <source>EcoPrivacy</source>
        <translation>EcoPrivacy</translation>
    </message>
    <message>
        <source>Dim your monitor after a period of inactivity.</source>
        <translation>Затемнять монитор при бездействии.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Режим</translation>
    </message>
    <message>
        <source>Display + BackGlow</source>
        <translation>Экран + BackGlow</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Экран</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Чувствительность датчика</translation>
    </message>
    <message>
        <source>EcoPrivacy helps protect your screen privacy and dims your monitor after inactivity through your built-in monitor sensor.</source>
        <translation>EcoPrivacy защищает конфиденциальность экрана и затемняет монитор в ваше отсутствие по встроенному датчику.</translation>
    </message>
</context>
<context>
    <name>LuPopupABPlusAction</name>
    <message>
        <source>Visual Optimizer</source>
        <translation>Visual Optimizer</translation>
    </message>
    <message>
        <source>A.B.+ Gen2</source>
        <translation>A.B.+ Gen2</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Чувствительность датчика</translation>
    </message>
</context>
<context>
    <name>LuPopupABAction</name>
    <message>
        <source>A.B. Gen2</source>
        <translation>A.B. Gen2</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>Измеритель света</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Чувствительность датчика</translation>
    </message>
</context>
<context>
    <name>LuPopupBackLightAction</name>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Яркость</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Цветовая температура</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Режим света</translation>
    </message>
</context>
<context>
    <name>LuPopupEcoPrivacyAction</name>
    <message>
        <source>EcoPrivacy</source>
        <translation>EcoPrivacy</translation>
    </message>
    <message>
        <source>Dim your monitor after %1</source>
        <translation>Затемнять монитор через %1</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Чувствительность датчика</translation>
    </message>
</context>
<context>
    <name>LuShortcutsWidget</name>
    <message>
        <source>Shortcuts</source>
        <translation>Сочетания клавиш</translation>
    </message>
    <message>
        <source>The key combination can not be used.</source>
        <translation>Это сочетание клавиш нельзя использовать.</translation>
    </message>
    <message>
        <source>This shortcut cannot be used as it is currently being used by another function.</source>
        <translation>Это сочетание нельзя использовать: оно уже занято другой функцией.</translation>
    </message>
    <message>
        <source>Reset All Shortcuts</source>
        <translation>Сбросить все сочетания</translation>
    </message>
    <message>
        <source>To reset your keyboard shortcuts, click on the 'Reset' button below. Once confirmed, the app will immediately restore the default settings.</source>
        <translation>Чтобы сбросить сочетания клавиш, нажмите ниже «Сбросить». После подтверждения программа сразу вернёт стандартные настройки.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>ShortcutRows</name>
    <message>
        <source>Input</source>
        <translation>Вход</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Цветовой режим</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Яркость</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Громкость</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Ночная защита</translation>
    </message>
    <message>
        <source>EcoPrivacy</source>
        <translation>EcoPrivacy</translation>
    </message>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Extra Copy/Paste</source>
        <translation>Доп. копирование и вставка</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>Уменьшить</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>Увеличить</translation>
    </message>
    <message>
        <source>TurnOn/Off</source>
        <translation>Вкл./выкл.</translation>
    </message>
    <message>
        <source>Loop all KVM switch</source>
        <translation>Переключать KVM по кругу</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>This function supports image, text, file, and URL formats. Copying other types of content may impact the content of the clipboard.</source>
        <translation>Поддерживаются изображения, текст, файлы и адреса. Копирование другого содержимого может повлиять на буфер обмена.</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <translation>Переключить на %1</translation>
    </message>
    <message>
        <source>Loop all color mode</source>
        <translation>Переключать режимы по кругу</translation>
    </message>
    <message>
        <source>Loop all Audio Mode</source>
        <translation>Переключать режимы звука по кругу</translation>
    </message>
    <message>
        <source>Loop all speaker output</source>
        <translation>Переключать динамики по кругу</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Без звука</translation>
    </message>
</context>
<context>
    <name>LuVolumeWidget</name>
    <message>
        <source>Audio</source>
        <translation>Звук</translation>
    </message>
    <message>
        <source>Volume can be adjusted in main page at anytime. You can also expand the menu to choose the audio source.</source>
        <translation>Громкость можно в любой момент изменить на главной странице. Развернув меню, можно выбрать и источник звука.</translation>
    </message>
    <message>
        <source>iKeyboard Control</source>
        <translation>Управление iKeyboard</translation>
    </message>
    <message>
        <source>Enable iKeyboard Control to use the F11/F12 volume keys on Mac keyboard to adjust the volume of the selected audio output.</source>
        <translation>Включите управление iKeyboard, чтобы клавиши громкости F11/F12 клавиатуры Mac меняли громкость выбранного вывода.</translation>
    </message>
</context>
<context>
    <name>AudioModeChoice</name>
    <message>
        <source>Audio Mode</source>
        <translation>Режим звука</translation>
    </message>
</context>
<context>
    <name>Equaliser</name>
    <message>
        <source>Equalizer Setting</source>
        <translation>Настройка эквалайзера</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>СБРОС</translation>
    </message>
    <message>
        <source>+6db</source>
        <translation>+6db</translation>
    </message>
    <message>
        <source>0db</source>
        <translation>0db</translation>
    </message>
    <message>
        <source>-6db</source>
        <translation>-6db</translation>
    </message>
</context>
<context>
    <name>OutputChoice</name>
    <message>
        <source>Output</source>
        <translation>Вывод</translation>
    </message>
    <message>
        <source>Sound Settings</source>
        <translation>Настройки звука</translation>
    </message>
</context>
<context>
    <name>VolumePage</name>
    <message>
        <source>Volume</source>
        <translation>Громкость</translation>
    </message>
    <message>
        <source>System's volume</source>
        <translation>Громкость системы</translation>
    </message>
    <message>
        <source>Audio Mode</source>
        <translation>Режим звука</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Вывод</translation>
    </message>
    <message>
        <source>The volume of this monitor can be set while the system plays through it.</source>
        <translation>Громкость этого монитора можно менять, пока система воспроизводит звук через него.</translation>
    </message>
</context>
<context>
    <name>LuPopupVolumeShortcut</name>
    <message>
        <source>Volume</source>
        <translation>Громкость</translation>
    </message>
</context>
<context>
    <name>LuPopupVolumeAction</name>
    <message>
        <source>Audio</source>
        <translation>Звук</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Громкость</translation>
    </message>
    <message>
        <source>Audio Mode :</source>
        <translation>Режим звука:</translation>
    </message>
</context>
<context>
    <name>Walkthrough</name>
    <message>
        <source>BackGlow Auto-dimming</source>
        <translation>BackGlow: автояркость</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Ночная защита</translation>
    </message>
    <message>
        <source>The light behind your monitor dims with the room, so that your eyes stay at ease.</source>
        <translation>Свет позади монитора приглушается вместе с освещением комнаты, чтобы глаза не уставали.</translation>
    </message>
    <message>
        <source>After dark the picture turns darker than the lowest brightness, without losing its details.</source>
        <translation>С наступлением темноты изображение становится темнее минимальной яркости, не теряя деталей.</translation>
    </message>
</context>
</TS>
