<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>FourWindows</name>
    <message>
        <source>Upper left</source>
        <translation>Linksboven</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Rechtsboven</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Linksonder</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Rechtsonder</translation>
    </message>
</context>
<context>
    <name>KvmPage</name>
    <message>
        <source>Current Device Location</source>
        <translation>Plaats van dit apparaat</translation>
    </message>
    <message>
        <source>Connected to the other computer</source>
        <translation>Verbonden met de andere computer</translation>
    </message>
    <message>
        <source>Connect the other computer</source>
        <translation>De andere computer verbinden</translation>
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
        <translation>USB-C-upstream</translation>
    </message>
    <message>
        <source>USB-B Upstream</source>
        <translation>USB-B-upstream</translation>
    </message>
    <message>
        <source>TBT Upstream</source>
        <translation>TBT-upstream</translation>
    </message>
</context>
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Lokaal contrast</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>AI-contrast</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Automatisch draaien</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Schermrotatie</translation>
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
        <translation>Eén kabel verbindt eenvoudig al uw monitoren.</translation>
    </message>
    <message>
        <source>About Daisy Chain (MST)</source>
        <translation>Over Daisy Chain (MST)</translation>
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
        <translation>Hoofd: </translation>
    </message>
    <message>
        <source>Left: </source>
        <translation>Links: </translation>
    </message>
    <message>
        <source>Sub: </source>
        <translation>Sub: </translation>
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
        <translation>Ingangsbron</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Ingang</translation>
    </message>
    <message>
        <source>Built-in</source>
        <translation>Ingebouwd</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Onbekend</translation>
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
        <translation>Wilt u de PBP-modus en %1 uitschakelen?</translation>
    </message>
    <message>
        <source>%1 only works in PBP mode. If you choose to turn off PBP mode, %1 will be disabled as well.</source>
        <translation>%1 werkt alleen in de PBP-modus. Als u de PBP-modus uitschakelt, wordt %1 ook uitgeschakeld.</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Draaien</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Schermrotatie</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Weinig blauw licht Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Weinig blauw licht</translation>
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
        <translation>Buiten bereik</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>Stel zonsopgang in tussen 00:00 en 11:59 en zonsondergang tussen 12:00 en 23:59.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Circadiaanse modus</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Zonsop- tot -ondergang</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handmatig</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Zonsopgang</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Zonsondergang</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>Het filter volgt de zon waar u bent. Niveau %1 tot %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>Door een instabiele internetverbinding of een ander probleem zijn de zonnetijden niet ontvangen. Schakel over naar de handmatige modus.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Weergegevens van</translation>
    </message>
    <message>
        <source>Set your location</source>
        <translation>Uw locatie instellen</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Niveau door de dag</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Weinig blauw licht Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Weinig blauw licht</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Circadiaanse modus</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handmatig</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Zonsop- tot -ondergang</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nacht­bescherming</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>Automatisch schakelen zet de nachtbescherming aan en uit op basis van het omgevingslicht, zodat uw ogen altijd ontzien worden.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
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
        <translation>Smart KVM Basic is ingeschakeld</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Wilt u naar de PBP-modus overschakelen?</translation>
    </message>
    <message>
        <source>Smart KVM Basic works only in PBP Mode. Turning off PBP Mode will also disable Smart KVM Basic.</source>
        <translation>Smart KVM Basic werkt alleen in de PBP-modus. Als u de PBP-modus uitschakelt, wordt Smart KVM Basic ook uitgeschakeld.</translation>
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
        <translation>Orvane Smart KVM Basic maakt multitasken moeiteloos: bedien twee computers met één toetsenbord en muis. Er wordt automatisch omgeschakeld als de cursor over de schermrand gaat. Installeer Lumen Desk 2 op beide apparaten en schakel de PBP-modus in.</translation>
    </message>
</context>
<context>
    <name>LuSmartKvmWidget</name>
    <message>
        <source>Driver installation is required</source>
        <translation>Stuurprogramma moet worden geïnstalleerd</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbonden</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Smart KVM Enabled</source>
        <translation>Smart KVM ingeschakeld</translation>
    </message>
    <message>
        <source>Driver installation is required.</source>
        <translation>Stuurprogramma moet worden geïnstalleerd.</translation>
    </message>
    <message>
        <source>Smart KVM requires your permission to install its driver. Would you like to install it now?</source>
        <translation>Smart KVM heeft uw toestemming nodig om zijn stuurprogramma te installeren. Nu installeren?</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Wilt u naar de PBP-modus overschakelen?</translation>
    </message>
    <message>
        <source>Smart KVM only works in PBP mode. If you'd like to continue using Smart KVM, we can switch to PBP mode for you.</source>
        <translation>Smart KVM werkt alleen in de PBP-modus. Wilt u het blijven gebruiken, dan schakelen we voor u over naar de PBP-modus.</translation>
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
        <translation>Boven</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Onder</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nachtbescherming</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Aan</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Uit</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nachtbescherming</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
</context>
<context>
    <name>PictureGoneNote</name>
    <message>
        <source>This computer's picture goes away with its input. %1 brings it back.</source>
        <translation>Het beeld van deze computer verdwijnt met zijn ingang. %1 haalt het terug.</translation>
    </message>
    <message>
        <source>This computer's picture goes away with its input. Choose %1 in the monitor's menu to bring it back.</source>
        <translation>Het beeld van deze computer verdwijnt met zijn ingang. Kies %1 in het menu van de monitor om het terug te halen.</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Terug naar %1</translation>
    </message>
    <message>
        <source>Turn on shortcuts</source>
        <translation>Sneltoetsen inschakelen</translation>
    </message>
</context>
<context>
    <name>PipOptions</name>
    <message>
        <source>Sub size</source>
        <translation>Grootte venster</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Klein</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Middel</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Groot</translation>
    </message>
    <message>
        <source>Sub position</source>
        <translation>Plaats venster</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Rechtsboven</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>Linksboven</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Rechtsonder</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Linksonder</translation>
    </message>
</context>
<context>
    <name>PipPbpPage</name>
    <message>
        <source>Picture in picture</source>
        <translation>Beeld in beeld</translation>
    </message>
    <message>
        <source>Half and half</source>
        <translation>Half om half</translation>
    </message>
    <message>
        <source>Four windows</source>
        <translation>Vier vensters</translation>
    </message>
    <message>
        <source>16 : 9 and 9 : 5</source>
        <translation>16 : 9 en 9 : 5</translation>
    </message>
    <message>
        <source>Two to one</source>
        <translation>Twee tegen een</translation>
    </message>
    <message>
        <source>Three to one</source>
        <translation>Drie tegen een</translation>
    </message>
    <message>
        <source>Audio Source</source>
        <translation>Audiobron</translation>
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
        <translation>Wisselen</translation>
    </message>
</context>
<context>
    <name>TwoWindows</name>
    <message>
        <source>Main:</source>
        <translation>Hoofd:</translation>
    </message>
    <message>
        <source>Sub:</source>
        <translation>Sub:</translation>
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
        <translation>Helderheid</translation>
    </message>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Kleurmodus / Helderheid</translation>
    </message>
</context>
<context>
    <name>BrightnessPage</name>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Kleurmodus / Helderheid</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Kleurmodus</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helderheid</translation>
    </message>
    <message>
        <source>Software Dimming</source>
        <translation>Softwarematig dimmen</translation>
    </message>
    <message>
        <source>Darkens the picture below the lowest brightness of the monitor. Ambient brightness functions switch it off for as long as they run.</source>
        <translation>Maakt het beeld donkerder dan de laagste helderheid van de monitor. Omgevingslichtfuncties schakelen dit uit zolang ze actief zijn.</translation>
    </message>
    <message>
        <source>Brightness Sync</source>
        <translation>Helderheid koppelen</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Scherpte</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Tint</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Verzadiging</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Kleurbereik</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Uniformiteit</translation>
    </message>
    <message>
        <source>Reset Color</source>
        <translation>Kleuren herstellen</translation>
    </message>
</context>
<context>
    <name>BrightnessSliders</name>
    <message>
        <source>Software Dimming</source>
        <translation>Softwarematig dimmen</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helderheid</translation>
    </message>
</context>
<context>
    <name>ColorModeChoice</name>
    <message>
        <source>Color Mode</source>
        <translation>Kleurmodus</translation>
    </message>
</context>
<context>
    <name>ColorTemperatureControls</name>
    <message>
        <source>Color Temperature</source>
        <translation>Kleurtemperatuur</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rood</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Groen</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blauw</translation>
    </message>
</context>
<context>
    <name>AxisControls</name>
    <message>
        <source>Red</source>
        <translation>Rood</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Geel</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Groen</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyaan</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blauw</translation>
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
        <translation>Helderheid</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Scherpte</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Kleurtemperatuur</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Tint</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Verzadiging</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Kleurbereik</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Uniformiteit</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Weinig blauw licht</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nacht­bescherming</translation>
    </message>
    <message>
        <source>Ambient brightness</source>
        <translation>Omgevingslicht</translation>
    </message>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Gekoppeld aan kleurmodus</translation>
    </message>
    <message>
        <source>Stored for each color mode: %1.</source>
        <translation>Per kleurmodus bewaard: %1.</translation>
    </message>
</context>
<context>
    <name>LuBuiltInBrightnessWidget</name>
    <message>
        <source>Built-in brightness</source>
        <translation>Ingebouwde helderheid</translation>
    </message>
</context>
<context>
    <name>LuColorWeaknessWidget</name>
    <message>
        <source>Color Weakness</source>
        <translation>Kleurzwakte</translation>
    </message>
    <message>
        <source>Red: %1</source>
        <translation>Rood: %1</translation>
    </message>
    <message>
        <source>Green: %1</source>
        <translation>Groen: %1</translation>
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
        <translation>Door de schaalinstellingen van macOS is HDR tijdelijk niet beschikbaar. Schakel HiDPI uit of verlaag de resolutie.</translation>
    </message>
    <message>
        <source>This monitor has no HDR mode to switch to.</source>
        <translation>Deze monitor heeft geen HDR-modus.</translation>
    </message>
</context>
<context>
    <name>LuPopupColorModeAction</name>
    <message>
        <source>Color Mode</source>
        <translation>Kleurmodus</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helderheid</translation>
    </message>
</context>
<context>
    <name>LuPopupBrightnessShortcut</name>
    <message>
        <source>Brightness</source>
        <translation>Helderheid</translation>
    </message>
</context>
<context>
    <name>LuPopupIccSyncHint</name>
    <message>
        <source>Color Sync</source>
        <translation>Kleursynchronisatie</translation>
    </message>
    <message>
        <source>The color profile of the desktop now follows the color mode of this monitor.</source>
        <translation>Het kleurprofiel van het bureaublad volgt nu de kleurmodus van deze monitor.</translation>
    </message>
</context>
<context>
    <name>PackageStrings</name>
    <message>
        <source>Coding - Light Theme</source>
        <translation>Coderen - Licht thema</translation>
    </message>
    <message>
        <source>Coding - Dark Theme</source>
        <translation>Coderen - Donker thema</translation>
    </message>
    <message>
        <source>Coding - Paper Color</source>
        <translation>Coderen - Papierkleur</translation>
    </message>
    <message>
        <source>M-book</source>
        <translation>M-book</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Bioscoop</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Game</translation>
    </message>
    <message>
        <source>ePaper</source>
        <translation>ePaper</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Gebruiker</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normaal</translation>
    </message>
    <message>
        <source>Bluish</source>
        <translation>Blauwachtig</translation>
    </message>
    <message>
        <source>Reddish</source>
        <translation>Roodachtig</translation>
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
        <translation>Over %1</translation>
    </message>
    <message>
        <source>To meet individual preferences, %1 allows manual control of screen brightness. It learns and records your last adjustment, applying it to optimize its automatic brightness adjustment curve to better match your preferences.</source>
        <translation>Met %1 kunt u de helderheid ook zelf regelen. Uw laatste instelling wordt onthouden en gebruikt om de automatische helderheidscurve beter op uw voorkeur af te stemmen.</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Brightness + Color Temperature</source>
        <translation>Helderheid + kleurtemperatuur</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helderheid</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>Lichtmeter</translation>
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
        <translation>Lichtmeter</translation>
    </message>
</context>
<context>
    <name>SensitivitySlider</name>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensorgevoeligheid</translation>
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
        <translation>Aan</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Uit</translation>
    </message>
</context>
<context>
    <name>BackLightControls</name>
    <message>
        <source>Brightness</source>
        <translation>Helderheid</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Kleurtemperatuur</translation>
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
        <translation>Automatisch dimmen past de helderheid van BackGlow aan het omgevingslicht aan en ontziet uw ogen bij weinig licht. Dit kan alleen als A.B. Gen2 aan staat.</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Koppeling aan kleurmodus</translation>
    </message>
    <message>
        <source>The system will automatically switch to the bundled BackGlow settings when you change the color mode.</source>
        <translation>Bij het wisselen van kleurmodus gelden de BackGlow-instellingen van die modus.</translation>
    </message>
    <message>
        <source>Non-stop Mode</source>
        <translation>Continumodus</translation>
    </message>
    <message>
        <source>To activate BackGlow while the monitor is in sleep mode, you can enable the non-stop mode.</source>
        <translation>Zet de continumodus aan om BackGlow ook in de slaapstand van de monitor te gebruiken.</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Meer</translation>
    </message>
</context>
<context>
    <name>EcoPrivacyTexts</name>
    <message>
        <source>5 sec.</source>
        <translation>5 sec.</translation>
    </message>
    <message>
        <source>10 sec.</source>
        <translation>10 sec.</translation>
    </message>
    <message>
        <source>20 sec.</source>
        <translation>20 sec.</translation>
    </message>
    <message>
        <source>30 sec.</source>
        <translation>30 sec.</translation>
    </message>
    <message>
        <source>60 sec.</source>
        <translation>60 sec.</translation>
    </message>
    <message>
        <source>5 min.</source>
        <translation>5 min.</translation>
    </message>
    <message>
        <source>10 min.</source>
        <translation>10 min.</translation>
    </message>
    <message>
        <source>Near</source>
        <translation>Dichtbij</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Midden</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>Ver</translation>
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
        <translation>Monitor dimmen na een tijd zonder activiteit.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Display + BackGlow</source>
        <translation>Scherm + BackGlow</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Scherm</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensorgevoeligheid</translation>
    </message>
    <message>
        <source>EcoPrivacy helps protect your screen privacy and dims your monitor after inactivity through your built-in monitor sensor.</source>
        <translation>EcoPrivacy beschermt uw privacy en dimt de monitor bij afwezigheid met de ingebouwde sensor.</translation>
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
        <translation>Sensorgevoeligheid</translation>
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
        <translation>Lichtmeter</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Aan</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Uit</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensorgevoeligheid</translation>
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
        <translation>Helderheid</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Kleurtemperatuur</translation>
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
        <translation>Monitor dimmen na %1</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensorgevoeligheid</translation>
    </message>
</context>
<context>
    <name>LuShortcutsWidget</name>
    <message>
        <source>Shortcuts</source>
        <translation>Sneltoetsen</translation>
    </message>
    <message>
        <source>The key combination can not be used.</source>
        <translation>Deze toetsencombinatie kan niet worden gebruikt.</translation>
    </message>
    <message>
        <source>This shortcut cannot be used as it is currently being used by another function.</source>
        <translation>Deze sneltoets kan niet worden gebruikt omdat een andere functie hem al gebruikt.</translation>
    </message>
    <message>
        <source>Reset All Shortcuts</source>
        <translation>Alle sneltoetsen herstellen</translation>
    </message>
    <message>
        <source>To reset your keyboard shortcuts, click on the 'Reset' button below. Once confirmed, the app will immediately restore the default settings.</source>
        <translation>Klik hieronder op ‘Herstellen’ om de sneltoetsen te herstellen. Na bevestiging zet de app direct de standaardinstellingen terug.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Herstellen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>ShortcutRows</name>
    <message>
        <source>Input</source>
        <translation>Ingang</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Kleurmodus</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helderheid</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nachtbescherming</translation>
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
        <translation>Extra kopiëren/plakken</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>Verlagen</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>Verhogen</translation>
    </message>
    <message>
        <source>TurnOn/Off</source>
        <translation>In-/uitschakelen</translation>
    </message>
    <message>
        <source>Loop all KVM switch</source>
        <translation>Alle KVM-poorten doorlopen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiëren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Plakken</translation>
    </message>
    <message>
        <source>This function supports image, text, file, and URL formats. Copying other types of content may impact the content of the clipboard.</source>
        <translation>Deze functie ondersteunt afbeeldingen, tekst, bestanden en URL's. Het kopiëren van andere inhoud kan het klembord beïnvloeden.</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <translation>Overschakelen naar %1</translation>
    </message>
    <message>
        <source>Loop all color mode</source>
        <translation>Alle kleurmodi doorlopen</translation>
    </message>
    <message>
        <source>Loop all Audio Mode</source>
        <translation>Alle audiomodi doorlopen</translation>
    </message>
    <message>
        <source>Loop all speaker output</source>
        <translation>Alle luidsprekers doorlopen</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Dempen</translation>
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
        <translation>Het volume is altijd op de hoofdpagina aan te passen. Vouw het menu uit om ook de audiobron te kiezen.</translation>
    </message>
    <message>
        <source>iKeyboard Control</source>
        <translation>iKeyboard-bediening</translation>
    </message>
    <message>
        <source>Enable iKeyboard Control to use the F11/F12 volume keys on Mac keyboard to adjust the volume of the selected audio output.</source>
        <translation>Zet iKeyboard-bediening aan om met de volumetoetsen F11/F12 van het Mac-toetsenbord het volume van de gekozen uitvoer te regelen.</translation>
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
        <translation>Equalizer-instelling</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>RESETTEN</translation>
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
        <translation>Uitvoer</translation>
    </message>
    <message>
        <source>Sound Settings</source>
        <translation>Geluidsinstellingen</translation>
    </message>
</context>
<context>
    <name>VolumePage</name>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>System's volume</source>
        <translation>Systeemvolume</translation>
    </message>
    <message>
        <source>Audio Mode</source>
        <translation>Audiomodus</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Uitvoer</translation>
    </message>
    <message>
        <source>The volume of this monitor can be set while the system plays through it.</source>
        <translation>Het volume van deze monitor is instelbaar zolang het systeem erdoor afspeelt.</translation>
    </message>
</context>
<context>
    <name>LuPopupVolumeShortcut</name>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
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
        <translation>Volume</translation>
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
        <translation>BackGlow: automatisch dimmen</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nacht­bescherming</translation>
    </message>
    <message>
        <source>The light behind your monitor dims with the room, so that your eyes stay at ease.</source>
        <translation>Het licht achter uw monitor dimt mee met de kamer, zodat uw ogen ontspannen blijven.</translation>
    </message>
    <message>
        <source>After dark the picture turns darker than the lowest brightness, without losing its details.</source>
        <translation>Na zonsondergang wordt het beeld donkerder dan de laagste helderheid, zonder details te verliezen.</translation>
    </message>
</context>
</TS>
