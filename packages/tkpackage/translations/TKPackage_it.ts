<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>FourWindows</name>
    <message>
        <source>Upper left</source>
        <translation>In alto a sinistra</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>In alto a destra</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>In basso a sinistra</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>In basso a destra</translation>
    </message>
</context>
<context>
    <name>KvmPage</name>
    <message>
        <source>Current Device Location</source>
        <translation>Posizione di questo dispositivo</translation>
    </message>
    <message>
        <source>Connected to the other computer</source>
        <translation>Connesso all'altro computer</translation>
    </message>
    <message>
        <source>Connect the other computer</source>
        <translation>Collega l'altro computer</translation>
    </message>
</context>
<context>
    <name>KvmPorts</name>
    <message>
        <source>Auto Switch</source>
        <translation>Automatico</translation>
    </message>
    <message>
        <source>USB-C Upstream</source>
        <translation>Ingresso USB-C</translation>
    </message>
    <message>
        <source>USB-B Upstream</source>
        <translation>Ingresso USB-B</translation>
    </message>
    <message>
        <source>TBT Upstream</source>
        <translation>Ingresso TBT</translation>
    </message>
</context>
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Contrasto locale</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>Contrasto IA</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Rotazione automatica</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Rotazione dello schermo</translation>
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
        <translation>Un solo cavo per collegare facilmente tutti i monitor.</translation>
    </message>
    <message>
        <source>About Daisy Chain (MST)</source>
        <translation>Informazioni su Daisy Chain (MST)</translation>
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
        <translation>Principale: </translation>
    </message>
    <message>
        <source>Left: </source>
        <translation>Sinistra: </translation>
    </message>
    <message>
        <source>Sub: </source>
        <translation>Secondaria: </translation>
    </message>
    <message>
        <source>Right: </source>
        <translation>Destra: </translation>
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
        <translation>Sinistra:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Destra:</translation>
    </message>
</context>
<context>
    <name>LuInputSourceWidget</name>
    <message>
        <source>Input source</source>
        <translation>Sorgente di ingresso</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Ingresso</translation>
    </message>
    <message>
        <source>Built-in</source>
        <translation>Integrato</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Sconosciuto</translation>
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
        <translation>Disattivare la modalità PBP e %1?</translation>
    </message>
    <message>
        <source>%1 only works in PBP mode. If you choose to turn off PBP mode, %1 will be disabled as well.</source>
        <translation>%1 funziona solo in modalità PBP. Disattivando la modalità PBP verrà disattivato anche %1.</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Rotazione</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Rotazione dello schermo</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Luce blu ridotta Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Luce blu ridotta</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Livello</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>Fuori intervallo</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>Imposta l'alba tra le 00:00 e le 11:59 e il tramonto tra le 12:00 e le 23:59.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Modalità circadiana</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Dall'alba al tramonto</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuale</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Alba</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Tramonto</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>Il filtro segue il sole del luogo. Livello %1 fino alle %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>A causa di una connessione instabile o di altri problemi non è stato possibile ricevere gli orari del sole. Passa alla modalità manuale.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Dati meteo forniti da</translation>
    </message>
    <message>
        <source>Set your location</source>
        <translation>Imposta la tua posizione</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Livello durante il giorno</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Luce blu ridotta Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Luce blu ridotta</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Livello</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Modalità circadiana</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modalità</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuale</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Dall'alba al tramonto</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protezione notturna</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>La modalità automatica attiva o disattiva la protezione notturna in base alla luce ambientale, per un comfort visivo costante.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Livello</translation>
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
        <translation>Smart KVM Basic è attivo</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Passare alla modalità PBP?</translation>
    </message>
    <message>
        <source>Smart KVM Basic works only in PBP Mode. Turning off PBP Mode will also disable Smart KVM Basic.</source>
        <translation>Smart KVM Basic funziona solo in modalità PBP. Disattivando la modalità PBP si disattiva anche Smart KVM Basic.</translation>
    </message>
    <message>
        <source>Smart KVM Basic</source>
        <translation>Smart KVM Basic</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sinistra</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Destra</translation>
    </message>
    <message>
        <source>Orvane Smart KVM Basic makes multitasking effortless - use one keyboard and mouse to control two computers. With automatic switching when your cursor crosses the screen edge, you can work seamlessly across systems. Just install Lumen Desk 2 on both devices and enable PBP Mode to get started.</source>
        <translation>Orvane Smart KVM Basic semplifica il multitasking: una sola tastiera e un solo mouse per due computer. Il passaggio è automatico quando il cursore supera il bordo dello schermo. Installare Lumen Desk 2 su entrambi i dispositivi e attivare la modalità PBP per iniziare.</translation>
    </message>
</context>
<context>
    <name>LuSmartKvmWidget</name>
    <message>
        <source>Driver installation is required</source>
        <translation>È necessario installare il driver</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connesso</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Ricerca in corso</translation>
    </message>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Smart KVM Enabled</source>
        <translation>Smart KVM attivo</translation>
    </message>
    <message>
        <source>Driver installation is required.</source>
        <translation>È necessario installare il driver.</translation>
    </message>
    <message>
        <source>Smart KVM requires your permission to install its driver. Would you like to install it now?</source>
        <translation>Smart KVM richiede l'autorizzazione per installare il driver. Installarlo ora?</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Passare alla modalità PBP?</translation>
    </message>
    <message>
        <source>Smart KVM only works in PBP mode. If you'd like to continue using Smart KVM, we can switch to PBP mode for you.</source>
        <translation>Smart KVM funziona solo in modalità PBP. Per continuare a usarlo possiamo passare alla modalità PBP.</translation>
    </message>
    <message>
        <source>Smart KVM</source>
        <translation>Smart KVM</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sinistra</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Destra</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>In alto</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>In basso</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protezione notturna</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automatico</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Attivo</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Disattivo</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protezione notturna</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Livello</translation>
    </message>
</context>
<context>
    <name>PictureGoneNote</name>
    <message>
        <source>This computer's picture goes away with its input. %1 brings it back.</source>
        <translation>L'immagine di questo computer scompare con il suo ingresso. %1 la riporta.</translation>
    </message>
    <message>
        <source>This computer's picture goes away with its input. Choose %1 in the monitor's menu to bring it back.</source>
        <translation>L'immagine di questo computer scompare con il suo ingresso. Per riportarla scegliere %1 nel menu del monitor.</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Torna a %1</translation>
    </message>
    <message>
        <source>Turn on shortcuts</source>
        <translation>Attiva scorciatoie</translation>
    </message>
</context>
<context>
    <name>PipOptions</name>
    <message>
        <source>Sub size</source>
        <translation>Dimensione finestra</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Piccola</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grande</translation>
    </message>
    <message>
        <source>Sub position</source>
        <translation>Posizione finestra</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>In alto a destra</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>In alto a sinistra</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>In basso a destra</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>In basso a sinistra</translation>
    </message>
</context>
<context>
    <name>PipPbpPage</name>
    <message>
        <source>Picture in picture</source>
        <translation>Immagine nell'immagine</translation>
    </message>
    <message>
        <source>Half and half</source>
        <translation>Metà e metà</translation>
    </message>
    <message>
        <source>Four windows</source>
        <translation>Quattro finestre</translation>
    </message>
    <message>
        <source>16 : 9 and 9 : 5</source>
        <translation>16 : 9 e 9 : 5</translation>
    </message>
    <message>
        <source>Two to one</source>
        <translation>Due a uno</translation>
    </message>
    <message>
        <source>Three to one</source>
        <translation>Tre a uno</translation>
    </message>
    <message>
        <source>Audio Source</source>
        <translation>Sorgente audio</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sinistra</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Destra</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Scambia</translation>
    </message>
</context>
<context>
    <name>TwoWindows</name>
    <message>
        <source>Main:</source>
        <translation>Principale:</translation>
    </message>
    <message>
        <source>Sub:</source>
        <translation>Secondaria:</translation>
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
        <translation>Sinistra:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Destra:</translation>
    </message>
</context>
<context>
    <name>LuBrightnessWidget</name>
    <message>
        <source>Brightness</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Modalità colore / Luminosità</translation>
    </message>
</context>
<context>
    <name>BrightnessPage</name>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Modalità colore / Luminosità</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Modalità colore</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>Software Dimming</source>
        <translation>Attenuazione software</translation>
    </message>
    <message>
        <source>Darkens the picture below the lowest brightness of the monitor. Ambient brightness functions switch it off for as long as they run.</source>
        <translation>Scurisce l’immagine oltre la luminosità minima del monitor. Le funzioni di luce ambientale la disattivano finché sono attive.</translation>
    </message>
    <message>
        <source>Brightness Sync</source>
        <translation>Sincronizza luminosità</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrasto</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Nitidezza</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Tonalità</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturazione</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Gamma colori</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Uniformità</translation>
    </message>
    <message>
        <source>Reset Color</source>
        <translation>Ripristina colori</translation>
    </message>
</context>
<context>
    <name>BrightnessSliders</name>
    <message>
        <source>Software Dimming</source>
        <translation>Attenuazione software</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosità</translation>
    </message>
</context>
<context>
    <name>ColorModeChoice</name>
    <message>
        <source>Color Mode</source>
        <translation>Modalità colore</translation>
    </message>
</context>
<context>
    <name>ColorTemperatureControls</name>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatura colore</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rosso</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blu</translation>
    </message>
</context>
<context>
    <name>AxisControls</name>
    <message>
        <source>Red</source>
        <translation>Rosso</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Giallo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Ciano</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blu</translation>
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
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrasto</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Nitidezza</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatura colore</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Tonalità</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturazione</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Gamma colori</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Uniformità</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Luce blu ridotta</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protezione notturna</translation>
    </message>
    <message>
        <source>Ambient brightness</source>
        <translation>Luce ambientale</translation>
    </message>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Legato alla modalità colore</translation>
    </message>
    <message>
        <source>Stored for each color mode: %1.</source>
        <translation>Salvato per ogni modalità colore: %1.</translation>
    </message>
</context>
<context>
    <name>LuBuiltInBrightnessWidget</name>
    <message>
        <source>Built-in brightness</source>
        <translation>Luminosità integrata</translation>
    </message>
</context>
<context>
    <name>LuColorWeaknessWidget</name>
    <message>
        <source>Color Weakness</source>
        <translation>Daltonismo</translation>
    </message>
    <message>
        <source>Red: %1</source>
        <translation>Rosso: %1</translation>
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
        <translation>A causa del ridimensionamento di macOS, HDR non è al momento disponibile. Disattivare HiDPI o ridurre la risoluzione.</translation>
    </message>
    <message>
        <source>This monitor has no HDR mode to switch to.</source>
        <translation>Questo monitor non ha una modalità HDR.</translation>
    </message>
</context>
<context>
    <name>LuPopupColorModeAction</name>
    <message>
        <source>Color Mode</source>
        <translation>Modalità colore</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosità</translation>
    </message>
</context>
<context>
    <name>LuPopupBrightnessShortcut</name>
    <message>
        <source>Brightness</source>
        <translation>Luminosità</translation>
    </message>
</context>
<context>
    <name>LuPopupIccSyncHint</name>
    <message>
        <source>Color Sync</source>
        <translation>Sincronizzazione colore</translation>
    </message>
    <message>
        <source>The color profile of the desktop now follows the color mode of this monitor.</source>
        <translation>Il profilo colore del desktop segue ora la modalità colore di questo monitor.</translation>
    </message>
</context>
<context>
    <name>PackageStrings</name>
    <message>
        <source>Coding - Light Theme</source>
        <translation>Codice - Tema chiaro</translation>
    </message>
    <message>
        <source>Coding - Dark Theme</source>
        <translation>Codice - Tema scuro</translation>
    </message>
    <message>
        <source>Coding - Paper Color</source>
        <translation>Codice - Colore carta</translation>
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
        <translation>Gioco</translation>
    </message>
    <message>
        <source>ePaper</source>
        <translation>ePaper</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utente</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Bluish</source>
        <translation>Bluastro</translation>
    </message>
    <message>
        <source>Reddish</source>
        <translation>Rossastro</translation>
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
        <translation>Informazioni su %1</translation>
    </message>
    <message>
        <source>To meet individual preferences, %1 allows manual control of screen brightness. It learns and records your last adjustment, applying it to optimize its automatic brightness adjustment curve to better match your preferences.</source>
        <translation>%1 permette di regolare la luminosità anche a mano. Impara e memorizza l'ultima regolazione e la applica per adattare meglio la curva automatica alle tue preferenze.</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parametro</translation>
    </message>
    <message>
        <source>Brightness + Color Temperature</source>
        <translation>Luminosità + temperatura colore</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>Misuratore di luce</translation>
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
        <translation>Misuratore di luce</translation>
    </message>
</context>
<context>
    <name>SensitivitySlider</name>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensibilità del sensore</translation>
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
        <translation>Attenuazione automatica</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Attivo</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Disattivo</translation>
    </message>
</context>
<context>
    <name>BackLightControls</name>
    <message>
        <source>Brightness</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatura colore</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Modalità luce</translation>
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
        <translation>L'attenuazione automatica adatta la luminosità di BackGlow alla luce ambientale e protegge gli occhi in penombra. È disponibile solo con A.B. Gen2 attivo.</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Associazione alla modalità colore</translation>
    </message>
    <message>
        <source>The system will automatically switch to the bundled BackGlow settings when you change the color mode.</source>
        <translation>Quando cambi modalità colore vengono applicate le impostazioni BackGlow associate.</translation>
    </message>
    <message>
        <source>Non-stop Mode</source>
        <translation>Modalità continua</translation>
    </message>
    <message>
        <source>To activate BackGlow while the monitor is in sleep mode, you can enable the non-stop mode.</source>
        <translation>Per usare BackGlow mentre il monitor è in standby, attiva la modalità continua.</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Altro</translation>
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
        <translation>Vicino</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>Lontano</translation>
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
        <translation>Attenua il monitor dopo un periodo di inattività.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modalità</translation>
    </message>
    <message>
        <source>Display + BackGlow</source>
        <translation>Schermo + BackGlow</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Schermo</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensibilità del sensore</translation>
    </message>
    <message>
        <source>EcoPrivacy helps protect your screen privacy and dims your monitor after inactivity through your built-in monitor sensor.</source>
        <translation>EcoPrivacy protegge la privacy dello schermo e attenua il monitor in tua assenza grazie al sensore integrato.</translation>
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
        <translation>Sensibilità del sensore</translation>
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
        <translation>Misuratore di luce</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Attivo</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Disattivo</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensibilità del sensore</translation>
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
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatura colore</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Modalità luce</translation>
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
        <translation>Attenua il monitor dopo %1</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensibilità del sensore</translation>
    </message>
</context>
<context>
    <name>LuShortcutsWidget</name>
    <message>
        <source>Shortcuts</source>
        <translation>Scorciatoie</translation>
    </message>
    <message>
        <source>The key combination can not be used.</source>
        <translation>Questa combinazione di tasti non può essere usata.</translation>
    </message>
    <message>
        <source>This shortcut cannot be used as it is currently being used by another function.</source>
        <translation>Questa scorciatoia non può essere usata perché è già assegnata a un'altra funzione.</translation>
    </message>
    <message>
        <source>Reset All Shortcuts</source>
        <translation>Reimposta tutte le scorciatoie</translation>
    </message>
    <message>
        <source>To reset your keyboard shortcuts, click on the 'Reset' button below. Once confirmed, the app will immediately restore the default settings.</source>
        <translation>Per reimpostare le scorciatoie fare clic su “Reimposta” qui sotto. Dopo la conferma l'app ripristina subito le impostazioni predefinite.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reimposta</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>ShortcutRows</name>
    <message>
        <source>Input</source>
        <translation>Ingresso</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Modalità colore</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protezione notturna</translation>
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
        <translation>Copia/incolla aggiuntivo</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>Diminuisci</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>Aumenta</translation>
    </message>
    <message>
        <source>TurnOn/Off</source>
        <translation>Attiva/disattiva</translation>
    </message>
    <message>
        <source>Loop all KVM switch</source>
        <translation>Scorri tutte le porte KVM</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Incolla</translation>
    </message>
    <message>
        <source>This function supports image, text, file, and URL formats. Copying other types of content may impact the content of the clipboard.</source>
        <translation>Questa funzione supporta immagini, testo, file e URL. Copiare altri contenuti può alterare gli Appunti.</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <translation>Passa a %1</translation>
    </message>
    <message>
        <source>Loop all color mode</source>
        <translation>Scorri tutte le modalità colore</translation>
    </message>
    <message>
        <source>Loop all Audio Mode</source>
        <translation>Scorri tutte le modalità audio</translation>
    </message>
    <message>
        <source>Loop all speaker output</source>
        <translation>Scorri tutte le uscite audio</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Disattiva audio</translation>
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
        <translation>Il volume si può regolare in qualsiasi momento nella pagina principale. Espandendo il menu si sceglie anche la sorgente audio.</translation>
    </message>
    <message>
        <source>iKeyboard Control</source>
        <translation>Controllo iKeyboard</translation>
    </message>
    <message>
        <source>Enable iKeyboard Control to use the F11/F12 volume keys on Mac keyboard to adjust the volume of the selected audio output.</source>
        <translation>Attiva il controllo iKeyboard per regolare con i tasti volume F11/F12 della tastiera Mac il volume dell’uscita audio scelta.</translation>
    </message>
</context>
<context>
    <name>AudioModeChoice</name>
    <message>
        <source>Audio Mode</source>
        <translation>Modalità audio</translation>
    </message>
</context>
<context>
    <name>Equaliser</name>
    <message>
        <source>Equalizer Setting</source>
        <translation>Impostazione equalizzatore</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>RIPRISTINA</translation>
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
        <translation>Uscita</translation>
    </message>
    <message>
        <source>Sound Settings</source>
        <translation>Impostazioni audio</translation>
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
        <translation>Volume di sistema</translation>
    </message>
    <message>
        <source>Audio Mode</source>
        <translation>Modalità audio</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Uscita</translation>
    </message>
    <message>
        <source>The volume of this monitor can be set while the system plays through it.</source>
        <translation>Il volume di questo monitor si può regolare mentre il sistema riproduce tramite esso.</translation>
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
        <translation>Modalità audio:</translation>
    </message>
</context>
<context>
    <name>Walkthrough</name>
    <message>
        <source>BackGlow Auto-dimming</source>
        <translation>BackGlow: attenuazione automatica</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protezione notturna</translation>
    </message>
    <message>
        <source>The light behind your monitor dims with the room, so that your eyes stay at ease.</source>
        <translation>La luce dietro il monitor si attenua con la stanza, così i suoi occhi restano riposati.</translation>
    </message>
    <message>
        <source>After dark the picture turns darker than the lowest brightness, without losing its details.</source>
        <translation>Al buio l’immagine diventa più scura della luminosità minima, senza perdere i dettagli.</translation>
    </message>
</context>
</TS>
