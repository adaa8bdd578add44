<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>FourWindows</name>
    <message>
        <source>Upper left</source>
        <translation>Vlevo nahoře</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Vpravo nahoře</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Vlevo dole</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Vpravo dole</translation>
    </message>
</context>
<context>
    <name>KvmPage</name>
    <message>
        <source>Current Device Location</source>
        <translation>Umístění tohoto zařízení</translation>
    </message>
    <message>
        <source>Connected to the other computer</source>
        <translation>Připojeno k druhému počítači</translation>
    </message>
    <message>
        <source>Connect the other computer</source>
        <translation>Připojit druhý počítač</translation>
    </message>
</context>
<context>
    <name>KvmPorts</name>
    <message>
        <source>Auto Switch</source>
        <translation>Automaticky</translation>
    </message>
    <message>
        <source>USB-C Upstream</source>
        <translation>Vstup USB-C</translation>
    </message>
    <message>
        <source>USB-B Upstream</source>
        <translation>Vstup USB-B</translation>
    </message>
    <message>
        <source>TBT Upstream</source>
        <translation>Vstup TBT</translation>
    </message>
</context>
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Lokální kontrast</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>AI kontrast</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Automatické otáčení</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Otočení obrazovky</translation>
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
        <translation>Jeden kabel snadno propojí všechny vaše monitory.</translation>
    </message>
    <message>
        <source>About Daisy Chain (MST)</source>
        <translation>O funkci Daisy Chain (MST)</translation>
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
        <translation>Hlavní: </translation>
    </message>
    <message>
        <source>Left: </source>
        <translation>Vlevo: </translation>
    </message>
    <message>
        <source>Sub: </source>
        <translation>Vedlejší: </translation>
    </message>
    <message>
        <source>Right: </source>
        <translation>Vpravo: </translation>
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
        <translation>Vlevo:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Vpravo:</translation>
    </message>
</context>
<context>
    <name>LuInputSourceWidget</name>
    <message>
        <source>Input source</source>
        <translation>Vstupní zdroj</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Vstup</translation>
    </message>
    <message>
        <source>Built-in</source>
        <translation>Vestavěný</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Neznámý</translation>
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
        <translation>Chcete vypnout režim PBP a %1?</translation>
    </message>
    <message>
        <source>%1 only works in PBP mode. If you choose to turn off PBP mode, %1 will be disabled as well.</source>
        <translation>%1 funguje jen v režimu PBP. Vypnutím režimu PBP se vypne i %1.</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Otočení</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Otočení obrazovky</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Redukce modrého světla Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Redukce modrého světla</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Úroveň</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>Mimo rozsah</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>Nastavte východ slunce mezi 00:00 a 11:59 a západ slunce mezi 12:00 a 23:59.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Cirkadiánní režim</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Od východu do západu</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Ručně</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Východ slunce</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Západ slunce</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použít</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>Filtr se řídí sluncem ve vašem místě. Úroveň %1 do %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>Kvůli nestabilnímu připojení k internetu nebo jiným potížím se nepodařilo získat časy východu a západu slunce. Přepněte na ruční režim.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Údaje o počasí poskytuje</translation>
    </message>
    <message>
        <source>Set your location</source>
        <translation>Nastavit polohu</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Úroveň během dne</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Redukce modrého světla Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Redukce modrého světla</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Úroveň</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Cirkadiánní režim</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Režim</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Ručně</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Od východu do západu</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Ochrana v noci</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>Automatické přepínání zapíná a vypíná ochranu v noci podle okolního světla, takže o oči je trvale a bez námahy postaráno.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Úroveň</translation>
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
        <translation>Smart KVM Basic je zapnuto</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Chcete přepnout do režimu PBP?</translation>
    </message>
    <message>
        <source>Smart KVM Basic works only in PBP Mode. Turning off PBP Mode will also disable Smart KVM Basic.</source>
        <translation>Smart KVM Basic funguje jen v režimu PBP. Vypnutím režimu PBP se vypne i Smart KVM Basic.</translation>
    </message>
    <message>
        <source>Smart KVM Basic</source>
        <translation>Smart KVM Basic</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Vlevo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Vpravo</translation>
    </message>
    <message>
        <source>Orvane Smart KVM Basic makes multitasking effortless - use one keyboard and mouse to control two computers. With automatic switching when your cursor crosses the screen edge, you can work seamlessly across systems. Just install Lumen Desk 2 on both devices and enable PBP Mode to get started.</source>
        <translation>Orvane Smart KVM Basic usnadňuje práci na více počítačích – jednou klávesnicí a myší ovládáte dva počítače. Přepnou se samy, jakmile kurzor překročí okraj obrazovky. Stačí na obě zařízení nainstalovat Lumen Desk 2 a zapnout režim PBP.</translation>
    </message>
</context>
<context>
    <name>LuSmartKvmWidget</name>
    <message>
        <source>Driver installation is required</source>
        <translation>Je nutná instalace ovladače</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Připojeno</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Vyhledávání</translation>
    </message>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Smart KVM Enabled</source>
        <translation>Smart KVM zapnuto</translation>
    </message>
    <message>
        <source>Driver installation is required.</source>
        <translation>Je nutná instalace ovladače.</translation>
    </message>
    <message>
        <source>Smart KVM requires your permission to install its driver. Would you like to install it now?</source>
        <translation>Smart KVM potřebuje svolení k instalaci ovladače. Chcete jej nainstalovat nyní?</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Chcete přepnout do režimu PBP?</translation>
    </message>
    <message>
        <source>Smart KVM only works in PBP mode. If you'd like to continue using Smart KVM, we can switch to PBP mode for you.</source>
        <translation>Smart KVM funguje jen v režimu PBP. Chcete-li jej dál používat, přepneme do režimu PBP za vás.</translation>
    </message>
    <message>
        <source>Smart KVM</source>
        <translation>Smart KVM</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Vlevo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Vpravo</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Nahoře</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Dole</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Ochrana v noci</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automaticky</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Zapnuto</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Vypnuto</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Ochrana v noci</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Úroveň</translation>
    </message>
</context>
<context>
    <name>PictureGoneNote</name>
    <message>
        <source>This computer's picture goes away with its input. %1 brings it back.</source>
        <translation>Obraz tohoto počítače zmizí s jeho vstupem. Vrátí jej %1.</translation>
    </message>
    <message>
        <source>This computer's picture goes away with its input. Choose %1 in the monitor's menu to bring it back.</source>
        <translation>Obraz tohoto počítače zmizí s jeho vstupem. Vrátíte jej volbou %1 v nabídce monitoru.</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Zpět na %1</translation>
    </message>
    <message>
        <source>Turn on shortcuts</source>
        <translation>Zapnout zkratky</translation>
    </message>
</context>
<context>
    <name>PipOptions</name>
    <message>
        <source>Sub size</source>
        <translation>Velikost okna</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Malá</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Střední</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Velká</translation>
    </message>
    <message>
        <source>Sub position</source>
        <translation>Umístění okna</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Vpravo nahoře</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>Vlevo nahoře</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Vpravo dole</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Vlevo dole</translation>
    </message>
</context>
<context>
    <name>PipPbpPage</name>
    <message>
        <source>Picture in picture</source>
        <translation>Obraz v obraze</translation>
    </message>
    <message>
        <source>Half and half</source>
        <translation>Půl na půl</translation>
    </message>
    <message>
        <source>Four windows</source>
        <translation>Čtyři okna</translation>
    </message>
    <message>
        <source>16 : 9 and 9 : 5</source>
        <translation>16 : 9 a 9 : 5</translation>
    </message>
    <message>
        <source>Two to one</source>
        <translation>Dvě ku jedné</translation>
    </message>
    <message>
        <source>Three to one</source>
        <translation>Tři ku jedné</translation>
    </message>
    <message>
        <source>Audio Source</source>
        <translation>Zdroj zvuku</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Vlevo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Vpravo</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Prohodit</translation>
    </message>
</context>
<context>
    <name>TwoWindows</name>
    <message>
        <source>Main:</source>
        <translation>Hlavní:</translation>
    </message>
    <message>
        <source>Sub:</source>
        <translation>Vedlejší:</translation>
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
        <translation>Vlevo:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Vpravo:</translation>
    </message>
</context>
<context>
    <name>LuBrightnessWidget</name>
    <message>
        <source>Brightness</source>
        <translation>Jas</translation>
    </message>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Barevný režim / Jas</translation>
    </message>
</context>
<context>
    <name>BrightnessPage</name>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Barevný režim / Jas</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Barevný režim</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Jas</translation>
    </message>
    <message>
        <source>Software Dimming</source>
        <translation>Softwarové ztlumení</translation>
    </message>
    <message>
        <source>Darkens the picture below the lowest brightness of the monitor. Ambient brightness functions switch it off for as long as they run.</source>
        <translation>Ztmaví obraz pod nejnižší jas monitoru. Funkce podle okolního světla ji po dobu svého běhu vypínají.</translation>
    </message>
    <message>
        <source>Brightness Sync</source>
        <translation>Synchronizace jasu</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Ostrost</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Odstín</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sytost</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gama</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Barevný prostor</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Rovnoměrnost</translation>
    </message>
    <message>
        <source>Reset Color</source>
        <translation>Obnovit barvy</translation>
    </message>
</context>
<context>
    <name>BrightnessSliders</name>
    <message>
        <source>Software Dimming</source>
        <translation>Softwarové ztlumení</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Jas</translation>
    </message>
</context>
<context>
    <name>ColorModeChoice</name>
    <message>
        <source>Color Mode</source>
        <translation>Barevný režim</translation>
    </message>
</context>
<context>
    <name>ColorTemperatureControls</name>
    <message>
        <source>Color Temperature</source>
        <translation>Teplota barev</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Červená</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Zelená</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Modrá</translation>
    </message>
</context>
<context>
    <name>AxisControls</name>
    <message>
        <source>Red</source>
        <translation>Červená</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Žlutá</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Zelená</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Azurová</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Modrá</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Purpurová</translation>
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
        <translation>Jas</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Ostrost</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Teplota barev</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Odstín</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sytost</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gama</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Barevný prostor</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Rovnoměrnost</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Redukce modrého světla</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Ochrana v noci</translation>
    </message>
    <message>
        <source>Ambient brightness</source>
        <translation>Jas podle okolí</translation>
    </message>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Vázáno na barevný režim</translation>
    </message>
    <message>
        <source>Stored for each color mode: %1.</source>
        <translation>Ukládá se pro každý barevný režim: %1.</translation>
    </message>
</context>
<context>
    <name>LuBuiltInBrightnessWidget</name>
    <message>
        <source>Built-in brightness</source>
        <translation>Jas vestavěného displeje</translation>
    </message>
</context>
<context>
    <name>LuColorWeaknessWidget</name>
    <message>
        <source>Color Weakness</source>
        <translation>Porucha barvocitu</translation>
    </message>
    <message>
        <source>Red: %1</source>
        <translation>Červená: %1</translation>
    </message>
    <message>
        <source>Green: %1</source>
        <translation>Zelená: %1</translation>
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
        <translation>HDR je kvůli nastavení měřítka macOS dočasně nedostupné. Zkuste vypnout HiDPI nebo snížit rozlišení.</translation>
    </message>
    <message>
        <source>This monitor has no HDR mode to switch to.</source>
        <translation>Tento monitor nemá režim HDR, na který by šlo přepnout.</translation>
    </message>
</context>
<context>
    <name>LuPopupColorModeAction</name>
    <message>
        <source>Color Mode</source>
        <translation>Barevný režim</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Jas</translation>
    </message>
</context>
<context>
    <name>LuPopupBrightnessShortcut</name>
    <message>
        <source>Brightness</source>
        <translation>Jas</translation>
    </message>
</context>
<context>
    <name>LuPopupIccSyncHint</name>
    <message>
        <source>Color Sync</source>
        <translation>Synchronizace barev</translation>
    </message>
    <message>
        <source>The color profile of the desktop now follows the color mode of this monitor.</source>
        <translation>Barevný profil plochy se nyní řídí barevným režimem tohoto monitoru.</translation>
    </message>
</context>
<context>
    <name>PackageStrings</name>
    <message>
        <source>Coding - Light Theme</source>
        <translation>Kódování – světlý motiv</translation>
    </message>
    <message>
        <source>Coding - Dark Theme</source>
        <translation>Kódování – tmavý motiv</translation>
    </message>
    <message>
        <source>Coding - Paper Color</source>
        <translation>Kódování – barva papíru</translation>
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
        <translation>Hra</translation>
    </message>
    <message>
        <source>ePaper</source>
        <translation>ePaper</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Uživatel</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normální</translation>
    </message>
    <message>
        <source>Bluish</source>
        <translation>Namodralá</translation>
    </message>
    <message>
        <source>Reddish</source>
        <translation>Načervenalá</translation>
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
        <translation>O funkci %1</translation>
    </message>
    <message>
        <source>To meet individual preferences, %1 allows manual control of screen brightness. It learns and records your last adjustment, applying it to optimize its automatic brightness adjustment curve to better match your preferences.</source>
        <translation>Aby vyhovovala osobním zvyklostem, umožňuje funkce %1 ruční nastavení jasu. Zapamatuje si vaši poslední úpravu a podle ní přizpůsobí křivku automatického jasu.</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parametr</translation>
    </message>
    <message>
        <source>Brightness + Color Temperature</source>
        <translation>Jas + teplota barev</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Jas</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>Měřič světla</translation>
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
        <translation>Měřič světla</translation>
    </message>
</context>
<context>
    <name>SensitivitySlider</name>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Citlivost senzoru</translation>
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
        <translation>Automatické stmívání</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Zapnuto</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Vypnuto</translation>
    </message>
</context>
<context>
    <name>BackLightControls</name>
    <message>
        <source>Brightness</source>
        <translation>Jas</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Teplota barev</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Režim světla</translation>
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
        <translation>Automatické stmívání upravuje jas BackGlow podle okolního světla a v šeru tak chrání oči. Lze je použít, jen když je zapnuto A.B. Gen2.</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Svázání s barevným režimem</translation>
    </message>
    <message>
        <source>The system will automatically switch to the bundled BackGlow settings when you change the color mode.</source>
        <translation>Při změně barevného režimu se samo přepne na nastavení BackGlow, které k němu patří.</translation>
    </message>
    <message>
        <source>Non-stop Mode</source>
        <translation>Nepřetržitý režim</translation>
    </message>
    <message>
        <source>To activate BackGlow while the monitor is in sleep mode, you can enable the non-stop mode.</source>
        <translation>Má-li BackGlow svítit i v režimu spánku monitoru, zapněte nepřetržitý režim.</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Více</translation>
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
        <translation>Blízko</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Středně</translation>
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
        <translation>Ztlumit monitor po době nečinnosti.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Režim</translation>
    </message>
    <message>
        <source>Display + BackGlow</source>
        <translation>Obraz + BackGlow</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Obraz</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Citlivost senzoru</translation>
    </message>
    <message>
        <source>EcoPrivacy helps protect your screen privacy and dims your monitor after inactivity through your built-in monitor sensor.</source>
        <translation>EcoPrivacy chrání soukromí na obrazovce a při nečinnosti ztlumí monitor pomocí vestavěného senzoru.</translation>
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
        <translation>Citlivost senzoru</translation>
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
        <translation>Měřič světla</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Zapnuto</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Vypnuto</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Citlivost senzoru</translation>
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
        <translation>Jas</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Teplota barev</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Režim světla</translation>
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
        <translation>Ztlumit monitor po %1</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Citlivost senzoru</translation>
    </message>
</context>
<context>
    <name>LuShortcutsWidget</name>
    <message>
        <source>Shortcuts</source>
        <translation>Klávesové zkratky</translation>
    </message>
    <message>
        <source>The key combination can not be used.</source>
        <translation>Tuto kombinaci kláves nelze použít.</translation>
    </message>
    <message>
        <source>This shortcut cannot be used as it is currently being used by another function.</source>
        <translation>Tuto zkratku nelze použít, protože ji právě používá jiná funkce.</translation>
    </message>
    <message>
        <source>Reset All Shortcuts</source>
        <translation>Obnovit všechny zkratky</translation>
    </message>
    <message>
        <source>To reset your keyboard shortcuts, click on the 'Reset' button below. Once confirmed, the app will immediately restore the default settings.</source>
        <translation>Chcete-li obnovit klávesové zkratky, klikněte níže na „Obnovit“. Po potvrzení aplikace ihned vrátí výchozí nastavení.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Obnovit</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
</context>
<context>
    <name>ShortcutRows</name>
    <message>
        <source>Input</source>
        <translation>Vstup</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Režim barev</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Jas</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Hlasitost</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Ochrana v noci</translation>
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
        <translation>Další kopírování a vkládání</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>Snížit</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>Zvýšit</translation>
    </message>
    <message>
        <source>TurnOn/Off</source>
        <translation>Zapnout/vypnout</translation>
    </message>
    <message>
        <source>Loop all KVM switch</source>
        <translation>Přepínat všechny vstupy KVM</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopírovat</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Vložit</translation>
    </message>
    <message>
        <source>This function supports image, text, file, and URL formats. Copying other types of content may impact the content of the clipboard.</source>
        <translation>Tato funkce podporuje obrázky, text, soubory a adresy URL. Kopírování jiného obsahu může ovlivnit obsah schránky.</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <translation>Přepnout na %1</translation>
    </message>
    <message>
        <source>Loop all color mode</source>
        <translation>Přepínat všechny režimy barev</translation>
    </message>
    <message>
        <source>Loop all Audio Mode</source>
        <translation>Přepínat všechny režimy zvuku</translation>
    </message>
    <message>
        <source>Loop all speaker output</source>
        <translation>Přepínat všechny reproduktory</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Ztlumit</translation>
    </message>
</context>
<context>
    <name>LuVolumeWidget</name>
    <message>
        <source>Audio</source>
        <translation>Zvuk</translation>
    </message>
    <message>
        <source>Volume can be adjusted in main page at anytime. You can also expand the menu to choose the audio source.</source>
        <translation>Hlasitost lze kdykoli upravit na hlavní stránce. Rozbalením nabídky můžete také vybrat zdroj zvuku.</translation>
    </message>
    <message>
        <source>iKeyboard Control</source>
        <translation>Ovládání iKeyboard</translation>
    </message>
    <message>
        <source>Enable iKeyboard Control to use the F11/F12 volume keys on Mac keyboard to adjust the volume of the selected audio output.</source>
        <translation>Zapněte ovládání iKeyboard a klávesami hlasitosti F11/F12 na klávesnici Mac upravujte hlasitost vybraného zvukového výstupu.</translation>
    </message>
</context>
<context>
    <name>AudioModeChoice</name>
    <message>
        <source>Audio Mode</source>
        <translation>Režim zvuku</translation>
    </message>
</context>
<context>
    <name>Equaliser</name>
    <message>
        <source>Equalizer Setting</source>
        <translation>Nastavení ekvalizéru</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>OBNOVIT</translation>
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
        <translation>Výstup</translation>
    </message>
    <message>
        <source>Sound Settings</source>
        <translation>Nastavení zvuku</translation>
    </message>
</context>
<context>
    <name>VolumePage</name>
    <message>
        <source>Volume</source>
        <translation>Hlasitost</translation>
    </message>
    <message>
        <source>System's volume</source>
        <translation>Hlasitost systému</translation>
    </message>
    <message>
        <source>Audio Mode</source>
        <translation>Režim zvuku</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Výstup</translation>
    </message>
    <message>
        <source>The volume of this monitor can be set while the system plays through it.</source>
        <translation>Hlasitost tohoto monitoru lze nastavit, když přes něj systém přehrává.</translation>
    </message>
</context>
<context>
    <name>LuPopupVolumeShortcut</name>
    <message>
        <source>Volume</source>
        <translation>Hlasitost</translation>
    </message>
</context>
<context>
    <name>LuPopupVolumeAction</name>
    <message>
        <source>Audio</source>
        <translation>Zvuk</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Hlasitost</translation>
    </message>
    <message>
        <source>Audio Mode :</source>
        <translation>Režim zvuku:</translation>
    </message>
</context>
<context>
    <name>Walkthrough</name>
    <message>
        <source>BackGlow Auto-dimming</source>
        <translation>BackGlow: automatické stmívání</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Ochrana v noci</translation>
    </message>
    <message>
        <source>The light behind your monitor dims with the room, so that your eyes stay at ease.</source>
        <translation>Světlo za monitorem se tlumí spolu s místností, aby vaše oči zůstaly v klidu.</translation>
    </message>
    <message>
        <source>After dark the picture turns darker than the lowest brightness, without losing its details.</source>
        <translation>Po setmění obraz ztmavne pod nejnižší jas, aniž by ztratil podrobnosti.</translation>
    </message>
</context>
</TS>
