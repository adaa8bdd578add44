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
</TS>
