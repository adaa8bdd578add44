<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>FourWindows</name>
    <message>
        <source>Upper left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Unten rechts</translation>
    </message>
</context>
<context>
    <name>KvmPage</name>
    <message>
        <source>Current Device Location</source>
        <translation>Standort dieses Geräts</translation>
    </message>
    <message>
        <source>Connected to the other computer</source>
        <translation>Mit dem anderen Computer verbunden</translation>
    </message>
    <message>
        <source>Connect the other computer</source>
        <translation>Anderen Computer verbinden</translation>
    </message>
</context>
<context>
    <name>KvmPorts</name>
    <message>
        <source>Auto Switch</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>USB-C Upstream</source>
        <translation>USB-C-Upstream</translation>
    </message>
    <message>
        <source>USB-B Upstream</source>
        <translation>USB-B-Upstream</translation>
    </message>
    <message>
        <source>TBT Upstream</source>
        <translation>TBT-Upstream</translation>
    </message>
</context>
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Lokaler Kontrast</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>KI-Kontrast</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Automatische Drehung</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Bildschirmdrehung</translation>
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
        <translation>Ein Kabel verbindet einfach alle Ihre Monitore.</translation>
    </message>
    <message>
        <source>About Daisy Chain (MST)</source>
        <translation>Über Daisy Chain (MST)</translation>
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
        <translation>Haupt: </translation>
    </message>
    <message>
        <source>Left: </source>
        <translation>Links: </translation>
    </message>
    <message>
        <source>Sub: </source>
        <translation>Neben: </translation>
    </message>
    <message>
        <source>Right: </source>
        <translation>Rechts: </translation>
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
        <translation>Links:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Rechts:</translation>
    </message>
</context>
<context>
    <name>LuInputSourceWidget</name>
    <message>
        <source>Input source</source>
        <translation>Eingangsquelle</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>Built-in</source>
        <translation>Eingebaut</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
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
        <translation>Möchten Sie den PBP-Modus und %1 ausschalten?</translation>
    </message>
    <message>
        <source>%1 only works in PBP mode. If you choose to turn off PBP mode, %1 will be disabled as well.</source>
        <translation>%1 arbeitet nur im PBP-Modus. Wenn Sie den PBP-Modus ausschalten, wird auch %1 ausgeschaltet.</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Bildschirmdrehung</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Blaulichtfilter Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Blaulichtfilter</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>Außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>Stellen Sie den Sonnenaufgang zwischen 00:00 und 11:59 und den Sonnenuntergang zwischen 12:00 und 23:59 ein.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Zirkadianer Modus</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Auf- bis Untergang</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Sonnenaufgang</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Sonnenuntergang</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>Der Filter folgt der Sonne an Ihrem Ort. Stufe %1 bis %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>Wegen einer instabilen Internetverbindung oder anderer Probleme konnten die Sonnenzeiten nicht empfangen werden. Bitte wechseln Sie in den manuellen Modus.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Wetterdaten von</translation>
    </message>
    <message>
        <source>Set your location</source>
        <translation>Standort festlegen</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Stufe im Tagesverlauf</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Blaulichtfilter Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Blaulichtfilter</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Zirkadianer Modus</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Auf- bis Untergang</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nachtschutz</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>Die Automatik schaltet den Nachtschutz nach dem Umgebungslicht ein und aus und schont so die Augen ohne Ihr Zutun.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
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
        <translation>Smart KVM Basic ist eingeschaltet</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Möchten Sie in den PBP-Modus wechseln?</translation>
    </message>
    <message>
        <source>Smart KVM Basic works only in PBP Mode. Turning off PBP Mode will also disable Smart KVM Basic.</source>
        <translation>Smart KVM Basic arbeitet nur im PBP-Modus. Mit dem PBP-Modus wird auch Smart KVM Basic ausgeschaltet.</translation>
    </message>
    <message>
        <source>Smart KVM Basic</source>
        <translation>Smart KVM Basic</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Orvane Smart KVM Basic makes multitasking effortless - use one keyboard and mouse to control two computers. With automatic switching when your cursor crosses the screen edge, you can work seamlessly across systems. Just install Lumen Desk 2 on both devices and enable PBP Mode to get started.</source>
        <translation>Orvane Smart KVM Basic macht Multitasking mühelos: Steuern Sie zwei Computer mit einer Tastatur und einer Maus. Überquert der Zeiger den Bildschirmrand, wird automatisch umgeschaltet. Installieren Sie Lumen Desk 2 auf beiden Geräten und schalten Sie den PBP-Modus ein.</translation>
    </message>
</context>
<context>
    <name>LuSmartKvmWidget</name>
    <message>
        <source>Driver installation is required</source>
        <translation>Treiber muss installiert werden</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Suche läuft</translation>
    </message>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Smart KVM Enabled</source>
        <translation>Smart KVM eingeschaltet</translation>
    </message>
    <message>
        <source>Driver installation is required.</source>
        <translation>Treiber muss installiert werden.</translation>
    </message>
    <message>
        <source>Smart KVM requires your permission to install its driver. Would you like to install it now?</source>
        <translation>Smart KVM benötigt Ihre Erlaubnis, um seinen Treiber zu installieren. Jetzt installieren?</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Möchten Sie in den PBP-Modus wechseln?</translation>
    </message>
    <message>
        <source>Smart KVM only works in PBP mode. If you'd like to continue using Smart KVM, we can switch to PBP mode for you.</source>
        <translation>Smart KVM arbeitet nur im PBP-Modus. Wenn Sie Smart KVM weiter nutzen möchten, wechseln wir für Sie in den PBP-Modus.</translation>
    </message>
    <message>
        <source>Smart KVM</source>
        <translation>Smart KVM</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nachtschutz</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nachtschutz</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
</context>
<context>
    <name>PictureGoneNote</name>
    <message>
        <source>This computer's picture goes away with its input. %1 brings it back.</source>
        <translation>Das Bild dieses Computers verschwindet mit seinem Eingang. %1 holt es zurück.</translation>
    </message>
    <message>
        <source>This computer's picture goes away with its input. Choose %1 in the monitor's menu to bring it back.</source>
        <translation>Das Bild dieses Computers verschwindet mit seinem Eingang. Wählen Sie im Menü des Monitors %1, um es zurückzuholen.</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Zurück zu %1</translation>
    </message>
    <message>
        <source>Turn on shortcuts</source>
        <translation>Tastenkürzel einschalten</translation>
    </message>
</context>
<context>
    <name>PipOptions</name>
    <message>
        <source>Sub size</source>
        <translation>Größe des Fensters</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Klein</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Groß</translation>
    </message>
    <message>
        <source>Sub position</source>
        <translation>Lage des Fensters</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Unten links</translation>
    </message>
</context>
<context>
    <name>PipPbpPage</name>
    <message>
        <source>Picture in picture</source>
        <translation>Bild im Bild</translation>
    </message>
    <message>
        <source>Half and half</source>
        <translation>Halb und halb</translation>
    </message>
    <message>
        <source>Four windows</source>
        <translation>Vier Fenster</translation>
    </message>
    <message>
        <source>16 : 9 and 9 : 5</source>
        <translation>16 : 9 und 9 : 5</translation>
    </message>
    <message>
        <source>Two to one</source>
        <translation>Zwei zu eins</translation>
    </message>
    <message>
        <source>Three to one</source>
        <translation>Drei zu eins</translation>
    </message>
    <message>
        <source>Audio Source</source>
        <translation>Tonquelle</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Tauschen</translation>
    </message>
</context>
<context>
    <name>TwoWindows</name>
    <message>
        <source>Main:</source>
        <translation>Haupt:</translation>
    </message>
    <message>
        <source>Sub:</source>
        <translation>Neben:</translation>
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
        <translation>Links:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Rechts:</translation>
    </message>
</context>
<context>
    <name>LuBrightnessWidget</name>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Farbmodus / Helligkeit</translation>
    </message>
</context>
<context>
    <name>BrightnessPage</name>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Farbmodus / Helligkeit</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Farbmodus</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Software Dimming</source>
        <translation>Software-Dimmung</translation>
    </message>
    <message>
        <source>Darkens the picture below the lowest brightness of the monitor. Ambient brightness functions switch it off for as long as they run.</source>
        <translation>Verdunkelt das Bild unter die geringste Helligkeit des Monitors. Umgebungslicht-Funktionen schalten sie aus, solange sie laufen.</translation>
    </message>
    <message>
        <source>Brightness Sync</source>
        <translation>Helligkeit koppeln</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Schärfe</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Farbraum</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Gleichmäßigkeit</translation>
    </message>
    <message>
        <source>Reset Color</source>
        <translation>Farben zurücksetzen</translation>
    </message>
</context>
<context>
    <name>BrightnessSliders</name>
    <message>
        <source>Software Dimming</source>
        <translation>Software-Dimmung</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
</context>
<context>
    <name>ColorModeChoice</name>
    <message>
        <source>Color Mode</source>
        <translation>Farbmodus</translation>
    </message>
</context>
<context>
    <name>ColorTemperatureControls</name>
    <message>
        <source>Color Temperature</source>
        <translation>Farbtemperatur</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
</context>
<context>
    <name>AxisControls</name>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
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
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Schärfe</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Farbtemperatur</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Farbraum</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Gleichmäßigkeit</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Blaulichtfilter</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nachtschutz</translation>
    </message>
    <message>
        <source>Ambient brightness</source>
        <translation>Umgebungslicht</translation>
    </message>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>An den Farbmodus gebunden</translation>
    </message>
    <message>
        <source>Stored for each color mode: %1.</source>
        <translation>Je Farbmodus gespeichert: %1.</translation>
    </message>
</context>
<context>
    <name>LuBuiltInBrightnessWidget</name>
    <message>
        <source>Built-in brightness</source>
        <translation>Interne Helligkeit</translation>
    </message>
</context>
<context>
    <name>LuColorWeaknessWidget</name>
    <message>
        <source>Color Weakness</source>
        <translation>Farb­schwäche</translation>
    </message>
    <message>
        <source>Red: %1</source>
        <translation>Rot: %1</translation>
    </message>
    <message>
        <source>Green: %1</source>
        <translation>Grün: %1</translation>
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
        <translation>Wegen der Skalierung in macOS ist HDR vorübergehend nicht verfügbar. Schalten Sie HiDPI aus oder wählen Sie eine geringere Auflösung.</translation>
    </message>
    <message>
        <source>This monitor has no HDR mode to switch to.</source>
        <translation>Dieser Monitor hat keinen HDR-Modus.</translation>
    </message>
</context>
<context>
    <name>LuPopupColorModeAction</name>
    <message>
        <source>Color Mode</source>
        <translation>Farbmodus</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
</context>
<context>
    <name>LuPopupBrightnessShortcut</name>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
</context>
<context>
    <name>LuPopupIccSyncHint</name>
    <message>
        <source>Color Sync</source>
        <translation>Farbabgleich</translation>
    </message>
    <message>
        <source>The color profile of the desktop now follows the color mode of this monitor.</source>
        <translation>Das Farbprofil des Desktops folgt jetzt dem Farbmodus dieses Monitors.</translation>
    </message>
</context>
<context>
    <name>PackageStrings</name>
    <message>
        <source>Coding - Light Theme</source>
        <translation>Programmieren – Hell</translation>
    </message>
    <message>
        <source>Coding - Dark Theme</source>
        <translation>Programmieren – Dunkel</translation>
    </message>
    <message>
        <source>Coding - Paper Color</source>
        <translation>Programmieren – Papier</translation>
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
        <translation>Spiel</translation>
    </message>
    <message>
        <source>ePaper</source>
        <translation>ePaper</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Bluish</source>
        <translation>Bläulich</translation>
    </message>
    <message>
        <source>Reddish</source>
        <translation>Rötlich</translation>
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
        <translation>Über %1</translation>
    </message>
    <message>
        <source>To meet individual preferences, %1 allows manual control of screen brightness. It learns and records your last adjustment, applying it to optimize its automatic brightness adjustment curve to better match your preferences.</source>
        <translation>%1 lässt die Helligkeit auch von Hand einstellen. Ihre letzte Einstellung wird gelernt und gespeichert und passt die automatische Helligkeitskurve besser an Ihre Vorlieben an.</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Brightness + Color Temperature</source>
        <translation>Helligkeit + Farbtemperatur</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>Lichtmesser</translation>
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
        <translation>Lichtmesser</translation>
    </message>
</context>
<context>
    <name>SensitivitySlider</name>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensorempfindlichkeit</translation>
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
        <translation>Automatisch dimmen</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
</context>
<context>
    <name>BackLightControls</name>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Farbtemperatur</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Lichtmodus</translation>
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
        <translation>Automatisch dimmen passt die Helligkeit von BackGlow an das Umgebungslicht an und schont die Augen bei wenig Licht. Es ist nur verfügbar, wenn A.B. Gen2 eingeschaltet ist.</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Bindung an den Farbmodus</translation>
    </message>
    <message>
        <source>The system will automatically switch to the bundled BackGlow settings when you change the color mode.</source>
        <translation>Beim Wechsel des Farbmodus werden die zugehörigen BackGlow-Einstellungen übernommen.</translation>
    </message>
    <message>
        <source>Non-stop Mode</source>
        <translation>Dauerbetrieb</translation>
    </message>
    <message>
        <source>To activate BackGlow while the monitor is in sleep mode, you can enable the non-stop mode.</source>
        <translation>Soll BackGlow auch im Ruhezustand des Monitors leuchten, schalten Sie den Dauerbetrieb ein.</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
</context>
<context>
    <name>EcoPrivacyTexts</name>
    <message>
        <source>5 sec.</source>
        <translation>5 Sek.</translation>
    </message>
    <message>
        <source>10 sec.</source>
        <translation>10 Sek.</translation>
    </message>
    <message>
        <source>20 sec.</source>
        <translation>20 Sek.</translation>
    </message>
    <message>
        <source>30 sec.</source>
        <translation>30 Sek.</translation>
    </message>
    <message>
        <source>60 sec.</source>
        <translation>60 Sek.</translation>
    </message>
    <message>
        <source>5 min.</source>
        <translation>5 Min.</translation>
    </message>
    <message>
        <source>10 min.</source>
        <translation>10 Min.</translation>
    </message>
    <message>
        <source>Near</source>
        <translation>Nah</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>Fern</translation>
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
        <translation>Monitor bei Inaktivität abdunkeln.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Display + BackGlow</source>
        <translation>Bildschirm + BackGlow</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensorempfindlichkeit</translation>
    </message>
    <message>
        <source>EcoPrivacy helps protect your screen privacy and dims your monitor after inactivity through your built-in monitor sensor.</source>
        <translation>EcoPrivacy schützt Ihre Privatsphäre am Bildschirm und dunkelt den Monitor bei Abwesenheit über den eingebauten Sensor ab.</translation>
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
        <translation>Sensorempfindlichkeit</translation>
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
        <translation>Lichtmesser</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensorempfindlichkeit</translation>
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
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Farbtemperatur</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Lichtmodus</translation>
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
        <translation>Monitor nach %1 abdunkeln</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensorempfindlichkeit</translation>
    </message>
</context>
<context>
    <name>LuShortcutsWidget</name>
    <message>
        <source>Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>The key combination can not be used.</source>
        <translation>Diese Tastenkombination kann nicht verwendet werden.</translation>
    </message>
    <message>
        <source>This shortcut cannot be used as it is currently being used by another function.</source>
        <translation>Dieses Tastenkürzel kann nicht verwendet werden, weil es bereits für eine andere Funktion steht.</translation>
    </message>
    <message>
        <source>Reset All Shortcuts</source>
        <translation>Alle Tastenkürzel zurücksetzen</translation>
    </message>
    <message>
        <source>To reset your keyboard shortcuts, click on the 'Reset' button below. Once confirmed, the app will immediately restore the default settings.</source>
        <translation>Um die Tastenkürzel zurückzusetzen, klicken Sie unten auf „Zurücksetzen“. Nach der Bestätigung stellt die App sofort die Standardeinstellungen wieder her.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ShortcutRows</name>
    <message>
        <source>Input</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Farbmodus</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nachtschutz</translation>
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
        <translation>Zusätzliches Kopieren/Einfügen</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>Verringern</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>Erhöhen</translation>
    </message>
    <message>
        <source>TurnOn/Off</source>
        <translation>Ein-/Ausschalten</translation>
    </message>
    <message>
        <source>Loop all KVM switch</source>
        <translation>Alle KVM-Anschlüsse durchschalten</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>This function supports image, text, file, and URL formats. Copying other types of content may impact the content of the clipboard.</source>
        <translation>Diese Funktion unterstützt Bilder, Text, Dateien und Adressen. Das Kopieren anderer Inhalte kann den Inhalt der Zwischenablage beeinflussen.</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <translation>Zu %1 wechseln</translation>
    </message>
    <message>
        <source>Loop all color mode</source>
        <translation>Alle Farbmodi durchschalten</translation>
    </message>
    <message>
        <source>Loop all Audio Mode</source>
        <translation>Alle Audiomodi durchschalten</translation>
    </message>
    <message>
        <source>Loop all speaker output</source>
        <translation>Alle Lautsprecher durchschalten</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
</context>
<context>
    <name>LuVolumeWidget</name>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Volume can be adjusted in main page at anytime. You can also expand the menu to choose the audio source.</source>
        <translation>Die Lautstärke lässt sich jederzeit auf der Hauptseite einstellen. Im aufgeklappten Menü wählen Sie auch die Audioquelle.</translation>
    </message>
    <message>
        <source>iKeyboard Control</source>
        <translation>iKeyboard-Steuerung</translation>
    </message>
    <message>
        <source>Enable iKeyboard Control to use the F11/F12 volume keys on Mac keyboard to adjust the volume of the selected audio output.</source>
        <translation>Mit der iKeyboard-Steuerung regeln die Lautstärketasten F11/F12 der Mac-Tastatur die Lautstärke der gewählten Audioausgabe.</translation>
    </message>
</context>
<context>
    <name>AudioModeChoice</name>
    <message>
        <source>Audio Mode</source>
        <translation>Audiomodus</translation>
    </message>
</context>
<context>
    <name>Equaliser</name>
    <message>
        <source>Equalizer Setting</source>
        <translation>Equalizer-Einstellung</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>ZURÜCKSETZEN</translation>
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
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>Sound Settings</source>
        <translation>Toneinstellungen</translation>
    </message>
</context>
<context>
    <name>VolumePage</name>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>System's volume</source>
        <translation>Systemlautstärke</translation>
    </message>
    <message>
        <source>Audio Mode</source>
        <translation>Audiomodus</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>The volume of this monitor can be set while the system plays through it.</source>
        <translation>Die Lautstärke dieses Monitors lässt sich einstellen, solange das System über ihn wiedergibt.</translation>
    </message>
</context>
<context>
    <name>LuPopupVolumeShortcut</name>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
</context>
<context>
    <name>LuPopupVolumeAction</name>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Audio Mode :</source>
        <translation>Audiomodus:</translation>
    </message>
</context>
<context>
    <name>Walkthrough</name>
    <message>
        <source>BackGlow Auto-dimming</source>
        <translation>BackGlow: Automatisch dimmen</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nachtschutz</translation>
    </message>
    <message>
        <source>The light behind your monitor dims with the room, so that your eyes stay at ease.</source>
        <translation>Das Licht hinter Ihrem Monitor dimmt sich mit dem Raum, damit Ihre Augen entspannt bleiben.</translation>
    </message>
    <message>
        <source>After dark the picture turns darker than the lowest brightness, without losing its details.</source>
        <translation>Nach Einbruch der Dunkelheit wird das Bild dunkler als die niedrigste Helligkeit, ohne Details zu verlieren.</translation>
    </message>
</context>
</TS>
