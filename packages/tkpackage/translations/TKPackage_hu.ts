<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="hu" sourcelanguage="en">
<context>
    <name>FourWindows</name>
    <message>
        <source>Upper left</source>
        <translation>Bal felső</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Jobb felső</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Bal alsó</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Jobb alsó</translation>
    </message>
</context>
<context>
    <name>KvmPage</name>
    <message>
        <source>Current Device Location</source>
        <translation>Az eszköz helye</translation>
    </message>
    <message>
        <source>Connected to the other computer</source>
        <translation>Kapcsolódva a másik számítógéphez</translation>
    </message>
    <message>
        <source>Connect the other computer</source>
        <translation>A másik számítógép kapcsolása</translation>
    </message>
</context>
<context>
    <name>KvmPorts</name>
    <message>
        <source>Auto Switch</source>
        <translation>Automatikus</translation>
    </message>
    <message>
        <source>USB-C Upstream</source>
        <translation>USB-C bemenet</translation>
    </message>
    <message>
        <source>USB-B Upstream</source>
        <translation>USB-B bemenet</translation>
    </message>
    <message>
        <source>TBT Upstream</source>
        <translation>TBT bemenet</translation>
    </message>
</context>
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Helyi kontraszt</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>MI-kontraszt</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Automatikus elforgatás</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Képernyő elforgatása</translation>
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
        <translation>Egyetlen kábellel egyszerűen összekötheti az összes monitorját.</translation>
    </message>
    <message>
        <source>About Daisy Chain (MST)</source>
        <translation>A Daisy Chain (MST) névjegye</translation>
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
        <translation>Fő: </translation>
    </message>
    <message>
        <source>Left: </source>
        <translation>Bal: </translation>
    </message>
    <message>
        <source>Sub: </source>
        <translation>Al: </translation>
    </message>
    <message>
        <source>Right: </source>
        <translation>Jobb: </translation>
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
        <translation>Bal:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Jobb:</translation>
    </message>
</context>
<context>
    <name>LuInputSourceWidget</name>
    <message>
        <source>Input source</source>
        <translation>Bemeneti forrás</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Bemenet</translation>
    </message>
    <message>
        <source>Built-in</source>
        <translation>Beépített</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Ismeretlen</translation>
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
        <translation>Kikapcsolja a PBP módot és a(z) %1 funkciót?</translation>
    </message>
    <message>
        <source>%1 only works in PBP mode. If you choose to turn off PBP mode, %1 will be disabled as well.</source>
        <translation>A(z) %1 csak PBP módban működik. A PBP mód kikapcsolásával a(z) %1 is kikapcsol.</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Elforgatás</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Képernyő elforgatása</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Kékfényszűrő Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Kékfényszűrő</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Szint</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>Tartományon kívül</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>A napkeltét 00:00 és 11:59, a napnyugtát 12:00 és 23:59 közé állítsa.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Cirkadián mód</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Napkeltétől napnyugtáig</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Kézi</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Napkelte</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Napnyugta</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Alkalmaz</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>A szűrő az Ön helyének napjárását követi. %1. szint eddig: %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>Instabil internetkapcsolat vagy más hiba miatt a napkelte és napnyugta ideje nem érkezett meg. Váltson kézi módra.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Időjárási adatok:</translation>
    </message>
    <message>
        <source>Set your location</source>
        <translation>Hely beállítása</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Szint a nap folyamán</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Kékfényszűrő Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Kékfényszűrő</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Szint</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Cirkadián mód</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mód</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Kézi</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Napkeltétől napnyugtáig</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Éjszakai védelem</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>Az automatikus váltás a környezeti fény szerint be- és kikapcsolja az éjszakai védelmet, így a szem kímélése folyamatos.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Szint</translation>
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
        <translation>A Smart KVM Basic be van kapcsolva</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Átvált PBP módba?</translation>
    </message>
    <message>
        <source>Smart KVM Basic works only in PBP Mode. Turning off PBP Mode will also disable Smart KVM Basic.</source>
        <translation>A Smart KVM Basic csak PBP módban működik. A PBP mód kikapcsolásával a Smart KVM Basic is kikapcsol.</translation>
    </message>
    <message>
        <source>Smart KVM Basic</source>
        <translation>Smart KVM Basic</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Bal</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Jobb</translation>
    </message>
    <message>
        <source>Orvane Smart KVM Basic makes multitasking effortless - use one keyboard and mouse to control two computers. With automatic switching when your cursor crosses the screen edge, you can work seamlessly across systems. Just install Lumen Desk 2 on both devices and enable PBP Mode to get started.</source>
        <translation>Az Orvane Smart KVM Basic megkönnyíti a többfeladatos munkát: egy billentyűzettel és egérrel két számítógépet vezérelhet. Az átváltás automatikus, amikor a mutató átlépi a képernyő szélét. Telepítse a Lumen Desk 2-t mindkét eszközre, és kapcsolja be a PBP módot.</translation>
    </message>
</context>
<context>
    <name>LuSmartKvmWidget</name>
    <message>
        <source>Driver installation is required</source>
        <translation>Illesztőprogram telepítése szükséges</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Csatlakoztatva</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Keresés</translation>
    </message>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Smart KVM Enabled</source>
        <translation>Smart KVM bekapcsolva</translation>
    </message>
    <message>
        <source>Driver installation is required.</source>
        <translation>Illesztőprogram telepítése szükséges.</translation>
    </message>
    <message>
        <source>Smart KVM requires your permission to install its driver. Would you like to install it now?</source>
        <translation>A Smart KVM engedélyt kér az illesztőprogram telepítéséhez. Telepíti most?</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Átvált PBP módba?</translation>
    </message>
    <message>
        <source>Smart KVM only works in PBP mode. If you'd like to continue using Smart KVM, we can switch to PBP mode for you.</source>
        <translation>A Smart KVM csak PBP módban működik. Ha tovább használná, átváltunk PBP módba.</translation>
    </message>
    <message>
        <source>Smart KVM</source>
        <translation>Smart KVM</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Bal</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Jobb</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Fent</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Lent</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Éjszakai védelem</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automatikus</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Be</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Ki</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Éjszakai védelem</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Szint</translation>
    </message>
</context>
<context>
    <name>PictureGoneNote</name>
    <message>
        <source>This computer's picture goes away with its input. %1 brings it back.</source>
        <translation>A számítógép képe a bemenetével együtt eltűnik. Visszahozza: %1.</translation>
    </message>
    <message>
        <source>This computer's picture goes away with its input. Choose %1 in the monitor's menu to bring it back.</source>
        <translation>A számítógép képe a bemenetével együtt eltűnik. Visszahozásához válassza a monitor menüjében: %1.</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Vissza: %1</translation>
    </message>
    <message>
        <source>Turn on shortcuts</source>
        <translation>Gyorsbillentyűk bekapcsolása</translation>
    </message>
</context>
<context>
    <name>PipOptions</name>
    <message>
        <source>Sub size</source>
        <translation>Alablak mérete</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Kicsi</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Közepes</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Nagy</translation>
    </message>
    <message>
        <source>Sub position</source>
        <translation>Alablak helye</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Jobb felső</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>Bal felső</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Jobb alsó</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Bal alsó</translation>
    </message>
</context>
<context>
    <name>PipPbpPage</name>
    <message>
        <source>Picture in picture</source>
        <translation>Kép a képben</translation>
    </message>
    <message>
        <source>Half and half</source>
        <translation>Fele-fele</translation>
    </message>
    <message>
        <source>Four windows</source>
        <translation>Négy ablak</translation>
    </message>
    <message>
        <source>16 : 9 and 9 : 5</source>
        <translation>16 : 9 és 9 : 5</translation>
    </message>
    <message>
        <source>Two to one</source>
        <translation>Kettő az egyhez</translation>
    </message>
    <message>
        <source>Three to one</source>
        <translation>Három az egyhez</translation>
    </message>
    <message>
        <source>Audio Source</source>
        <translation>Hangforrás</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Bal</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Jobb</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Csere</translation>
    </message>
</context>
<context>
    <name>TwoWindows</name>
    <message>
        <source>Main:</source>
        <translation>Fő:</translation>
    </message>
    <message>
        <source>Sub:</source>
        <translation>Al:</translation>
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
        <translation>Bal:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Jobb:</translation>
    </message>
</context>
<context>
    <name>LuBrightnessWidget</name>
    <message>
        <source>Brightness</source>
        <translation>Fényerő</translation>
    </message>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Színmód / Fényerő</translation>
    </message>
</context>
<context>
    <name>BrightnessPage</name>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Színmód / Fényerő</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Színmód</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Fényerő</translation>
    </message>
    <message>
        <source>Software Dimming</source>
        <translation>Szoftveres sötétítés</translation>
    </message>
    <message>
        <source>Darkens the picture below the lowest brightness of the monitor. Ambient brightness functions switch it off for as long as they run.</source>
        <translation>A monitor legkisebb fényereje alá sötétíti a képet. A környezeti fényt követő funkciók működésük idejére kikapcsolják.</translation>
    </message>
    <message>
        <source>Brightness Sync</source>
        <translation>Fényerő-szinkron</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontraszt</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Élesség</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Árnyalat</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Telítettség</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Színtér</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Egyenletesség</translation>
    </message>
    <message>
        <source>Reset Color</source>
        <translation>Színek visszaállítása</translation>
    </message>
</context>
<context>
    <name>BrightnessSliders</name>
    <message>
        <source>Software Dimming</source>
        <translation>Szoftveres sötétítés</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Fényerő</translation>
    </message>
</context>
<context>
    <name>ColorModeChoice</name>
    <message>
        <source>Color Mode</source>
        <translation>Színmód</translation>
    </message>
</context>
<context>
    <name>ColorTemperatureControls</name>
    <message>
        <source>Color Temperature</source>
        <translation>Színhőmérséklet</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Vörös</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Zöld</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Kék</translation>
    </message>
</context>
<context>
    <name>AxisControls</name>
    <message>
        <source>Red</source>
        <translation>Vörös</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Sárga</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Zöld</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cián</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Kék</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Bíbor</translation>
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
        <translation>Fényerő</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontraszt</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Élesség</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Színhőmérséklet</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Árnyalat</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Telítettség</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Színtér</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Egyenletesség</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Kékfényszűrő</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Éjszakai védelem</translation>
    </message>
    <message>
        <source>Ambient brightness</source>
        <translation>Környezeti fényerő</translation>
    </message>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Színmódhoz kötve</translation>
    </message>
    <message>
        <source>Stored for each color mode: %1.</source>
        <translation>Színmódonként tárolva: %1.</translation>
    </message>
</context>
<context>
    <name>LuBuiltInBrightnessWidget</name>
    <message>
        <source>Built-in brightness</source>
        <translation>Beépített fényerő</translation>
    </message>
</context>
<context>
    <name>LuColorWeaknessWidget</name>
    <message>
        <source>Color Weakness</source>
        <translation>Szín­tévesztés</translation>
    </message>
    <message>
        <source>Red: %1</source>
        <translation>Vörös: %1</translation>
    </message>
    <message>
        <source>Green: %1</source>
        <translation>Zöld: %1</translation>
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
        <translation>A macOS méretezési beállításai miatt a HDR átmenetileg nem érhető el. Kapcsolja ki a HiDPI-t, vagy csökkentse a felbontást.</translation>
    </message>
    <message>
        <source>This monitor has no HDR mode to switch to.</source>
        <translation>Ennek a monitornak nincs HDR módja.</translation>
    </message>
</context>
<context>
    <name>LuPopupColorModeAction</name>
    <message>
        <source>Color Mode</source>
        <translation>Színmód</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Fényerő</translation>
    </message>
</context>
<context>
    <name>LuPopupBrightnessShortcut</name>
    <message>
        <source>Brightness</source>
        <translation>Fényerő</translation>
    </message>
</context>
<context>
    <name>LuPopupIccSyncHint</name>
    <message>
        <source>Color Sync</source>
        <translation>Színszinkron</translation>
    </message>
    <message>
        <source>The color profile of the desktop now follows the color mode of this monitor.</source>
        <translation>Az asztal színprofilja mostantól követi e monitor színmódját.</translation>
    </message>
</context>
<context>
    <name>PackageStrings</name>
    <message>
        <source>Coding - Light Theme</source>
        <translation>Kódolás – világos téma</translation>
    </message>
    <message>
        <source>Coding - Dark Theme</source>
        <translation>Kódolás – sötét téma</translation>
    </message>
    <message>
        <source>Coding - Paper Color</source>
        <translation>Kódolás – papírszín</translation>
    </message>
    <message>
        <source>M-book</source>
        <translation>M-book</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Mozi</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Játék</translation>
    </message>
    <message>
        <source>ePaper</source>
        <translation>ePaper</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Felhasználó</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normál</translation>
    </message>
    <message>
        <source>Bluish</source>
        <translation>Kékes</translation>
    </message>
    <message>
        <source>Reddish</source>
        <translation>Vöröses</translation>
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
        <translation>A(z) %1 névjegye</translation>
    </message>
    <message>
        <source>To meet individual preferences, %1 allows manual control of screen brightness. It learns and records your last adjustment, applying it to optimize its automatic brightness adjustment curve to better match your preferences.</source>
        <translation>Az egyéni igényekhez a(z) %1 kézi fényerő-beállítást is enged. Megtanulja és tárolja az utolsó beállítást, és ehhez igazítja az automatikus fényerő görbéjét.</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Paraméter</translation>
    </message>
    <message>
        <source>Brightness + Color Temperature</source>
        <translation>Fényerő + színhőmérséklet</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Fényerő</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>Fénymérő</translation>
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
        <translation>Fénymérő</translation>
    </message>
</context>
<context>
    <name>SensitivitySlider</name>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Érzékelő érzékenysége</translation>
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
        <translation>Automatikus fényerő</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Be</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Ki</translation>
    </message>
</context>
<context>
    <name>BackLightControls</name>
    <message>
        <source>Brightness</source>
        <translation>Fényerő</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Színhőmérséklet</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Fénymód</translation>
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
        <translation>Az automatikus fényerő a környezeti fényhez igazítja a BackGlow fényét, és gyenge fényben kíméli a szemet. Csak bekapcsolt A.B. Gen2 mellett használható.</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Színmódhoz kötés</translation>
    </message>
    <message>
        <source>The system will automatically switch to the bundled BackGlow settings when you change the color mode.</source>
        <translation>A színmód váltásakor a hozzá tartozó BackGlow-beállítások lépnek életbe.</translation>
    </message>
    <message>
        <source>Non-stop Mode</source>
        <translation>Folyamatos mód</translation>
    </message>
    <message>
        <source>To activate BackGlow while the monitor is in sleep mode, you can enable the non-stop mode.</source>
        <translation>Ha a BackGlow a monitor alvó módjában is világítson, kapcsolja be a folyamatos módot.</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Továbbiak</translation>
    </message>
</context>
<context>
    <name>EcoPrivacyTexts</name>
    <message>
        <source>5 sec.</source>
        <translation>5 mp</translation>
    </message>
    <message>
        <source>10 sec.</source>
        <translation>10 mp</translation>
    </message>
    <message>
        <source>20 sec.</source>
        <translation>20 mp</translation>
    </message>
    <message>
        <source>30 sec.</source>
        <translation>30 mp</translation>
    </message>
    <message>
        <source>60 sec.</source>
        <translation>60 mp</translation>
    </message>
    <message>
        <source>5 min.</source>
        <translation>5 perc</translation>
    </message>
    <message>
        <source>10 min.</source>
        <translation>10 perc</translation>
    </message>
    <message>
        <source>Near</source>
        <translation>Közel</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Közepes</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>Távol</translation>
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
        <translation>A monitor elsötétítése tétlenség után.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mód</translation>
    </message>
    <message>
        <source>Display + BackGlow</source>
        <translation>Kijelző + BackGlow</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Kijelző</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Érzékelő érzékenysége</translation>
    </message>
    <message>
        <source>EcoPrivacy helps protect your screen privacy and dims your monitor after inactivity through your built-in monitor sensor.</source>
        <translation>Az EcoPrivacy védi a képernyő titkosságát, és tétlenségkor a beépített érzékelővel elsötétíti a monitort.</translation>
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
        <translation>Érzékelő érzékenysége</translation>
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
        <translation>Fénymérő</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Be</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Ki</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Érzékelő érzékenysége</translation>
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
        <translation>Fényerő</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Színhőmérséklet</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Fénymód</translation>
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
        <translation>A monitor elsötétítése: %1</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Érzékelő érzékenysége</translation>
    </message>
</context>
<context>
    <name>LuShortcutsWidget</name>
    <message>
        <source>Shortcuts</source>
        <translation>Gyorsgomb</translation>
    </message>
    <message>
        <source>The key combination can not be used.</source>
        <translation>Ez a billentyűkombináció nem használható.</translation>
    </message>
    <message>
        <source>This shortcut cannot be used as it is currently being used by another function.</source>
        <translation>Ez a billentyűparancs nem használható, mert már egy másik funkcióhoz tartozik.</translation>
    </message>
    <message>
        <source>Reset All Shortcuts</source>
        <translation>Összes billentyűparancs visszaállítása</translation>
    </message>
    <message>
        <source>To reset your keyboard shortcuts, click on the 'Reset' button below. Once confirmed, the app will immediately restore the default settings.</source>
        <translation>A billentyűparancsok visszaállításához kattintson alább a „Visszaállítás” gombra. Megerősítés után az alkalmazás azonnal visszaállítja az alapértékeket.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Visszaállítás</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
</context>
<context>
    <name>ShortcutRows</name>
    <message>
        <source>Input</source>
        <translation>Bemenet</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Színmód</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Fényerő</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Hangerő</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Éjszakai védelem</translation>
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
        <translation>Külön másolás/beillesztés</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>Csökkentés</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>Növelés</translation>
    </message>
    <message>
        <source>TurnOn/Off</source>
        <translation>Be-/kikapcsolás</translation>
    </message>
    <message>
        <source>Loop all KVM switch</source>
        <translation>KVM-portok léptetése</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Másolás</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Beillesztés</translation>
    </message>
    <message>
        <source>This function supports image, text, file, and URL formats. Copying other types of content may impact the content of the clipboard.</source>
        <translation>A funkció képet, szöveget, fájlt és URL-t támogat. Más tartalom másolása hatással lehet a vágólapra.</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <translation>Váltás: %1</translation>
    </message>
    <message>
        <source>Loop all color mode</source>
        <translation>Színmódok léptetése</translation>
    </message>
    <message>
        <source>Loop all Audio Mode</source>
        <translation>Hangmódok léptetése</translation>
    </message>
    <message>
        <source>Loop all speaker output</source>
        <translation>Hangkimenetek léptetése</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Némítás</translation>
    </message>
</context>
<context>
    <name>LuVolumeWidget</name>
    <message>
        <source>Audio</source>
        <translation>Hang</translation>
    </message>
    <message>
        <source>Volume can be adjusted in main page at anytime. You can also expand the menu to choose the audio source.</source>
        <translation>A hangerő bármikor állítható a főoldalon. A menüt kinyitva a hangforrás is kiválasztható.</translation>
    </message>
    <message>
        <source>iKeyboard Control</source>
        <translation>iKeyboard-vezérlés</translation>
    </message>
    <message>
        <source>Enable iKeyboard Control to use the F11/F12 volume keys on Mac keyboard to adjust the volume of the selected audio output.</source>
        <translation>Az iKeyboard-vezérléssel a Mac billentyűzet F11/F12 hangerőgombjai a kiválasztott kimenet hangerejét állítják.</translation>
    </message>
</context>
<context>
    <name>AudioModeChoice</name>
    <message>
        <source>Audio Mode</source>
        <translation>Hangmód</translation>
    </message>
</context>
<context>
    <name>Equaliser</name>
    <message>
        <source>Equalizer Setting</source>
        <translation>Hangszínszabályzó</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>ALAPHELYZET</translation>
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
        <translation>Kimenet</translation>
    </message>
    <message>
        <source>Sound Settings</source>
        <translation>Hangbeállítások</translation>
    </message>
</context>
<context>
    <name>VolumePage</name>
    <message>
        <source>Volume</source>
        <translation>Hangerő</translation>
    </message>
    <message>
        <source>System's volume</source>
        <translation>Rendszer hangereje</translation>
    </message>
    <message>
        <source>Audio Mode</source>
        <translation>Hangmód</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Kimenet</translation>
    </message>
    <message>
        <source>The volume of this monitor can be set while the system plays through it.</source>
        <translation>A monitor hangereje akkor állítható, amikor a rendszer ezen szól.</translation>
    </message>
</context>
<context>
    <name>LuPopupVolumeShortcut</name>
    <message>
        <source>Volume</source>
        <translation>Hangerő</translation>
    </message>
</context>
<context>
    <name>LuPopupVolumeAction</name>
    <message>
        <source>Audio</source>
        <translation>Hang</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Hangerő</translation>
    </message>
    <message>
        <source>Audio Mode :</source>
        <translation>Hangmód:</translation>
    </message>
</context>
<context>
    <name>Walkthrough</name>
    <message>
        <source>BackGlow Auto-dimming</source>
        <translation>BackGlow: automatikus fényerő</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Éjszakai védelem</translation>
    </message>
    <message>
        <source>The light behind your monitor dims with the room, so that your eyes stay at ease.</source>
        <translation>A monitor mögötti fény a szobával együtt halványul, hogy a szeme ne fáradjon.</translation>
    </message>
    <message>
        <source>After dark the picture turns darker than the lowest brightness, without losing its details.</source>
        <translation>Sötétedés után a kép a legkisebb fényerőnél is sötétebb lesz, anélkül hogy elveszítené részleteit.</translation>
    </message>
</context>
</TS>
