<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ro" sourcelanguage="en">
<context>
    <name>FourWindows</name>
    <message>
        <source>Upper left</source>
        <translation>Stânga sus</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Dreapta sus</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Stânga jos</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Dreapta jos</translation>
    </message>
</context>
<context>
    <name>KvmPage</name>
    <message>
        <source>Current Device Location</source>
        <translation>Poziția acestui dispozitiv</translation>
    </message>
    <message>
        <source>Connected to the other computer</source>
        <translation>Conectat la celălalt calculator</translation>
    </message>
    <message>
        <source>Connect the other computer</source>
        <translation>Conectează celălalt calculator</translation>
    </message>
</context>
<context>
    <name>KvmPorts</name>
    <message>
        <source>Auto Switch</source>
        <translation>Automat</translation>
    </message>
    <message>
        <source>USB-C Upstream</source>
        <translation>Intrare USB-C</translation>
    </message>
    <message>
        <source>USB-B Upstream</source>
        <translation>Intrare USB-B</translation>
    </message>
    <message>
        <source>TBT Upstream</source>
        <translation>Intrare TBT</translation>
    </message>
</context>
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Contrast local</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>Contrast AI</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Pivotare automată</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Pivotarea ecranului</translation>
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
        <translation>Un singur cablu pentru a conecta ușor toate monitoarele.</translation>
    </message>
    <message>
        <source>About Daisy Chain (MST)</source>
        <translation>Despre Daisy Chain (MST)</translation>
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
        <translation>Principal: </translation>
    </message>
    <message>
        <source>Left: </source>
        <translation>Stânga: </translation>
    </message>
    <message>
        <source>Sub: </source>
        <translation>Secundar: </translation>
    </message>
    <message>
        <source>Right: </source>
        <translation>Dreapta: </translation>
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
        <translation>Stânga:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Dreapta:</translation>
    </message>
</context>
<context>
    <name>LuInputSourceWidget</name>
    <message>
        <source>Input source</source>
        <translation>Sursă de intrare</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Intrare</translation>
    </message>
    <message>
        <source>Built-in</source>
        <translation>Integrat</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Necunoscută</translation>
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
        <translation>Doriți să dezactivați modul PBP și %1?</translation>
    </message>
    <message>
        <source>%1 only works in PBP mode. If you choose to turn off PBP mode, %1 will be disabled as well.</source>
        <translation>%1 funcționează numai în modul PBP. Dacă dezactivați modul PBP, se dezactivează și %1.</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Pivotare</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Pivotarea ecranului</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Lumină albastră redusă Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Lumină albastră redusă</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>În afara intervalului</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>Setați răsăritul între 00:00 și 11:59 și apusul între 12:00 și 23:59.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Mod circadian</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Răsărit – apus</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Răsărit</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Apus</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplică</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>Filtrul urmează soarele din locul dvs. Nivel %1 până la %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>Din cauza unei conexiuni instabile sau a altor probleme, orele soarelui nu au putut fi primite. Treceți la modul manual.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Date meteo furnizate de</translation>
    </message>
    <message>
        <source>Set your location</source>
        <translation>Setați locația</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Nivelul pe parcursul zilei</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Lumină albastră redusă Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Lumină albastră redusă</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Mod circadian</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mod</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Răsărit – apus</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protecție nocturnă</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>Comutarea automată pornește sau oprește protecția nocturnă în funcție de lumina ambiantă și vă menajează constant ochii.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
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
        <translation>Smart KVM Basic este activat</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Doriți să treceți la modul PBP?</translation>
    </message>
    <message>
        <source>Smart KVM Basic works only in PBP Mode. Turning off PBP Mode will also disable Smart KVM Basic.</source>
        <translation>Smart KVM Basic funcționează numai în modul PBP. Dezactivarea modului PBP dezactivează și Smart KVM Basic.</translation>
    </message>
    <message>
        <source>Smart KVM Basic</source>
        <translation>Smart KVM Basic</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Stânga</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Dreapta</translation>
    </message>
    <message>
        <source>Orvane Smart KVM Basic makes multitasking effortless - use one keyboard and mouse to control two computers. With automatic switching when your cursor crosses the screen edge, you can work seamlessly across systems. Just install Lumen Desk 2 on both devices and enable PBP Mode to get started.</source>
        <translation>Orvane Smart KVM Basic ușurează lucrul simultan: controlați două computere cu o singură tastatură și un singur mouse. Comutarea este automată când cursorul trece de marginea ecranului. Instalați Lumen Desk 2 pe ambele dispozitive și activați modul PBP.</translation>
    </message>
</context>
<context>
    <name>LuSmartKvmWidget</name>
    <message>
        <source>Driver installation is required</source>
        <translation>Este necesară instalarea driverului</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectat</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Se caută</translation>
    </message>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Smart KVM Enabled</source>
        <translation>Smart KVM activat</translation>
    </message>
    <message>
        <source>Driver installation is required.</source>
        <translation>Este necesară instalarea driverului.</translation>
    </message>
    <message>
        <source>Smart KVM requires your permission to install its driver. Would you like to install it now?</source>
        <translation>Smart KVM are nevoie de permisiunea dvs. pentru a instala driverul. Îl instalați acum?</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Doriți să treceți la modul PBP?</translation>
    </message>
    <message>
        <source>Smart KVM only works in PBP mode. If you'd like to continue using Smart KVM, we can switch to PBP mode for you.</source>
        <translation>Smart KVM funcționează numai în modul PBP. Dacă doriți să îl folosiți în continuare, putem trece la modul PBP.</translation>
    </message>
    <message>
        <source>Smart KVM</source>
        <translation>Smart KVM</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Stânga</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Dreapta</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Sus</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Jos</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protecție nocturnă</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automat</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Pornit</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Oprit</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protecție nocturnă</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
</context>
<context>
    <name>PictureGoneNote</name>
    <message>
        <source>This computer's picture goes away with its input. %1 brings it back.</source>
        <translation>Imaginea acestui computer dispare odată cu intrarea lui. %1 o readuce.</translation>
    </message>
    <message>
        <source>This computer's picture goes away with its input. Choose %1 in the monitor's menu to bring it back.</source>
        <translation>Imaginea acestui computer dispare odată cu intrarea lui. Alegeți %1 în meniul monitorului pentru a o readuce.</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Înapoi la %1</translation>
    </message>
    <message>
        <source>Turn on shortcuts</source>
        <translation>Activează scurtăturile</translation>
    </message>
</context>
<context>
    <name>PipOptions</name>
    <message>
        <source>Sub size</source>
        <translation>Dimensiunea ferestrei</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Mic</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mediu</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Mare</translation>
    </message>
    <message>
        <source>Sub position</source>
        <translation>Poziția ferestrei</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Dreapta sus</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>Stânga sus</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Dreapta jos</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Stânga jos</translation>
    </message>
</context>
<context>
    <name>PipPbpPage</name>
    <message>
        <source>Picture in picture</source>
        <translation>Imagine în imagine</translation>
    </message>
    <message>
        <source>Half and half</source>
        <translation>Jumătate-jumătate</translation>
    </message>
    <message>
        <source>Four windows</source>
        <translation>Patru ferestre</translation>
    </message>
    <message>
        <source>16 : 9 and 9 : 5</source>
        <translation>16 : 9 și 9 : 5</translation>
    </message>
    <message>
        <source>Two to one</source>
        <translation>Doi la unu</translation>
    </message>
    <message>
        <source>Three to one</source>
        <translation>Trei la unu</translation>
    </message>
    <message>
        <source>Audio Source</source>
        <translation>Sursă audio</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Stânga</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Dreapta</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Schimbă</translation>
    </message>
</context>
<context>
    <name>TwoWindows</name>
    <message>
        <source>Main:</source>
        <translation>Principal:</translation>
    </message>
    <message>
        <source>Sub:</source>
        <translation>Secundar:</translation>
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
        <translation>Stânga:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Dreapta:</translation>
    </message>
</context>
<context>
    <name>LuBrightnessWidget</name>
    <message>
        <source>Brightness</source>
        <translation>Luminozitate</translation>
    </message>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Mod culoare / Luminozitate</translation>
    </message>
</context>
<context>
    <name>BrightnessPage</name>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Mod culoare / Luminozitate</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Mod culoare</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminozitate</translation>
    </message>
    <message>
        <source>Software Dimming</source>
        <translation>Diminuare software</translation>
    </message>
    <message>
        <source>Darkens the picture below the lowest brightness of the monitor. Ambient brightness functions switch it off for as long as they run.</source>
        <translation>Întunecă imaginea sub luminozitatea minimă a monitorului. Funcțiile de lumină ambientală o dezactivează cât timp rulează.</translation>
    </message>
    <message>
        <source>Brightness Sync</source>
        <translation>Sincronizare luminozitate</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Claritate</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Nuanță</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturație</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Gamă de culori</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Uniformitate</translation>
    </message>
    <message>
        <source>Reset Color</source>
        <translation>Resetare culori</translation>
    </message>
</context>
<context>
    <name>BrightnessSliders</name>
    <message>
        <source>Software Dimming</source>
        <translation>Diminuare software</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminozitate</translation>
    </message>
</context>
<context>
    <name>ColorModeChoice</name>
    <message>
        <source>Color Mode</source>
        <translation>Mod culoare</translation>
    </message>
</context>
<context>
    <name>ColorTemperatureControls</name>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatura culorii</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Roșu</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Albastru</translation>
    </message>
</context>
<context>
    <name>AxisControls</name>
    <message>
        <source>Red</source>
        <translation>Roșu</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Galben</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Albastru</translation>
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
        <translation>Luminozitate</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Claritate</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatura culorii</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Nuanță</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturație</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Gamă de culori</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Uniformitate</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Lumină albastră redusă</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protecție nocturnă</translation>
    </message>
    <message>
        <source>Ambient brightness</source>
        <translation>Lumină ambientală</translation>
    </message>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Legat de modul culoare</translation>
    </message>
    <message>
        <source>Stored for each color mode: %1.</source>
        <translation>Salvat pentru fiecare mod culoare: %1.</translation>
    </message>
</context>
<context>
    <name>LuBuiltInBrightnessWidget</name>
    <message>
        <source>Built-in brightness</source>
        <translation>Luminozitate integrată</translation>
    </message>
</context>
<context>
    <name>LuColorWeaknessWidget</name>
    <message>
        <source>Color Weakness</source>
        <translation>Daltonism</translation>
    </message>
    <message>
        <source>Red: %1</source>
        <translation>Roșu: %1</translation>
    </message>
    <message>
        <source>Green: %1</source>
        <translation>Verde: %1</translation>
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
        <translation>Din cauza scalării macOS, HDR este temporar indisponibil. Dezactivați HiDPI sau micșorați rezoluția.</translation>
    </message>
    <message>
        <source>This monitor has no HDR mode to switch to.</source>
        <translation>Acest monitor nu are un mod HDR.</translation>
    </message>
</context>
<context>
    <name>LuPopupColorModeAction</name>
    <message>
        <source>Color Mode</source>
        <translation>Mod culoare</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminozitate</translation>
    </message>
</context>
<context>
    <name>LuPopupBrightnessShortcut</name>
    <message>
        <source>Brightness</source>
        <translation>Luminozitate</translation>
    </message>
</context>
<context>
    <name>LuPopupIccSyncHint</name>
    <message>
        <source>Color Sync</source>
        <translation>Sincronizare culori</translation>
    </message>
    <message>
        <source>The color profile of the desktop now follows the color mode of this monitor.</source>
        <translation>Profilul de culoare al desktopului urmează acum modul culoare al acestui monitor.</translation>
    </message>
</context>
<context>
    <name>PackageStrings</name>
    <message>
        <source>Coding - Light Theme</source>
        <translation>Programare - Temă deschisă</translation>
    </message>
    <message>
        <source>Coding - Dark Theme</source>
        <translation>Programare - Temă închisă</translation>
    </message>
    <message>
        <source>Coding - Paper Color</source>
        <translation>Programare - Culoare hârtie</translation>
    </message>
    <message>
        <source>M-book</source>
        <translation>M-book</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Cinema</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Joc</translation>
    </message>
    <message>
        <source>ePaper</source>
        <translation>ePaper</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilizator</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Bluish</source>
        <translation>Albăstrui</translation>
    </message>
    <message>
        <source>Reddish</source>
        <translation>Roșiatic</translation>
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
        <translation>Despre %1</translation>
    </message>
    <message>
        <source>To meet individual preferences, %1 allows manual control of screen brightness. It learns and records your last adjustment, applying it to optimize its automatic brightness adjustment curve to better match your preferences.</source>
        <translation>%1 permite reglarea manuală a luminozității după preferințe. Învață și reține ultima reglare și o folosește pentru a adapta mai bine curba luminozității automate.</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parametru</translation>
    </message>
    <message>
        <source>Brightness + Color Temperature</source>
        <translation>Luminozitate + temp. culoare</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminozitate</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>Luxmetru</translation>
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
        <translation>Luxmetru</translation>
    </message>
</context>
<context>
    <name>SensitivitySlider</name>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensibilitatea senzorului</translation>
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
        <translation>Reglare automată</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Pornit</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Oprit</translation>
    </message>
</context>
<context>
    <name>BackLightControls</name>
    <message>
        <source>Brightness</source>
        <translation>Luminozitate</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatură de culoare</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Mod de lumină</translation>
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
        <translation>Reglarea automată adaptează luminozitatea BackGlow la lumina ambiantă și protejează ochii în semiîntuneric. Poate fi folosită numai când A.B. Gen2 este pornit.</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Asociere cu modul de culoare</translation>
    </message>
    <message>
        <source>The system will automatically switch to the bundled BackGlow settings when you change the color mode.</source>
        <translation>La schimbarea modului de culoare se aplică setările BackGlow asociate.</translation>
    </message>
    <message>
        <source>Non-stop Mode</source>
        <translation>Mod continuu</translation>
    </message>
    <message>
        <source>To activate BackGlow while the monitor is in sleep mode, you can enable the non-stop mode.</source>
        <translation>Pentru ca BackGlow să lumineze și când monitorul este în repaus, porniți modul continuu.</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mai multe</translation>
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
        <translation>Aproape</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mediu</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>Departe</translation>
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
        <translation>Reduce luminozitatea monitorului după inactivitate.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mod</translation>
    </message>
    <message>
        <source>Display + BackGlow</source>
        <translation>Ecran + BackGlow</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Ecran</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensibilitatea senzorului</translation>
    </message>
    <message>
        <source>EcoPrivacy helps protect your screen privacy and dims your monitor after inactivity through your built-in monitor sensor.</source>
        <translation>EcoPrivacy protejează confidențialitatea ecranului și reduce luminozitatea în lipsa dvs. cu senzorul integrat.</translation>
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
        <translation>Sensibilitatea senzorului</translation>
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
        <translation>Luxmetru</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Pornit</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Oprit</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensibilitatea senzorului</translation>
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
        <translation>Luminozitate</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatură de culoare</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Mod de lumină</translation>
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
        <translation>Reduce luminozitatea după %1</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensibilitatea senzorului</translation>
    </message>
</context>
<context>
    <name>LuShortcutsWidget</name>
    <message>
        <source>Shortcuts</source>
        <translation>Comenzi rapide</translation>
    </message>
    <message>
        <source>The key combination can not be used.</source>
        <translation>Această combinație de taste nu poate fi folosită.</translation>
    </message>
    <message>
        <source>This shortcut cannot be used as it is currently being used by another function.</source>
        <translation>Această comandă rapidă nu poate fi folosită, deoarece aparține deja altei funcții.</translation>
    </message>
    <message>
        <source>Reset All Shortcuts</source>
        <translation>Resetați toate comenzile rapide</translation>
    </message>
    <message>
        <source>To reset your keyboard shortcuts, click on the 'Reset' button below. Once confirmed, the app will immediately restore the default settings.</source>
        <translation>Pentru a reseta comenzile rapide, faceți clic pe „Resetare” mai jos. După confirmare, aplicația revine imediat la setările implicite.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetare</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anulare</translation>
    </message>
</context>
<context>
    <name>ShortcutRows</name>
    <message>
        <source>Input</source>
        <translation>Intrare</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Mod de culoare</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminozitate</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volum</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protecție nocturnă</translation>
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
        <translation>Copiere/lipire suplimentară</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>Micșorare</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>Mărire</translation>
    </message>
    <message>
        <source>TurnOn/Off</source>
        <translation>Pornire/oprire</translation>
    </message>
    <message>
        <source>Loop all KVM switch</source>
        <translation>Parcurgere porturi KVM</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiere</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Lipire</translation>
    </message>
    <message>
        <source>This function supports image, text, file, and URL formats. Copying other types of content may impact the content of the clipboard.</source>
        <translation>Această funcție acceptă imagini, text, fișiere și adrese URL. Copierea altor conținuturi poate afecta clipboardul.</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <translation>Comutare la %1</translation>
    </message>
    <message>
        <source>Loop all color mode</source>
        <translation>Parcurgere moduri de culoare</translation>
    </message>
    <message>
        <source>Loop all Audio Mode</source>
        <translation>Parcurgere moduri audio</translation>
    </message>
    <message>
        <source>Loop all speaker output</source>
        <translation>Parcurgere ieșiri audio</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Fără sunet</translation>
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
        <translation>Volumul se poate regla oricând în pagina principală. Puteți extinde meniul și pentru a alege sursa audio.</translation>
    </message>
    <message>
        <source>iKeyboard Control</source>
        <translation>Control iKeyboard</translation>
    </message>
    <message>
        <source>Enable iKeyboard Control to use the F11/F12 volume keys on Mac keyboard to adjust the volume of the selected audio output.</source>
        <translation>Activați controlul iKeyboard pentru a regla cu tastele F11/F12 ale tastaturii Mac volumul ieșirii audio alese.</translation>
    </message>
</context>
<context>
    <name>AudioModeChoice</name>
    <message>
        <source>Audio Mode</source>
        <translation>Mod audio</translation>
    </message>
</context>
<context>
    <name>Equaliser</name>
    <message>
        <source>Equalizer Setting</source>
        <translation>Setarea egalizatorului</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>RESETARE</translation>
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
        <translation>Ieșire</translation>
    </message>
    <message>
        <source>Sound Settings</source>
        <translation>Setări de sunet</translation>
    </message>
</context>
<context>
    <name>VolumePage</name>
    <message>
        <source>Volume</source>
        <translation>Volum</translation>
    </message>
    <message>
        <source>System's volume</source>
        <translation>Volumul sistemului</translation>
    </message>
    <message>
        <source>Audio Mode</source>
        <translation>Mod audio</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ieșire</translation>
    </message>
    <message>
        <source>The volume of this monitor can be set while the system plays through it.</source>
        <translation>Volumul acestui monitor se poate regla cât timp sistemul redă prin el.</translation>
    </message>
</context>
<context>
    <name>LuPopupVolumeShortcut</name>
    <message>
        <source>Volume</source>
        <translation>Volum</translation>
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
        <translation>Volum</translation>
    </message>
    <message>
        <source>Audio Mode :</source>
        <translation>Mod audio:</translation>
    </message>
</context>
<context>
    <name>Walkthrough</name>
    <message>
        <source>BackGlow Auto-dimming</source>
        <translation>BackGlow: reglare automată</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protecție nocturnă</translation>
    </message>
    <message>
        <source>The light behind your monitor dims with the room, so that your eyes stay at ease.</source>
        <translation>Lumina din spatele monitorului scade odată cu cea din cameră, pentru ca ochii să rămână odihniți.</translation>
    </message>
    <message>
        <source>After dark the picture turns darker than the lowest brightness, without losing its details.</source>
        <translation>După lăsarea întunericului imaginea devine mai întunecată decât luminozitatea minimă, fără a pierde detalii.</translation>
    </message>
</context>
</TS>
