<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>FourWindows</name>
    <message>
        <source>Upper left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>En bas à droite</translation>
    </message>
</context>
<context>
    <name>KvmPage</name>
    <message>
        <source>Current Device Location</source>
        <translation>Emplacement de cet appareil</translation>
    </message>
    <message>
        <source>Connected to the other computer</source>
        <translation>Connecté à l'autre ordinateur</translation>
    </message>
    <message>
        <source>Connect the other computer</source>
        <translation>Connecter l'autre ordinateur</translation>
    </message>
</context>
<context>
    <name>KvmPorts</name>
    <message>
        <source>Auto Switch</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>USB-C Upstream</source>
        <translation>Amont USB-C</translation>
    </message>
    <message>
        <source>USB-B Upstream</source>
        <translation>Amont USB-B</translation>
    </message>
    <message>
        <source>TBT Upstream</source>
        <translation>Amont TBT</translation>
    </message>
</context>
<context>
    <name>LuAiContrastWidget</name>
    <message>
        <source>Local Contrast</source>
        <translation>Contraste local</translation>
    </message>
    <message>
        <source>AI Contrast</source>
        <translation>Contraste IA</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Pivotement automatique</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Pivotement de l’écran</translation>
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
        <translation>Un seul câble pour relier facilement tous vos moniteurs.</translation>
    </message>
    <message>
        <source>About Daisy Chain (MST)</source>
        <translation>À propos de Daisy Chain (MST)</translation>
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
        <translation>Principal : </translation>
    </message>
    <message>
        <source>Left: </source>
        <translation>Gauche : </translation>
    </message>
    <message>
        <source>Sub: </source>
        <translation>Secondaire : </translation>
    </message>
    <message>
        <source>Right: </source>
        <translation>Droite : </translation>
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
        <translation>Gauche :</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Droite :</translation>
    </message>
</context>
<context>
    <name>LuInputSourceWidget</name>
    <message>
        <source>Input source</source>
        <translation>Source d'entrée</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Built-in</source>
        <translation>Intégré</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnue</translation>
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
        <translation>Voulez-vous désactiver le mode PBP et %1 ?</translation>
    </message>
    <message>
        <source>%1 only works in PBP mode. If you choose to turn off PBP mode, %1 will be disabled as well.</source>
        <translation>%1 ne fonctionne qu'en mode PBP. Si vous désactivez le mode PBP, %1 sera aussi désactivé.</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Pivotement</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Pivotement de l’écran</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Lumière bleue réduite Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Lumière bleue réduite</translation>
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
        <translation>Hors limites</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>Réglez le lever du soleil entre 00:00 et 11:59 et le coucher entre 12:00 et 23:59.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Mode circadien</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Lever au coucher</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Lever du soleil</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Coucher du soleil</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>Le filtre suit le soleil de votre lieu. Niveau %1 jusqu'à %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>En raison d'une connexion instable ou d'un autre problème, les heures du soleil n'ont pas pu être reçues. Passez en mode manuel.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Données météo fournies par</translation>
    </message>
    <message>
        <source>Set your location</source>
        <translation>Définir votre position</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Niveau au fil de la journée</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Lumière bleue réduite Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Lumière bleue réduite</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Mode circadien</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Lever au coucher</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protection nocturne</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>Le mode automatique active ou désactive la protection nocturne selon la lumière ambiante, pour un confort des yeux sans effort.</translation>
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
        <translation>Smart KVM Basic est activé</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Voulez-vous passer en mode PBP ?</translation>
    </message>
    <message>
        <source>Smart KVM Basic works only in PBP Mode. Turning off PBP Mode will also disable Smart KVM Basic.</source>
        <translation>Smart KVM Basic ne fonctionne qu'en mode PBP. Désactiver le mode PBP désactive aussi Smart KVM Basic.</translation>
    </message>
    <message>
        <source>Smart KVM Basic</source>
        <translation>Smart KVM Basic</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Orvane Smart KVM Basic makes multitasking effortless - use one keyboard and mouse to control two computers. With automatic switching when your cursor crosses the screen edge, you can work seamlessly across systems. Just install Lumen Desk 2 on both devices and enable PBP Mode to get started.</source>
        <translation>Orvane Smart KVM Basic simplifie le multitâche : un seul clavier et une seule souris commandent deux ordinateurs. Le passage est automatique quand le curseur franchit le bord de l'écran. Installez Lumen Desk 2 sur les deux appareils et activez le mode PBP pour commencer.</translation>
    </message>
</context>
<context>
    <name>LuSmartKvmWidget</name>
    <message>
        <source>Driver installation is required</source>
        <translation>Installation du pilote requise</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Smart KVM Enabled</source>
        <translation>Smart KVM activé</translation>
    </message>
    <message>
        <source>Driver installation is required.</source>
        <translation>Installation du pilote requise.</translation>
    </message>
    <message>
        <source>Smart KVM requires your permission to install its driver. Would you like to install it now?</source>
        <translation>Smart KVM a besoin de votre autorisation pour installer son pilote. L'installer maintenant ?</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Voulez-vous passer en mode PBP ?</translation>
    </message>
    <message>
        <source>Smart KVM only works in PBP mode. If you'd like to continue using Smart KVM, we can switch to PBP mode for you.</source>
        <translation>Smart KVM ne fonctionne qu'en mode PBP. Pour continuer à l'utiliser, nous pouvons passer en mode PBP pour vous.</translation>
    </message>
    <message>
        <source>Smart KVM</source>
        <translation>Smart KVM</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bas</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protection nocturne</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protection nocturne</translation>
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
        <translation>L'image de cet ordinateur disparaît avec son entrée. %1 la fait revenir.</translation>
    </message>
    <message>
        <source>This computer's picture goes away with its input. Choose %1 in the monitor's menu to bring it back.</source>
        <translation>L'image de cet ordinateur disparaît avec son entrée. Choisissez %1 dans le menu du moniteur pour la faire revenir.</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Revenir à %1</translation>
    </message>
    <message>
        <source>Turn on shortcuts</source>
        <translation>Activer les raccourcis</translation>
    </message>
</context>
<context>
    <name>PipOptions</name>
    <message>
        <source>Sub size</source>
        <translation>Taille de la fenêtre</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Petite</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grande</translation>
    </message>
    <message>
        <source>Sub position</source>
        <translation>Position de la fenêtre</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>En bas à gauche</translation>
    </message>
</context>
<context>
    <name>PipPbpPage</name>
    <message>
        <source>Picture in picture</source>
        <translation>Image dans l'image</translation>
    </message>
    <message>
        <source>Half and half</source>
        <translation>Moitié-moitié</translation>
    </message>
    <message>
        <source>Four windows</source>
        <translation>Quatre fenêtres</translation>
    </message>
    <message>
        <source>16 : 9 and 9 : 5</source>
        <translation>16 : 9 et 9 : 5</translation>
    </message>
    <message>
        <source>Two to one</source>
        <translation>Deux pour un</translation>
    </message>
    <message>
        <source>Three to one</source>
        <translation>Trois pour un</translation>
    </message>
    <message>
        <source>Audio Source</source>
        <translation>Source audio</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Permuter</translation>
    </message>
</context>
<context>
    <name>TwoWindows</name>
    <message>
        <source>Main:</source>
        <translation>Principal :</translation>
    </message>
    <message>
        <source>Sub:</source>
        <translation>Secondaire :</translation>
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
        <translation>Gauche :</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Droite :</translation>
    </message>
</context>
<context>
    <name>LuBrightnessWidget</name>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Mode couleur / Luminosité</translation>
    </message>
</context>
<context>
    <name>BrightnessPage</name>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Mode couleur / Luminosité</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Mode couleur</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Software Dimming</source>
        <translation>Atténuation logicielle</translation>
    </message>
    <message>
        <source>Darkens the picture below the lowest brightness of the monitor. Ambient brightness functions switch it off for as long as they run.</source>
        <translation>Assombrit l’image en dessous de la luminosité minimale du moniteur. Les fonctions de lumière ambiante la désactivent tant qu’elles sont actives.</translation>
    </message>
    <message>
        <source>Brightness Sync</source>
        <translation>Synchro luminosité</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Netteté</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Teinte</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Gamme de couleurs</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Uniformité</translation>
    </message>
    <message>
        <source>Reset Color</source>
        <translation>Réinitialiser couleurs</translation>
    </message>
</context>
<context>
    <name>BrightnessSliders</name>
    <message>
        <source>Software Dimming</source>
        <translation>Atténuation logicielle</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
</context>
<context>
    <name>ColorModeChoice</name>
    <message>
        <source>Color Mode</source>
        <translation>Mode couleur</translation>
    </message>
</context>
<context>
    <name>ColorTemperatureControls</name>
    <message>
        <source>Color Temperature</source>
        <translation>Température de couleur</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
</context>
<context>
    <name>AxisControls</name>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>ModeBundleHint</name>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Netteté</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Température de couleur</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Teinte</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Gamme de couleurs</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Uniformité</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Lumière bleue réduite</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protection nocturne</translation>
    </message>
    <message>
        <source>Ambient brightness</source>
        <translation>Lumière ambiante</translation>
    </message>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Lié au mode couleur</translation>
    </message>
    <message>
        <source>Stored for each color mode: %1.</source>
        <translation>Enregistré pour chaque mode couleur : %1.</translation>
    </message>
</context>
<context>
    <name>LuBuiltInBrightnessWidget</name>
    <message>
        <source>Built-in brightness</source>
        <translation>Luminosité intégrée</translation>
    </message>
</context>
<context>
    <name>LuColorWeaknessWidget</name>
    <message>
        <source>Color Weakness</source>
        <translation>Daltonisme</translation>
    </message>
    <message>
        <source>Red: %1</source>
        <translation>Rouge : %1</translation>
    </message>
    <message>
        <source>Green: %1</source>
        <translation>Vert : %1</translation>
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
        <translation>En raison de la mise à l’échelle de macOS, le HDR est temporairement indisponible. Désactivez HiDPI ou réduisez la résolution.</translation>
    </message>
    <message>
        <source>This monitor has no HDR mode to switch to.</source>
        <translation>Ce moniteur n’a pas de mode HDR.</translation>
    </message>
</context>
<context>
    <name>LuPopupColorModeAction</name>
    <message>
        <source>Color Mode</source>
        <translation>Mode couleur</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
</context>
<context>
    <name>LuPopupBrightnessShortcut</name>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
</context>
<context>
    <name>LuPopupIccSyncHint</name>
    <message>
        <source>Color Sync</source>
        <translation>Synchro des couleurs</translation>
    </message>
    <message>
        <source>The color profile of the desktop now follows the color mode of this monitor.</source>
        <translation>Le profil de couleur du bureau suit désormais le mode couleur de ce moniteur.</translation>
    </message>
</context>
<context>
    <name>PackageStrings</name>
    <message>
        <source>Coding - Light Theme</source>
        <translation>Code - Thème clair</translation>
    </message>
    <message>
        <source>Coding - Dark Theme</source>
        <translation>Code - Thème sombre</translation>
    </message>
    <message>
        <source>Coding - Paper Color</source>
        <translation>Code - Couleur papier</translation>
    </message>
    <message>
        <source>M-book</source>
        <translation>M-book</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Cinéma</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Jeu</translation>
    </message>
    <message>
        <source>ePaper</source>
        <translation>ePaper</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Bluish</source>
        <translation>Bleuté</translation>
    </message>
    <message>
        <source>Reddish</source>
        <translation>Rougeâtre</translation>
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
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>To meet individual preferences, %1 allows manual control of screen brightness. It learns and records your last adjustment, applying it to optimize its automatic brightness adjustment curve to better match your preferences.</source>
        <translation>%1 permet de régler la luminosité à la main selon vos préférences. Votre dernier réglage est mémorisé et sert à mieux adapter la courbe de luminosité automatique.</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Brightness + Color Temperature</source>
        <translation>Luminosité + température de couleur</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>Indicateur de lumière</translation>
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
        <translation>Indicateur de lumière</translation>
    </message>
</context>
<context>
    <name>SensitivitySlider</name>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensibilité du capteur</translation>
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
        <translation>Gradation automatique</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
</context>
<context>
    <name>BackLightControls</name>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Température de couleur</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Mode d'éclairage</translation>
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
        <translation>La gradation automatique adapte la luminosité de BackGlow à la lumière ambiante et protège vos yeux dans la pénombre. Elle n'est disponible que si A.B. Gen2 est activé.</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Liaison au mode de couleur</translation>
    </message>
    <message>
        <source>The system will automatically switch to the bundled BackGlow settings when you change the color mode.</source>
        <translation>Lorsque vous changez de mode de couleur, les réglages BackGlow associés sont appliqués.</translation>
    </message>
    <message>
        <source>Non-stop Mode</source>
        <translation>Mode continu</translation>
    </message>
    <message>
        <source>To activate BackGlow while the monitor is in sleep mode, you can enable the non-stop mode.</source>
        <translation>Pour que BackGlow reste allumé quand le moniteur est en veille, activez le mode continu.</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
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
        <translation>Proche</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Moyen</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>Loin</translation>
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
        <translation>Assombrir le moniteur après une période d'inactivité.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Display + BackGlow</source>
        <translation>Écran + BackGlow</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Écran</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensibilité du capteur</translation>
    </message>
    <message>
        <source>EcoPrivacy helps protect your screen privacy and dims your monitor after inactivity through your built-in monitor sensor.</source>
        <translation>EcoPrivacy protège la confidentialité de l'écran et assombrit le moniteur en votre absence grâce au capteur intégré.</translation>
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
        <translation>Sensibilité du capteur</translation>
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
        <translation>Indicateur de lumière</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensibilité du capteur</translation>
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
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Température de couleur</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Mode d'éclairage</translation>
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
        <translation>Assombrir le moniteur après %1</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensibilité du capteur</translation>
    </message>
</context>
<context>
    <name>LuShortcutsWidget</name>
    <message>
        <source>Shortcuts</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>The key combination can not be used.</source>
        <translation>Cette combinaison de touches ne peut pas être utilisée.</translation>
    </message>
    <message>
        <source>This shortcut cannot be used as it is currently being used by another function.</source>
        <translation>Ce raccourci ne peut pas être utilisé, car une autre fonction l'utilise déjà.</translation>
    </message>
    <message>
        <source>Reset All Shortcuts</source>
        <translation>Réinitialiser tous les raccourcis</translation>
    </message>
    <message>
        <source>To reset your keyboard shortcuts, click on the 'Reset' button below. Once confirmed, the app will immediately restore the default settings.</source>
        <translation>Pour réinitialiser les raccourcis clavier, cliquez sur « Réinitialiser » ci-dessous. Après confirmation, l'application rétablit aussitôt les réglages par défaut.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>ShortcutRows</name>
    <message>
        <source>Input</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Mode couleur</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protection nocturne</translation>
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
        <translation>Copier/coller supplémentaire</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>Diminuer</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>Augmenter</translation>
    </message>
    <message>
        <source>TurnOn/Off</source>
        <translation>Activer/désactiver</translation>
    </message>
    <message>
        <source>Loop all KVM switch</source>
        <translation>Parcourir les ports KVM</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>This function supports image, text, file, and URL formats. Copying other types of content may impact the content of the clipboard.</source>
        <translation>Cette fonction prend en charge images, textes, fichiers et URL. La copie d'autres contenus peut modifier le presse-papiers.</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <translation>Passer à %1</translation>
    </message>
    <message>
        <source>Loop all color mode</source>
        <translation>Parcourir les modes couleur</translation>
    </message>
    <message>
        <source>Loop all Audio Mode</source>
        <translation>Parcourir les modes audio</translation>
    </message>
    <message>
        <source>Loop all speaker output</source>
        <translation>Parcourir les sorties audio</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muet</translation>
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
        <translation>Le volume se règle à tout moment sur la page principale. Vous pouvez aussi déplier le menu pour choisir la source audio.</translation>
    </message>
    <message>
        <source>iKeyboard Control</source>
        <translation>Contrôle iKeyboard</translation>
    </message>
    <message>
        <source>Enable iKeyboard Control to use the F11/F12 volume keys on Mac keyboard to adjust the volume of the selected audio output.</source>
        <translation>Activez le contrôle iKeyboard pour régler le volume de la sortie audio choisie avec les touches F11/F12 du clavier Mac.</translation>
    </message>
</context>
<context>
    <name>AudioModeChoice</name>
    <message>
        <source>Audio Mode</source>
        <translation>Mode audio</translation>
    </message>
</context>
<context>
    <name>Equaliser</name>
    <message>
        <source>Equalizer Setting</source>
        <translation>Réglage de l’égaliseur</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>RÉINITIALISER</translation>
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
        <translation>Sortie</translation>
    </message>
    <message>
        <source>Sound Settings</source>
        <translation>Réglages du son</translation>
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
        <translation>Volume du système</translation>
    </message>
    <message>
        <source>Audio Mode</source>
        <translation>Mode audio</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>The volume of this monitor can be set while the system plays through it.</source>
        <translation>Le volume de cet écran peut être réglé lorsque le système y joue le son.</translation>
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
        <translation>Mode audio :</translation>
    </message>
</context>
<context>
    <name>Walkthrough</name>
    <message>
        <source>BackGlow Auto-dimming</source>
        <translation>BackGlow : gradation automatique</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protection nocturne</translation>
    </message>
    <message>
        <source>The light behind your monitor dims with the room, so that your eyes stay at ease.</source>
        <translation>La lumière derrière votre moniteur s’adapte à celle de la pièce, pour le confort de vos yeux.</translation>
    </message>
    <message>
        <source>After dark the picture turns darker than the lowest brightness, without losing its details.</source>
        <translation>La nuit tombée, l’image devient plus sombre que la luminosité minimale, sans perdre ses détails.</translation>
    </message>
</context>
</TS>
