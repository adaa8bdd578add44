<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>FourWindows</name>
    <message>
        <source>Upper left</source>
        <translation>Lewy górny</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Prawy górny</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Lewy dolny</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Prawy dolny</translation>
    </message>
</context>
<context>
    <name>KvmPage</name>
    <message>
        <source>Current Device Location</source>
        <translation>Położenie tego urządzenia</translation>
    </message>
    <message>
        <source>Connected to the other computer</source>
        <translation>Połączono z drugim komputerem</translation>
    </message>
    <message>
        <source>Connect the other computer</source>
        <translation>Połącz drugi komputer</translation>
    </message>
</context>
<context>
    <name>KvmPorts</name>
    <message>
        <source>Auto Switch</source>
        <translation>Automatycznie</translation>
    </message>
    <message>
        <source>USB-C Upstream</source>
        <translation>Wejście USB-C</translation>
    </message>
    <message>
        <source>USB-B Upstream</source>
        <translation>Wejście USB-B</translation>
    </message>
    <message>
        <source>TBT Upstream</source>
        <translation>Wejście TBT</translation>
    </message>
</context>
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
        <translation>Autoobrót</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Obrót ekranu</translation>
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
        <translation>Jeden kabel łatwo łączy wszystkie monitory.</translation>
    </message>
    <message>
        <source>About Daisy Chain (MST)</source>
        <translation>Informacje o Daisy Chain (MST)</translation>
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
        <translation>Główne: </translation>
    </message>
    <message>
        <source>Left: </source>
        <translation>Lewo: </translation>
    </message>
    <message>
        <source>Sub: </source>
        <translation>Dodatkowe: </translation>
    </message>
    <message>
        <source>Right: </source>
        <translation>Prawo: </translation>
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
        <translation>Lewo:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Prawo:</translation>
    </message>
</context>
<context>
    <name>LuInputSourceWidget</name>
    <message>
        <source>Input source</source>
        <translation>Źródło sygnału</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Wejście</translation>
    </message>
    <message>
        <source>Built-in</source>
        <translation>Wbudowany</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Nieznane</translation>
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
        <translation>Czy chcesz wyłączyć tryb PBP i %1?</translation>
    </message>
    <message>
        <source>%1 only works in PBP mode. If you choose to turn off PBP mode, %1 will be disabled as well.</source>
        <translation>%1 działa tylko w trybie PBP. Wyłączenie trybu PBP wyłączy także %1.</translation>
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
    <message>
        <source>Set your location</source>
        <translation>Ustaw położenie</translation>
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
    <name>LuSmartKvmBasicWidget</name>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Smart KVM Basic is enabled</source>
        <translation>Smart KVM Basic jest włączone</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Czy chcesz przejść do trybu PBP?</translation>
    </message>
    <message>
        <source>Smart KVM Basic works only in PBP Mode. Turning off PBP Mode will also disable Smart KVM Basic.</source>
        <translation>Smart KVM Basic działa tylko w trybie PBP. Wyłączenie trybu PBP wyłączy także Smart KVM Basic.</translation>
    </message>
    <message>
        <source>Smart KVM Basic</source>
        <translation>Smart KVM Basic</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Lewo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Prawo</translation>
    </message>
    <message>
        <source>Orvane Smart KVM Basic makes multitasking effortless - use one keyboard and mouse to control two computers. With automatic switching when your cursor crosses the screen edge, you can work seamlessly across systems. Just install Lumen Desk 2 on both devices and enable PBP Mode to get started.</source>
        <translation>Orvane Smart KVM Basic ułatwia wielozadaniowość – jedną klawiaturą i myszą sterujesz dwoma komputerami. Przełączanie następuje automatycznie, gdy kursor przekroczy krawędź ekranu. Zainstaluj Lumen Desk 2 na obu urządzeniach i włącz tryb PBP.</translation>
    </message>
</context>
<context>
    <name>LuSmartKvmWidget</name>
    <message>
        <source>Driver installation is required</source>
        <translation>Wymagana instalacja sterownika</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Połączono</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Wyszukiwanie</translation>
    </message>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Smart KVM Enabled</source>
        <translation>Smart KVM włączone</translation>
    </message>
    <message>
        <source>Driver installation is required.</source>
        <translation>Wymagana instalacja sterownika.</translation>
    </message>
    <message>
        <source>Smart KVM requires your permission to install its driver. Would you like to install it now?</source>
        <translation>Smart KVM potrzebuje zgody na instalację sterownika. Zainstalować teraz?</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Czy chcesz przejść do trybu PBP?</translation>
    </message>
    <message>
        <source>Smart KVM only works in PBP mode. If you'd like to continue using Smart KVM, we can switch to PBP mode for you.</source>
        <translation>Smart KVM działa tylko w trybie PBP. Aby dalej z niego korzystać, możemy przejść do trybu PBP.</translation>
    </message>
    <message>
        <source>Smart KVM</source>
        <translation>Smart KVM</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Lewo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Prawo</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Góra</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Dół</translation>
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
<context>
    <name>PictureGoneNote</name>
    <message>
        <source>This computer's picture goes away with its input. %1 brings it back.</source>
        <translation>Obraz tego komputera znika wraz z jego wejściem. Przywraca go %1.</translation>
    </message>
    <message>
        <source>This computer's picture goes away with its input. Choose %1 in the monitor's menu to bring it back.</source>
        <translation>Obraz tego komputera znika wraz z jego wejściem. Aby go przywrócić, wybierz %1 w menu monitora.</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Wróć do %1</translation>
    </message>
    <message>
        <source>Turn on shortcuts</source>
        <translation>Włącz skróty</translation>
    </message>
</context>
<context>
    <name>PipOptions</name>
    <message>
        <source>Sub size</source>
        <translation>Rozmiar okna</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Mały</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Średni</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Duży</translation>
    </message>
    <message>
        <source>Sub position</source>
        <translation>Położenie okna</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Prawy górny</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>Lewy górny</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Prawy dolny</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Lewy dolny</translation>
    </message>
</context>
<context>
    <name>PipPbpPage</name>
    <message>
        <source>Picture in picture</source>
        <translation>Obraz w obrazie</translation>
    </message>
    <message>
        <source>Half and half</source>
        <translation>Pół na pół</translation>
    </message>
    <message>
        <source>Four windows</source>
        <translation>Cztery okna</translation>
    </message>
    <message>
        <source>16 : 9 and 9 : 5</source>
        <translation>16 : 9 i 9 : 5</translation>
    </message>
    <message>
        <source>Two to one</source>
        <translation>Dwa do jednego</translation>
    </message>
    <message>
        <source>Three to one</source>
        <translation>Trzy do jednego</translation>
    </message>
    <message>
        <source>Audio Source</source>
        <translation>Źródło dźwięku</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Lewo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Prawo</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Zamień</translation>
    </message>
</context>
<context>
    <name>TwoWindows</name>
    <message>
        <source>Main:</source>
        <translation>Główne:</translation>
    </message>
    <message>
        <source>Sub:</source>
        <translation>Dodatkowe:</translation>
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
        <translation>Lewo:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Prawo:</translation>
    </message>
</context>
<context>
    <name>LuBrightnessWidget</name>
    <message>
        <source>Brightness</source>
        <translation>Jasność</translation>
    </message>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Tryb kolorów / Jasność</translation>
    </message>
</context>
<context>
    <name>BrightnessPage</name>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Tryb kolorów / Jasność</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Tryb kolorów</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Jasność</translation>
    </message>
    <message>
        <source>Software Dimming</source>
        <translation>Przyciemnianie programowe</translation>
    </message>
    <message>
        <source>Darkens the picture below the lowest brightness of the monitor. Ambient brightness functions switch it off for as long as they run.</source>
        <translation>Przyciemnia obraz poniżej najniższej jasności monitora. Funkcje światła otoczenia wyłączają je na czas działania.</translation>
    </message>
    <message>
        <source>Brightness Sync</source>
        <translation>Synchronizacja jasności</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Ostrość</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Odcień</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Nasycenie</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Gama kolorów</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Równomierność</translation>
    </message>
    <message>
        <source>Reset Color</source>
        <translation>Resetuj kolory</translation>
    </message>
</context>
<context>
    <name>BrightnessSliders</name>
    <message>
        <source>Software Dimming</source>
        <translation>Przyciemnianie programowe</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Jasność</translation>
    </message>
</context>
<context>
    <name>ColorModeChoice</name>
    <message>
        <source>Color Mode</source>
        <translation>Tryb kolorów</translation>
    </message>
</context>
<context>
    <name>ColorTemperatureControls</name>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatura barwowa</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Czerwony</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Zielony</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Niebieski</translation>
    </message>
</context>
<context>
    <name>AxisControls</name>
    <message>
        <source>Red</source>
        <translation>Czerwony</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Żółty</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Zielony</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyjan</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Niebieski</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
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
        <translation>Jasność</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Ostrość</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatura barwowa</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Odcień</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Nasycenie</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Gama kolorów</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Równomierność</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Redukcja niebieskiego światła</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Ochrona nocna</translation>
    </message>
    <message>
        <source>Ambient brightness</source>
        <translation>Światło otoczenia</translation>
    </message>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Powiązane z trybem kolorów</translation>
    </message>
    <message>
        <source>Stored for each color mode: %1.</source>
        <translation>Zapisywane dla każdego trybu kolorów: %1.</translation>
    </message>
</context>
<context>
    <name>LuBuiltInBrightnessWidget</name>
    <message>
        <source>Built-in brightness</source>
        <translation>Jasność wbudowana</translation>
    </message>
</context>
<context>
    <name>LuColorWeaknessWidget</name>
    <message>
        <source>Color Weakness</source>
        <translation>Zaburzenia widzenia barw</translation>
    </message>
    <message>
        <source>Red: %1</source>
        <translation>Czerwony: %1</translation>
    </message>
    <message>
        <source>Green: %1</source>
        <translation>Zielony: %1</translation>
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
        <translation>Z powodu skalowania w macOS funkcja HDR jest chwilowo niedostępna. Wyłącz HiDPI lub zmniejsz rozdzielczość.</translation>
    </message>
    <message>
        <source>This monitor has no HDR mode to switch to.</source>
        <translation>Ten monitor nie ma trybu HDR.</translation>
    </message>
</context>
<context>
    <name>LuPopupColorModeAction</name>
    <message>
        <source>Color Mode</source>
        <translation>Tryb kolorów</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Jasność</translation>
    </message>
</context>
<context>
    <name>LuPopupBrightnessShortcut</name>
    <message>
        <source>Brightness</source>
        <translation>Jasność</translation>
    </message>
</context>
<context>
    <name>LuPopupIccSyncHint</name>
    <message>
        <source>Color Sync</source>
        <translation>Synchronizacja kolorów</translation>
    </message>
    <message>
        <source>The color profile of the desktop now follows the color mode of this monitor.</source>
        <translation>Profil kolorów pulpitu podąża teraz za trybem kolorów tego monitora.</translation>
    </message>
</context>
<context>
    <name>PackageStrings</name>
    <message>
        <source>Coding - Light Theme</source>
        <translation>Kodowanie – jasny motyw</translation>
    </message>
    <message>
        <source>Coding - Dark Theme</source>
        <translation>Kodowanie – ciemny motyw</translation>
    </message>
    <message>
        <source>Coding - Paper Color</source>
        <translation>Kodowanie – kolor papieru</translation>
    </message>
    <message>
        <source>M-book</source>
        <translation>M-book</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Kino</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Gra</translation>
    </message>
    <message>
        <source>ePaper</source>
        <translation>ePaper</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Użytkownik</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normalna</translation>
    </message>
    <message>
        <source>Bluish</source>
        <translation>Niebieskawa</translation>
    </message>
    <message>
        <source>Reddish</source>
        <translation>Czerwonawa</translation>
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
        <translation>O funkcji %1</translation>
    </message>
    <message>
        <source>To meet individual preferences, %1 allows manual control of screen brightness. It learns and records your last adjustment, applying it to optimize its automatic brightness adjustment curve to better match your preferences.</source>
        <translation>%1 pozwala ręcznie regulować jasność według upodobań. Zapamiętuje ostatnią zmianę i dopasowuje do niej krzywą jasności automatycznej.</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parametr</translation>
    </message>
    <message>
        <source>Brightness + Color Temperature</source>
        <translation>Jasność + temperatura barw</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Jasność</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>Światłomierz</translation>
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
        <translation>Światłomierz</translation>
    </message>
</context>
<context>
    <name>SensitivitySlider</name>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Czułość czujnika</translation>
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
        <translation>Automatyczne ściemnianie</translation>
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
    <name>BackLightControls</name>
    <message>
        <source>Brightness</source>
        <translation>Jasność</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatura barw</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Tryb światła</translation>
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
        <translation>Automatyczne ściemnianie dostosowuje jasność BackGlow do światła otoczenia i chroni wzrok w półmroku. Działa tylko przy włączonym A.B. Gen2.</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Powiązanie z trybem kolorów</translation>
    </message>
    <message>
        <source>The system will automatically switch to the bundled BackGlow settings when you change the color mode.</source>
        <translation>Po zmianie trybu kolorów stosowane są powiązane z nim ustawienia BackGlow.</translation>
    </message>
    <message>
        <source>Non-stop Mode</source>
        <translation>Tryb ciągły</translation>
    </message>
    <message>
        <source>To activate BackGlow while the monitor is in sleep mode, you can enable the non-stop mode.</source>
        <translation>Aby BackGlow świecił także w trybie uśpienia monitora, włącz tryb ciągły.</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Więcej</translation>
    </message>
</context>
<context>
    <name>EcoPrivacyTexts</name>
    <message>
        <source>5 sec.</source>
        <translation>5 s</translation>
    </message>
    <message>
        <source>10 sec.</source>
        <translation>10 s</translation>
    </message>
    <message>
        <source>20 sec.</source>
        <translation>20 s</translation>
    </message>
    <message>
        <source>30 sec.</source>
        <translation>30 s</translation>
    </message>
    <message>
        <source>60 sec.</source>
        <translation>60 s</translation>
    </message>
    <message>
        <source>5 min.</source>
        <translation>5 min</translation>
    </message>
    <message>
        <source>10 min.</source>
        <translation>10 min</translation>
    </message>
    <message>
        <source>Near</source>
        <translation>Blisko</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Średnio</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>Daleko</translation>
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
        <translation>Przyciemnij monitor po okresie bezczynności.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Tryb</translation>
    </message>
    <message>
        <source>Display + BackGlow</source>
        <translation>Ekran + BackGlow</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Ekran</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Czułość czujnika</translation>
    </message>
    <message>
        <source>EcoPrivacy helps protect your screen privacy and dims your monitor after inactivity through your built-in monitor sensor.</source>
        <translation>EcoPrivacy chroni prywatność ekranu i przyciemnia monitor podczas nieobecności dzięki wbudowanemu czujnikowi.</translation>
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
        <translation>Czułość czujnika</translation>
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
        <translation>Światłomierz</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Wł.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Wył.</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Czułość czujnika</translation>
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
        <translation>Jasność</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatura barw</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Tryb światła</translation>
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
        <translation>Przyciemnij monitor po %1</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Czułość czujnika</translation>
    </message>
</context>
<context>
    <name>LuShortcutsWidget</name>
    <message>
        <source>Shortcuts</source>
        <translation>Skróty</translation>
    </message>
    <message>
        <source>The key combination can not be used.</source>
        <translation>Nie można użyć tej kombinacji klawiszy.</translation>
    </message>
    <message>
        <source>This shortcut cannot be used as it is currently being used by another function.</source>
        <translation>Nie można użyć tego skrótu, ponieważ korzysta z niego inna funkcja.</translation>
    </message>
    <message>
        <source>Reset All Shortcuts</source>
        <translation>Przywróć wszystkie skróty</translation>
    </message>
    <message>
        <source>To reset your keyboard shortcuts, click on the 'Reset' button below. Once confirmed, the app will immediately restore the default settings.</source>
        <translation>Aby przywrócić skróty klawiszowe, kliknij poniżej „Przywróć”. Po potwierdzeniu aplikacja natychmiast wróci do ustawień domyślnych.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Przywróć</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>ShortcutRows</name>
    <message>
        <source>Input</source>
        <translation>Wejście</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Tryb kolorów</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Jasność</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Głośność</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Ochrona nocna</translation>
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
        <translation>Dodatkowe kopiowanie/wklejanie</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>Zmniejsz</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>Zwiększ</translation>
    </message>
    <message>
        <source>TurnOn/Off</source>
        <translation>Włącz/wyłącz</translation>
    </message>
    <message>
        <source>Loop all KVM switch</source>
        <translation>Przełączaj kolejno porty KVM</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Wklej</translation>
    </message>
    <message>
        <source>This function supports image, text, file, and URL formats. Copying other types of content may impact the content of the clipboard.</source>
        <translation>Ta funkcja obsługuje obrazy, tekst, pliki i adresy URL. Kopiowanie innych treści może wpłynąć na zawartość schowka.</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <translation>Przełącz na %1</translation>
    </message>
    <message>
        <source>Loop all color mode</source>
        <translation>Przełączaj kolejno tryby kolorów</translation>
    </message>
    <message>
        <source>Loop all Audio Mode</source>
        <translation>Przełączaj kolejno tryby dźwięku</translation>
    </message>
    <message>
        <source>Loop all speaker output</source>
        <translation>Przełączaj kolejno głośniki</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Wycisz</translation>
    </message>
</context>
<context>
    <name>LuVolumeWidget</name>
    <message>
        <source>Audio</source>
        <translation>Dźwięk</translation>
    </message>
    <message>
        <source>Volume can be adjusted in main page at anytime. You can also expand the menu to choose the audio source.</source>
        <translation>Głośność można w każdej chwili zmienić na stronie głównej. Po rozwinięciu menu można też wybrać źródło dźwięku.</translation>
    </message>
    <message>
        <source>iKeyboard Control</source>
        <translation>Sterowanie iKeyboard</translation>
    </message>
    <message>
        <source>Enable iKeyboard Control to use the F11/F12 volume keys on Mac keyboard to adjust the volume of the selected audio output.</source>
        <translation>Włącz sterowanie iKeyboard, aby klawiszami głośności F11/F12 klawiatury Mac regulować głośność wybranego wyjścia.</translation>
    </message>
</context>
<context>
    <name>AudioModeChoice</name>
    <message>
        <source>Audio Mode</source>
        <translation>Tryb dźwięku</translation>
    </message>
</context>
<context>
    <name>Equaliser</name>
    <message>
        <source>Equalizer Setting</source>
        <translation>Ustawienia korektora</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>RESETUJ</translation>
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
        <translation>Wyjście</translation>
    </message>
    <message>
        <source>Sound Settings</source>
        <translation>Ustawienia dźwięku</translation>
    </message>
</context>
<context>
    <name>VolumePage</name>
    <message>
        <source>Volume</source>
        <translation>Głośność</translation>
    </message>
    <message>
        <source>System's volume</source>
        <translation>Głośność systemu</translation>
    </message>
    <message>
        <source>Audio Mode</source>
        <translation>Tryb dźwięku</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Wyjście</translation>
    </message>
    <message>
        <source>The volume of this monitor can be set while the system plays through it.</source>
        <translation>Głośność tego monitora można ustawić, gdy system odtwarza przez niego dźwięk.</translation>
    </message>
</context>
<context>
    <name>LuPopupVolumeShortcut</name>
    <message>
        <source>Volume</source>
        <translation>Głośność</translation>
    </message>
</context>
<context>
    <name>LuPopupVolumeAction</name>
    <message>
        <source>Audio</source>
        <translation>Dźwięk</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Głośność</translation>
    </message>
    <message>
        <source>Audio Mode :</source>
        <translation>Tryb dźwięku:</translation>
    </message>
</context>
<context>
    <name>Walkthrough</name>
    <message>
        <source>BackGlow Auto-dimming</source>
        <translation>BackGlow: automatyczne ściemnianie</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Ochrona nocna</translation>
    </message>
    <message>
        <source>The light behind your monitor dims with the room, so that your eyes stay at ease.</source>
        <translation>Światło za monitorem przygasa razem z pomieszczeniem, aby oczy odpoczywały.</translation>
    </message>
    <message>
        <source>After dark the picture turns darker than the lowest brightness, without losing its details.</source>
        <translation>Po zmroku obraz staje się ciemniejszy niż przy najniższej jasności, nie tracąc szczegółów.</translation>
    </message>
</context>
</TS>
