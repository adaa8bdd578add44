<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="hr" sourcelanguage="en">
<context>
    <name>FourWindows</name>
    <message>
        <source>Upper left</source>
        <translation>Gore lijevo</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Gore desno</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Dolje lijevo</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Dolje desno</translation>
    </message>
</context>
<context>
    <name>KvmPage</name>
    <message>
        <source>Current Device Location</source>
        <translation>Položaj ovog uređaja</translation>
    </message>
    <message>
        <source>Connected to the other computer</source>
        <translation>Povezano s drugim računalom</translation>
    </message>
    <message>
        <source>Connect the other computer</source>
        <translation>Poveži drugo računalo</translation>
    </message>
</context>
<context>
    <name>KvmPorts</name>
    <message>
        <source>Auto Switch</source>
        <translation>Automatski</translation>
    </message>
    <message>
        <source>USB-C Upstream</source>
        <translation>Ulaz USB-C</translation>
    </message>
    <message>
        <source>USB-B Upstream</source>
        <translation>Ulaz USB-B</translation>
    </message>
    <message>
        <source>TBT Upstream</source>
        <translation>Ulaz TBT</translation>
    </message>
</context>
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Lokalni kontrast</translation>
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
        <translation>Automatsko zakretanje</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Zakretanje zaslona</translation>
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
        <translation>Jedan kabel jednostavno povezuje sve vaše monitore.</translation>
    </message>
    <message>
        <source>About Daisy Chain (MST)</source>
        <translation>O funkciji Daisy Chain (MST)</translation>
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
        <translation>Glavni: </translation>
    </message>
    <message>
        <source>Left: </source>
        <translation>Lijevo: </translation>
    </message>
    <message>
        <source>Sub: </source>
        <translation>Pomoćni: </translation>
    </message>
    <message>
        <source>Right: </source>
        <translation>Desno: </translation>
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
        <translation>Lijevo:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Desno:</translation>
    </message>
</context>
<context>
    <name>LuInputSourceWidget</name>
    <message>
        <source>Input source</source>
        <translation>Ulazni izvor</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Ulaz</translation>
    </message>
    <message>
        <source>Built-in</source>
        <translation>Ugrađeni</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Nepoznat</translation>
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
        <translation>Želite li isključiti način PBP i %1?</translation>
    </message>
    <message>
        <source>%1 only works in PBP mode. If you choose to turn off PBP mode, %1 will be disabled as well.</source>
        <translation>%1 radi samo u načinu PBP. Isključivanjem načina PBP isključuje se i %1.</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Zakretanje</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Zakretanje zaslona</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Smanjeno plavo svjetlo Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Smanjeno plavo svjetlo</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Razina</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>Izvan raspona</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>Postavite izlazak sunca između 00:00 i 11:59, a zalazak između 12:00 i 23:59.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Cirkadijalni način</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Od zore do sumraka</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Ručno</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Izlazak sunca</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Zalazak sunca</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Primijeni</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>Filtar prati sunce na vašem mjestu. Razina %1 do %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>Zbog nestabilne internetske veze ili drugih poteškoća vremena sunca nisu primljena. Prijeđite na ručni način.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Vremenske podatke pruža</translation>
    </message>
    <message>
        <source>Set your location</source>
        <translation>Postavi lokaciju</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Razina tijekom dana</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Smanjeno plavo svjetlo Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Smanjeno plavo svjetlo</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Razina</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Cirkadijalni način</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Način</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Ručno</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Od zore do sumraka</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Noćna zaštita</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>Automatsko prebacivanje uključuje i isključuje noćnu zaštitu prema svjetlu u prostoriji i tako bez truda čuva oči.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Razina</translation>
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
        <translation>Smart KVM Basic je uključen</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Želite li prijeći u način PBP?</translation>
    </message>
    <message>
        <source>Smart KVM Basic works only in PBP Mode. Turning off PBP Mode will also disable Smart KVM Basic.</source>
        <translation>Smart KVM Basic radi samo u načinu PBP. Isključivanjem načina PBP isključuje se i Smart KVM Basic.</translation>
    </message>
    <message>
        <source>Smart KVM Basic</source>
        <translation>Smart KVM Basic</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Lijevo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Desno</translation>
    </message>
    <message>
        <source>Orvane Smart KVM Basic makes multitasking effortless - use one keyboard and mouse to control two computers. With automatic switching when your cursor crosses the screen edge, you can work seamlessly across systems. Just install Lumen Desk 2 on both devices and enable PBP Mode to get started.</source>
        <translation>Orvane Smart KVM Basic olakšava rad na više računala – jednom tipkovnicom i mišem upravljajte dvama računalima. Prebacivanje je automatsko kad pokazivač prijeđe rub zaslona. Instalirajte Lumen Desk 2 na oba uređaja i uključite način PBP.</translation>
    </message>
</context>
<context>
    <name>LuSmartKvmWidget</name>
    <message>
        <source>Driver installation is required</source>
        <translation>Potrebna je instalacija upravljačkog programa</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Povezano</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Traženje</translation>
    </message>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Smart KVM Enabled</source>
        <translation>Smart KVM uključen</translation>
    </message>
    <message>
        <source>Driver installation is required.</source>
        <translation>Potrebna je instalacija upravljačkog programa.</translation>
    </message>
    <message>
        <source>Smart KVM requires your permission to install its driver. Would you like to install it now?</source>
        <translation>Smart KVM treba vaše dopuštenje za instalaciju upravljačkog programa. Instalirati sada?</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Želite li prijeći u način PBP?</translation>
    </message>
    <message>
        <source>Smart KVM only works in PBP mode. If you'd like to continue using Smart KVM, we can switch to PBP mode for you.</source>
        <translation>Smart KVM radi samo u načinu PBP. Ako ga želite dalje koristiti, prijeći ćemo u način PBP za vas.</translation>
    </message>
    <message>
        <source>Smart KVM</source>
        <translation>Smart KVM</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Lijevo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Desno</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Gore</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Dolje</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Noćna zaštita</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automatski</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Uključeno</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Isključeno</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Noćna zaštita</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Razina</translation>
    </message>
</context>
<context>
    <name>PictureGoneNote</name>
    <message>
        <source>This computer's picture goes away with its input. %1 brings it back.</source>
        <translation>Slika ovog računala nestaje s njegovim ulazom. Vraća je %1.</translation>
    </message>
    <message>
        <source>This computer's picture goes away with its input. Choose %1 in the monitor's menu to bring it back.</source>
        <translation>Slika ovog računala nestaje s njegovim ulazom. Vratite je odabirom %1 u izborniku monitora.</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Natrag na %1</translation>
    </message>
    <message>
        <source>Turn on shortcuts</source>
        <translation>Uključi prečace</translation>
    </message>
</context>
<context>
    <name>PipOptions</name>
    <message>
        <source>Sub size</source>
        <translation>Veličina prozora</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Malo</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Srednje</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Veliko</translation>
    </message>
    <message>
        <source>Sub position</source>
        <translation>Položaj prozora</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Gore desno</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>Gore lijevo</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Dolje desno</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Dolje lijevo</translation>
    </message>
</context>
<context>
    <name>PipPbpPage</name>
    <message>
        <source>Picture in picture</source>
        <translation>Slika u slici</translation>
    </message>
    <message>
        <source>Half and half</source>
        <translation>Pola-pola</translation>
    </message>
    <message>
        <source>Four windows</source>
        <translation>Četiri prozora</translation>
    </message>
    <message>
        <source>16 : 9 and 9 : 5</source>
        <translation>16 : 9 i 9 : 5</translation>
    </message>
    <message>
        <source>Two to one</source>
        <translation>Dva naprama jedan</translation>
    </message>
    <message>
        <source>Three to one</source>
        <translation>Tri naprama jedan</translation>
    </message>
    <message>
        <source>Audio Source</source>
        <translation>Izvor zvuka</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Lijevo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Desno</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Zamijeni</translation>
    </message>
</context>
<context>
    <name>TwoWindows</name>
    <message>
        <source>Main:</source>
        <translation>Glavni:</translation>
    </message>
    <message>
        <source>Sub:</source>
        <translation>Pomoćni:</translation>
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
        <translation>Lijevo:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Desno:</translation>
    </message>
</context>
<context>
    <name>LuBrightnessWidget</name>
    <message>
        <source>Brightness</source>
        <translation>Svjetlina</translation>
    </message>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Način boje / Svjetlina</translation>
    </message>
</context>
<context>
    <name>BrightnessPage</name>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Način boje / Svjetlina</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Način boje</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Svjetlina</translation>
    </message>
    <message>
        <source>Software Dimming</source>
        <translation>Softversko zatamnjenje</translation>
    </message>
    <message>
        <source>Darkens the picture below the lowest brightness of the monitor. Ambient brightness functions switch it off for as long as they run.</source>
        <translation>Zatamnjuje sliku ispod najmanje svjetline monitora. Funkcije ambijentalnog svjetla isključuju je dok rade.</translation>
    </message>
    <message>
        <source>Brightness Sync</source>
        <translation>Sinkronizacija svjetline</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Oštrina</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Nijansa</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Zasićenost</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gama</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Raspon boja</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Ujednačenost</translation>
    </message>
    <message>
        <source>Reset Color</source>
        <translation>Vrati boje</translation>
    </message>
</context>
<context>
    <name>BrightnessSliders</name>
    <message>
        <source>Software Dimming</source>
        <translation>Softversko zatamnjenje</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Svjetlina</translation>
    </message>
</context>
<context>
    <name>ColorModeChoice</name>
    <message>
        <source>Color Mode</source>
        <translation>Način boje</translation>
    </message>
</context>
<context>
    <name>ColorTemperatureControls</name>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatura boje</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Crvena</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Zelena</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Plava</translation>
    </message>
</context>
<context>
    <name>AxisControls</name>
    <message>
        <source>Red</source>
        <translation>Crvena</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Žuta</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Zelena</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cijan</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Plava</translation>
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
        <translation>Svjetlina</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Oštrina</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatura boje</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Nijansa</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Zasićenost</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gama</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Raspon boja</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Ujednačenost</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Smanjeno plavo svjetlo</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Noćna zaštita</translation>
    </message>
    <message>
        <source>Ambient brightness</source>
        <translation>Ambijentalna svjetlina</translation>
    </message>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Povezano s načinom boje</translation>
    </message>
    <message>
        <source>Stored for each color mode: %1.</source>
        <translation>Sprema se za svaki način boje: %1.</translation>
    </message>
</context>
<context>
    <name>LuBuiltInBrightnessWidget</name>
    <message>
        <source>Built-in brightness</source>
        <translation>Ugrađena svjetlina</translation>
    </message>
</context>
<context>
    <name>LuColorWeaknessWidget</name>
    <message>
        <source>Color Weakness</source>
        <translation>Sljepoća za boje</translation>
    </message>
    <message>
        <source>Red: %1</source>
        <translation>Crvena: %1</translation>
    </message>
    <message>
        <source>Green: %1</source>
        <translation>Zelena: %1</translation>
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
        <translation>Zbog postavki skaliranja sustava macOS HDR trenutačno nije dostupan. Isključite HiDPI ili smanjite razlučivost.</translation>
    </message>
    <message>
        <source>This monitor has no HDR mode to switch to.</source>
        <translation>Ovaj monitor nema HDR način.</translation>
    </message>
</context>
<context>
    <name>LuPopupColorModeAction</name>
    <message>
        <source>Color Mode</source>
        <translation>Način boje</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Svjetlina</translation>
    </message>
</context>
<context>
    <name>LuPopupBrightnessShortcut</name>
    <message>
        <source>Brightness</source>
        <translation>Svjetlina</translation>
    </message>
</context>
<context>
    <name>LuPopupIccSyncHint</name>
    <message>
        <source>Color Sync</source>
        <translation>Sinkronizacija boja</translation>
    </message>
    <message>
        <source>The color profile of the desktop now follows the color mode of this monitor.</source>
        <translation>Profil boja radne površine sada prati način boje ovog monitora.</translation>
    </message>
</context>
<context>
    <name>PackageStrings</name>
    <message>
        <source>Coding - Light Theme</source>
        <translation>Kodiranje – svijetla tema</translation>
    </message>
    <message>
        <source>Coding - Dark Theme</source>
        <translation>Kodiranje – tamna tema</translation>
    </message>
    <message>
        <source>Coding - Paper Color</source>
        <translation>Kodiranje – boja papira</translation>
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
        <translation>Igra</translation>
    </message>
    <message>
        <source>ePaper</source>
        <translation>ePaper</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Korisnik</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normalno</translation>
    </message>
    <message>
        <source>Bluish</source>
        <translation>Plavkasto</translation>
    </message>
    <message>
        <source>Reddish</source>
        <translation>Crvenkasto</translation>
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
        <translation>O funkciji %1</translation>
    </message>
    <message>
        <source>To meet individual preferences, %1 allows manual control of screen brightness. It learns and records your last adjustment, applying it to optimize its automatic brightness adjustment curve to better match your preferences.</source>
        <translation>%1 dopušta ručno podešavanje svjetline prema vašim željama. Pamti vašu zadnju prilagodbu i njome bolje usklađuje krivulju automatske svjetline.</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parametar</translation>
    </message>
    <message>
        <source>Brightness + Color Temperature</source>
        <translation>Svjetlina + temperatura boje</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Svjetlina</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>Mjerač svjetla</translation>
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
        <translation>Mjerač svjetla</translation>
    </message>
</context>
<context>
    <name>SensitivitySlider</name>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Osjetljivost senzora</translation>
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
        <translation>Automatsko prigušivanje</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Uključeno</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Isključeno</translation>
    </message>
</context>
<context>
    <name>BackLightControls</name>
    <message>
        <source>Brightness</source>
        <translation>Svjetlina</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatura boje</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Način svjetla</translation>
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
        <translation>Automatsko prigušivanje prilagođava svjetlinu BackGlowa svjetlu u prostoriji i čuva oči u polumraku. Može se koristiti samo kad je uključen A.B. Gen2.</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Vezanje uz način boja</translation>
    </message>
    <message>
        <source>The system will automatically switch to the bundled BackGlow settings when you change the color mode.</source>
        <translation>Pri promjeni načina boja primjenjuju se postavke BackGlowa koje mu pripadaju.</translation>
    </message>
    <message>
        <source>Non-stop Mode</source>
        <translation>Neprekidni način</translation>
    </message>
    <message>
        <source>To activate BackGlow while the monitor is in sleep mode, you can enable the non-stop mode.</source>
        <translation>Da bi BackGlow svijetlio i dok monitor spava, uključite neprekidni način.</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Više</translation>
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
        <translation>Blizu</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Srednje</translation>
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
        <translation>Priguši monitor nakon neaktivnosti.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Način</translation>
    </message>
    <message>
        <source>Display + BackGlow</source>
        <translation>Zaslon + BackGlow</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Zaslon</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Osjetljivost senzora</translation>
    </message>
    <message>
        <source>EcoPrivacy helps protect your screen privacy and dims your monitor after inactivity through your built-in monitor sensor.</source>
        <translation>EcoPrivacy štiti privatnost zaslona i ugrađenim senzorom prigušuje monitor pri neaktivnosti.</translation>
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
        <translation>Osjetljivost senzora</translation>
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
        <translation>Mjerač svjetla</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Uključeno</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Isključeno</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Osjetljivost senzora</translation>
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
        <translation>Svjetlina</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatura boje</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Način svjetla</translation>
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
        <translation>Priguši monitor nakon %1</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Osjetljivost senzora</translation>
    </message>
</context>
<context>
    <name>LuShortcutsWidget</name>
    <message>
        <source>Shortcuts</source>
        <translation>Prečaci</translation>
    </message>
    <message>
        <source>The key combination can not be used.</source>
        <translation>Ova se kombinacija tipki ne može koristiti.</translation>
    </message>
    <message>
        <source>This shortcut cannot be used as it is currently being used by another function.</source>
        <translation>Ovaj se prečac ne može koristiti jer ga već koristi druga funkcija.</translation>
    </message>
    <message>
        <source>Reset All Shortcuts</source>
        <translation>Vrati sve prečace</translation>
    </message>
    <message>
        <source>To reset your keyboard shortcuts, click on the 'Reset' button below. Once confirmed, the app will immediately restore the default settings.</source>
        <translation>Za vraćanje prečaca kliknite „Vrati“ u nastavku. Nakon potvrde aplikacija odmah vraća zadane postavke.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Vrati</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Odustani</translation>
    </message>
</context>
<context>
    <name>ShortcutRows</name>
    <message>
        <source>Input</source>
        <translation>Ulaz</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Način boja</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Svjetlina</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Glasnoća</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Noćna zaštita</translation>
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
        <translation>Dodatno kopiranje/lijepljenje</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>Smanji</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>Povećaj</translation>
    </message>
    <message>
        <source>TurnOn/Off</source>
        <translation>Uključi/isključi</translation>
    </message>
    <message>
        <source>Loop all KVM switch</source>
        <translation>Prolazi kroz sve KVM priključke</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiraj</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Zalijepi</translation>
    </message>
    <message>
        <source>This function supports image, text, file, and URL formats. Copying other types of content may impact the content of the clipboard.</source>
        <translation>Ova funkcija podržava slike, tekst, datoteke i URL-ove. Kopiranje drugih sadržaja može utjecati na međuspremnik.</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <translation>Prebaci na %1</translation>
    </message>
    <message>
        <source>Loop all color mode</source>
        <translation>Prolazi kroz sve načine boja</translation>
    </message>
    <message>
        <source>Loop all Audio Mode</source>
        <translation>Prolazi kroz sve načine zvuka</translation>
    </message>
    <message>
        <source>Loop all speaker output</source>
        <translation>Prolazi kroz sve zvučnike</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Utišaj</translation>
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
        <translation>Glasnoća se može namjestiti na glavnoj stranici u svakom trenutku. Proširite izbornik da odaberete izvor zvuka.</translation>
    </message>
    <message>
        <source>iKeyboard Control</source>
        <translation>Upravljanje iKeyboard</translation>
    </message>
    <message>
        <source>Enable iKeyboard Control to use the F11/F12 volume keys on Mac keyboard to adjust the volume of the selected audio output.</source>
        <translation>Uključite upravljanje iKeyboard da tipkama F11/F12 na Mac tipkovnici namještate glasnoću odabranog izlaza.</translation>
    </message>
</context>
<context>
    <name>AudioModeChoice</name>
    <message>
        <source>Audio Mode</source>
        <translation>Način zvuka</translation>
    </message>
</context>
<context>
    <name>Equaliser</name>
    <message>
        <source>Equalizer Setting</source>
        <translation>Postavke ekvilizatora</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>VRATI</translation>
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
        <translation>Izlaz</translation>
    </message>
    <message>
        <source>Sound Settings</source>
        <translation>Postavke zvuka</translation>
    </message>
</context>
<context>
    <name>VolumePage</name>
    <message>
        <source>Volume</source>
        <translation>Glasnoća</translation>
    </message>
    <message>
        <source>System's volume</source>
        <translation>Glasnoća sustava</translation>
    </message>
    <message>
        <source>Audio Mode</source>
        <translation>Način zvuka</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Izlaz</translation>
    </message>
    <message>
        <source>The volume of this monitor can be set while the system plays through it.</source>
        <translation>Glasnoća ovog monitora može se namjestiti dok sustav reproducira preko njega.</translation>
    </message>
</context>
<context>
    <name>LuPopupVolumeShortcut</name>
    <message>
        <source>Volume</source>
        <translation>Glasnoća</translation>
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
        <translation>Glasnoća</translation>
    </message>
    <message>
        <source>Audio Mode :</source>
        <translation>Način zvuka:</translation>
    </message>
</context>
<context>
    <name>Walkthrough</name>
    <message>
        <source>BackGlow Auto-dimming</source>
        <translation>BackGlow: automatsko prigušivanje</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Noćna zaštita</translation>
    </message>
    <message>
        <source>The light behind your monitor dims with the room, so that your eyes stay at ease.</source>
        <translation>Svjetlo iza monitora prigušuje se zajedno s prostorijom kako bi vam oči ostale odmorne.</translation>
    </message>
    <message>
        <source>After dark the picture turns darker than the lowest brightness, without losing its details.</source>
        <translation>Nakon mraka slika postaje tamnija od najniže svjetline, a da ne gubi pojedinosti.</translation>
    </message>
</context>
</TS>
