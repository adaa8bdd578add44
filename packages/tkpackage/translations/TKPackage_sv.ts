<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="en">
<context>
    <name>FourWindows</name>
    <message>
        <source>Upper left</source>
        <translation>Uppe till vänster</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Uppe till höger</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Nere till vänster</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Nere till höger</translation>
    </message>
</context>
<context>
    <name>KvmPage</name>
    <message>
        <source>Current Device Location</source>
        <translation>Den här enhetens plats</translation>
    </message>
    <message>
        <source>Connected to the other computer</source>
        <translation>Ansluten till den andra datorn</translation>
    </message>
    <message>
        <source>Connect the other computer</source>
        <translation>Anslut den andra datorn</translation>
    </message>
</context>
<context>
    <name>KvmPorts</name>
    <message>
        <source>Auto Switch</source>
        <translation>Automatiskt</translation>
    </message>
    <message>
        <source>USB-C Upstream</source>
        <translation>USB-C-uppström</translation>
    </message>
    <message>
        <source>USB-B Upstream</source>
        <translation>USB-B-uppström</translation>
    </message>
    <message>
        <source>TBT Upstream</source>
        <translation>TBT-uppström</translation>
    </message>
</context>
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Lokal kontrast</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>AI-kontrast</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Automatisk rotering</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Skärmrotering</translation>
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
        <translation>En kabel kopplar enkelt ihop alla dina skärmar.</translation>
    </message>
    <message>
        <source>About Daisy Chain (MST)</source>
        <translation>Om Daisy Chain (MST)</translation>
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
        <translation>Huvud: </translation>
    </message>
    <message>
        <source>Left: </source>
        <translation>Vänster: </translation>
    </message>
    <message>
        <source>Sub: </source>
        <translation>Under: </translation>
    </message>
    <message>
        <source>Right: </source>
        <translation>Höger: </translation>
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
        <translation>Vänster:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Höger:</translation>
    </message>
</context>
<context>
    <name>LuInputSourceWidget</name>
    <message>
        <source>Input source</source>
        <translation>Ingångskälla</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Ingång</translation>
    </message>
    <message>
        <source>Built-in</source>
        <translation>Inbyggd</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Okänd</translation>
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
        <translation>Vill du stänga av PBP-läget och %1?</translation>
    </message>
    <message>
        <source>%1 only works in PBP mode. If you choose to turn off PBP mode, %1 will be disabled as well.</source>
        <translation>%1 fungerar bara i PBP-läget. Om du stänger av PBP-läget stängs även %1 av.</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Rotering</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Skärmrotering</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Mindre blått ljus Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Mindre blått ljus</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivå</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>Utanför intervallet</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>Ställ in soluppgången mellan 00:00 och 11:59 och solnedgången mellan 12:00 och 23:59.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Dygnsrytmläge</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Soluppgång–nedgång</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuellt</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Soluppgång</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Solnedgång</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Tillämpa</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>Filtret följer solen där du är. Nivå %1 till %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>På grund av en instabil anslutning eller andra problem kunde soltiderna inte hämtas. Byt till manuellt läge.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Väderdata från</translation>
    </message>
    <message>
        <source>Set your location</source>
        <translation>Ange din plats</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Nivå över dagen</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Mindre blått ljus Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Mindre blått ljus</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivå</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Dygnsrytmläge</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Läge</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuellt</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Soluppgång–nedgång</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nattskydd</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>Automatiken slår på och av nattskyddet efter ljuset i rummet och skonar ögonen utan besvär.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivå</translation>
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
        <translation>Smart KVM Basic är på</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Vill du byta till PBP-läget?</translation>
    </message>
    <message>
        <source>Smart KVM Basic works only in PBP Mode. Turning off PBP Mode will also disable Smart KVM Basic.</source>
        <translation>Smart KVM Basic fungerar bara i PBP-läget. När PBP-läget stängs av stängs även Smart KVM Basic av.</translation>
    </message>
    <message>
        <source>Smart KVM Basic</source>
        <translation>Smart KVM Basic</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Vänster</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Höger</translation>
    </message>
    <message>
        <source>Orvane Smart KVM Basic makes multitasking effortless - use one keyboard and mouse to control two computers. With automatic switching when your cursor crosses the screen edge, you can work seamlessly across systems. Just install Lumen Desk 2 on both devices and enable PBP Mode to get started.</source>
        <translation>Orvane Smart KVM Basic gör det enkelt att arbeta med flera datorer: styr två datorer med ett tangentbord och en mus. Bytet sker automatiskt när pekaren passerar skärmkanten. Installera Lumen Desk 2 på båda enheterna och slå på PBP-läget.</translation>
    </message>
</context>
<context>
    <name>LuSmartKvmWidget</name>
    <message>
        <source>Driver installation is required</source>
        <translation>Drivrutinen måste installeras</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Ansluten</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Söker</translation>
    </message>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Smart KVM Enabled</source>
        <translation>Smart KVM på</translation>
    </message>
    <message>
        <source>Driver installation is required.</source>
        <translation>Drivrutinen måste installeras.</translation>
    </message>
    <message>
        <source>Smart KVM requires your permission to install its driver. Would you like to install it now?</source>
        <translation>Smart KVM behöver ditt tillstånd för att installera sin drivrutin. Installera nu?</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Vill du byta till PBP-läget?</translation>
    </message>
    <message>
        <source>Smart KVM only works in PBP mode. If you'd like to continue using Smart KVM, we can switch to PBP mode for you.</source>
        <translation>Smart KVM fungerar bara i PBP-läget. Vill du fortsätta använda det kan vi byta till PBP-läget åt dig.</translation>
    </message>
    <message>
        <source>Smart KVM</source>
        <translation>Smart KVM</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Vänster</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Höger</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Uppe</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Nere</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nattskydd</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automatiskt</translation>
    </message>
    <message>
        <source>On</source>
        <translation>På</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Av</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nattskydd</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivå</translation>
    </message>
</context>
<context>
    <name>PictureGoneNote</name>
    <message>
        <source>This computer's picture goes away with its input. %1 brings it back.</source>
        <translation>Den här datorns bild försvinner med sin ingång. %1 tar den tillbaka.</translation>
    </message>
    <message>
        <source>This computer's picture goes away with its input. Choose %1 in the monitor's menu to bring it back.</source>
        <translation>Den här datorns bild försvinner med sin ingång. Välj %1 i skärmens meny för att ta den tillbaka.</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Tillbaka till %1</translation>
    </message>
    <message>
        <source>Turn on shortcuts</source>
        <translation>Slå på kortkommandon</translation>
    </message>
</context>
<context>
    <name>PipOptions</name>
    <message>
        <source>Sub size</source>
        <translation>Fönstrets storlek</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Liten</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mellan</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Stor</translation>
    </message>
    <message>
        <source>Sub position</source>
        <translation>Fönstrets plats</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Uppe till höger</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>Uppe till vänster</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Nere till höger</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Nere till vänster</translation>
    </message>
</context>
<context>
    <name>PipPbpPage</name>
    <message>
        <source>Picture in picture</source>
        <translation>Bild i bild</translation>
    </message>
    <message>
        <source>Half and half</source>
        <translation>Hälften var</translation>
    </message>
    <message>
        <source>Four windows</source>
        <translation>Fyra fönster</translation>
    </message>
    <message>
        <source>16 : 9 and 9 : 5</source>
        <translation>16 : 9 och 9 : 5</translation>
    </message>
    <message>
        <source>Two to one</source>
        <translation>Två till ett</translation>
    </message>
    <message>
        <source>Three to one</source>
        <translation>Tre till ett</translation>
    </message>
    <message>
        <source>Audio Source</source>
        <translation>Ljudkälla</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Vänster</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Höger</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Byt plats</translation>
    </message>
</context>
<context>
    <name>TwoWindows</name>
    <message>
        <source>Main:</source>
        <translation>Huvud:</translation>
    </message>
    <message>
        <source>Sub:</source>
        <translation>Under:</translation>
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
        <translation>Vänster:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Höger:</translation>
    </message>
</context>
<context>
    <name>LuBrightnessWidget</name>
    <message>
        <source>Brightness</source>
        <translation>Ljusstyrka</translation>
    </message>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Färgläge / Ljusstyrka</translation>
    </message>
</context>
<context>
    <name>BrightnessPage</name>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Färgläge / Ljusstyrka</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Färgläge</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Ljusstyrka</translation>
    </message>
    <message>
        <source>Software Dimming</source>
        <translation>Programvarudimning</translation>
    </message>
    <message>
        <source>Darkens the picture below the lowest brightness of the monitor. Ambient brightness functions switch it off for as long as they run.</source>
        <translation>Gör bilden mörkare än skärmens lägsta ljusstyrka. Funktioner för omgivningsljus stänger av det så länge de är på.</translation>
    </message>
    <message>
        <source>Brightness Sync</source>
        <translation>Synka ljusstyrka</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Skärpa</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Nyans</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Mättnad</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Färgomfång</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Jämnhet</translation>
    </message>
    <message>
        <source>Reset Color</source>
        <translation>Återställ färger</translation>
    </message>
</context>
<context>
    <name>BrightnessSliders</name>
    <message>
        <source>Software Dimming</source>
        <translation>Programvarudimning</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Ljusstyrka</translation>
    </message>
</context>
<context>
    <name>ColorModeChoice</name>
    <message>
        <source>Color Mode</source>
        <translation>Färgläge</translation>
    </message>
</context>
<context>
    <name>ColorTemperatureControls</name>
    <message>
        <source>Color Temperature</source>
        <translation>Färgtemperatur</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Röd</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grön</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blå</translation>
    </message>
</context>
<context>
    <name>AxisControls</name>
    <message>
        <source>Red</source>
        <translation>Röd</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gul</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grön</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blå</translation>
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
        <translation>Ljusstyrka</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Skärpa</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Färgtemperatur</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Nyans</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Mättnad</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Färgomfång</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Jämnhet</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Mindre blått ljus</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nattskydd</translation>
    </message>
    <message>
        <source>Ambient brightness</source>
        <translation>Omgivningsljus</translation>
    </message>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Kopplat till färgläget</translation>
    </message>
    <message>
        <source>Stored for each color mode: %1.</source>
        <translation>Sparas för varje färgläge: %1.</translation>
    </message>
</context>
<context>
    <name>LuBuiltInBrightnessWidget</name>
    <message>
        <source>Built-in brightness</source>
        <translation>Inbyggd ljusstyrka</translation>
    </message>
</context>
<context>
    <name>LuColorWeaknessWidget</name>
    <message>
        <source>Color Weakness</source>
        <translation>Färgsvaghet</translation>
    </message>
    <message>
        <source>Red: %1</source>
        <translation>Röd: %1</translation>
    </message>
    <message>
        <source>Green: %1</source>
        <translation>Grön: %1</translation>
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
        <translation>På grund av skalningen i macOS är HDR tillfälligt inte tillgängligt. Stäng av HiDPI eller sänk upplösningen.</translation>
    </message>
    <message>
        <source>This monitor has no HDR mode to switch to.</source>
        <translation>Den här skärmen har inget HDR-läge.</translation>
    </message>
</context>
<context>
    <name>LuPopupColorModeAction</name>
    <message>
        <source>Color Mode</source>
        <translation>Färgläge</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Ljusstyrka</translation>
    </message>
</context>
<context>
    <name>LuPopupBrightnessShortcut</name>
    <message>
        <source>Brightness</source>
        <translation>Ljusstyrka</translation>
    </message>
</context>
<context>
    <name>LuPopupIccSyncHint</name>
    <message>
        <source>Color Sync</source>
        <translation>Färgsynk</translation>
    </message>
    <message>
        <source>The color profile of the desktop now follows the color mode of this monitor.</source>
        <translation>Skrivbordets färgprofil följer nu skärmens färgläge.</translation>
    </message>
</context>
<context>
    <name>PackageStrings</name>
    <message>
        <source>Coding - Light Theme</source>
        <translation>Kodning – ljust tema</translation>
    </message>
    <message>
        <source>Coding - Dark Theme</source>
        <translation>Kodning – mörkt tema</translation>
    </message>
    <message>
        <source>Coding - Paper Color</source>
        <translation>Kodning – pappersfärg</translation>
    </message>
    <message>
        <source>M-book</source>
        <translation>M-book</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Bio</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Spel</translation>
    </message>
    <message>
        <source>ePaper</source>
        <translation>ePaper</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Användare</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Bluish</source>
        <translation>Blåaktig</translation>
    </message>
    <message>
        <source>Reddish</source>
        <translation>Rödaktig</translation>
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
        <translation>Om %1</translation>
    </message>
    <message>
        <source>To meet individual preferences, %1 allows manual control of screen brightness. It learns and records your last adjustment, applying it to optimize its automatic brightness adjustment curve to better match your preferences.</source>
        <translation>%1 låter dig ställa in ljusstyrkan för hand. Din senaste inställning sparas och används för att anpassa den automatiska ljuskurvan bättre efter dig.</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Brightness + Color Temperature</source>
        <translation>Ljusstyrka + färgtemperatur</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Ljusstyrka</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>Ljusmätare</translation>
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
        <translation>Ljusmätare</translation>
    </message>
</context>
<context>
    <name>SensitivitySlider</name>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensorns känslighet</translation>
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
        <translation>Automatisk dimning</translation>
    </message>
    <message>
        <source>On</source>
        <translation>På</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Av</translation>
    </message>
</context>
<context>
    <name>BackLightControls</name>
    <message>
        <source>Brightness</source>
        <translation>Ljusstyrka</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Färgtemperatur</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Ljusläge</translation>
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
        <translation>Automatisk dimning anpassar BackGlows ljusstyrka efter ljuset i rummet och skonar ögonen i svagt ljus. Den kan bara användas när A.B. Gen2 är på.</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Koppling till färgläge</translation>
    </message>
    <message>
        <source>The system will automatically switch to the bundled BackGlow settings when you change the color mode.</source>
        <translation>När du byter färgläge används BackGlow-inställningarna för det läget.</translation>
    </message>
    <message>
        <source>Non-stop Mode</source>
        <translation>Kontinuerligt läge</translation>
    </message>
    <message>
        <source>To activate BackGlow while the monitor is in sleep mode, you can enable the non-stop mode.</source>
        <translation>Slå på kontinuerligt läge om BackGlow ska lysa även när skärmen är i viloläge.</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mer</translation>
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
        <translation>Nära</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Medel</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>Långt</translation>
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
        <translation>Dimma skärmen efter en tids inaktivitet.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Läge</translation>
    </message>
    <message>
        <source>Display + BackGlow</source>
        <translation>Bild + BackGlow</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensorns känslighet</translation>
    </message>
    <message>
        <source>EcoPrivacy helps protect your screen privacy and dims your monitor after inactivity through your built-in monitor sensor.</source>
        <translation>EcoPrivacy skyddar innehållet på skärmen och dimmar den när du är borta, med den inbyggda sensorn.</translation>
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
        <translation>Sensorns känslighet</translation>
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
        <translation>Ljusmätare</translation>
    </message>
    <message>
        <source>On</source>
        <translation>På</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Av</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensorns känslighet</translation>
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
        <translation>Ljusstyrka</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Färgtemperatur</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Ljusläge</translation>
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
        <translation>Dimma skärmen efter %1</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensorns känslighet</translation>
    </message>
</context>
<context>
    <name>LuShortcutsWidget</name>
    <message>
        <source>Shortcuts</source>
        <translation>Genvägar</translation>
    </message>
    <message>
        <source>The key combination can not be used.</source>
        <translation>Den här tangentkombinationen kan inte användas.</translation>
    </message>
    <message>
        <source>This shortcut cannot be used as it is currently being used by another function.</source>
        <translation>Kortkommandot kan inte användas eftersom en annan funktion redan använder det.</translation>
    </message>
    <message>
        <source>Reset All Shortcuts</source>
        <translation>Återställ alla kortkommandon</translation>
    </message>
    <message>
        <source>To reset your keyboard shortcuts, click on the 'Reset' button below. Once confirmed, the app will immediately restore the default settings.</source>
        <translation>Klicka på ”Återställ” nedan för att återställa kortkommandona. Efter bekräftelsen går appen genast tillbaka till standardinställningarna.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>ShortcutRows</name>
    <message>
        <source>Input</source>
        <translation>Ingång</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Färgläge</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Ljusstyrka</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volym</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nattskydd</translation>
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
        <translation>Extra kopiera/klistra in</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>Minska</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>Öka</translation>
    </message>
    <message>
        <source>TurnOn/Off</source>
        <translation>Slå på/av</translation>
    </message>
    <message>
        <source>Loop all KVM switch</source>
        <translation>Växla mellan alla KVM-portar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiera</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Klistra in</translation>
    </message>
    <message>
        <source>This function supports image, text, file, and URL formats. Copying other types of content may impact the content of the clipboard.</source>
        <translation>Funktionen stöder bilder, text, filer och webbadresser. Om annat innehåll kopieras kan urklippets innehåll påverkas.</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <translation>Byt till %1</translation>
    </message>
    <message>
        <source>Loop all color mode</source>
        <translation>Växla mellan alla färglägen</translation>
    </message>
    <message>
        <source>Loop all Audio Mode</source>
        <translation>Växla mellan alla ljudlägen</translation>
    </message>
    <message>
        <source>Loop all speaker output</source>
        <translation>Växla mellan alla högtalare</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Tyst</translation>
    </message>
</context>
<context>
    <name>LuVolumeWidget</name>
    <message>
        <source>Audio</source>
        <translation>Ljud</translation>
    </message>
    <message>
        <source>Volume can be adjusted in main page at anytime. You can also expand the menu to choose the audio source.</source>
        <translation>Volymen kan när som helst justeras på huvudsidan. Fäll ut menyn för att även välja ljudkälla.</translation>
    </message>
    <message>
        <source>iKeyboard Control</source>
        <translation>iKeyboard-styrning</translation>
    </message>
    <message>
        <source>Enable iKeyboard Control to use the F11/F12 volume keys on Mac keyboard to adjust the volume of the selected audio output.</source>
        <translation>Slå på iKeyboard-styrning för att justera den valda ljudutgångens volym med volymtangenterna F11/F12 på Mac-tangentbordet.</translation>
    </message>
</context>
<context>
    <name>AudioModeChoice</name>
    <message>
        <source>Audio Mode</source>
        <translation>Ljudläge</translation>
    </message>
</context>
<context>
    <name>Equaliser</name>
    <message>
        <source>Equalizer Setting</source>
        <translation>Equalizerinställning</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>ÅTERSTÄLL</translation>
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
        <translation>Utgång</translation>
    </message>
    <message>
        <source>Sound Settings</source>
        <translation>Ljudinställningar</translation>
    </message>
</context>
<context>
    <name>VolumePage</name>
    <message>
        <source>Volume</source>
        <translation>Volym</translation>
    </message>
    <message>
        <source>System's volume</source>
        <translation>Systemets volym</translation>
    </message>
    <message>
        <source>Audio Mode</source>
        <translation>Ljudläge</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Utgång</translation>
    </message>
    <message>
        <source>The volume of this monitor can be set while the system plays through it.</source>
        <translation>Bildskärmens volym kan ställas in medan systemet spelar upp genom den.</translation>
    </message>
</context>
<context>
    <name>LuPopupVolumeShortcut</name>
    <message>
        <source>Volume</source>
        <translation>Volym</translation>
    </message>
</context>
<context>
    <name>LuPopupVolumeAction</name>
    <message>
        <source>Audio</source>
        <translation>Ljud</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volym</translation>
    </message>
    <message>
        <source>Audio Mode :</source>
        <translation>Ljudläge:</translation>
    </message>
</context>
<context>
    <name>Walkthrough</name>
    <message>
        <source>BackGlow Auto-dimming</source>
        <translation>BackGlow: automatisk dimning</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Nattskydd</translation>
    </message>
    <message>
        <source>The light behind your monitor dims with the room, so that your eyes stay at ease.</source>
        <translation>Ljuset bakom bildskärmen dämpas med rummet, så att ögonen får vila.</translation>
    </message>
    <message>
        <source>After dark the picture turns darker than the lowest brightness, without losing its details.</source>
        <translation>Efter mörkrets inbrott blir bilden mörkare än den lägsta ljusstyrkan, utan att förlora detaljer.</translation>
    </message>
</context>
</TS>
