<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>FourWindows</name>
    <message>
        <source>Upper left</source>
        <translation>Arriba a la izquierda</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Abajo a la derecha</translation>
    </message>
</context>
<context>
    <name>KvmPage</name>
    <message>
        <source>Current Device Location</source>
        <translation>Ubicación de este dispositivo</translation>
    </message>
    <message>
        <source>Connected to the other computer</source>
        <translation>Conectado con el otro ordenador</translation>
    </message>
    <message>
        <source>Connect the other computer</source>
        <translation>Conectar el otro ordenador</translation>
    </message>
</context>
<context>
    <name>KvmPorts</name>
    <message>
        <source>Auto Switch</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>USB-C Upstream</source>
        <translation>Conexión USB-C</translation>
    </message>
    <message>
        <source>USB-B Upstream</source>
        <translation>Conexión USB-B</translation>
    </message>
    <message>
        <source>TBT Upstream</source>
        <translation>Conexión TBT</translation>
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
        <translation>Contraste con IA</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Giro automático</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Giro de la pantalla</translation>
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
        <translation>Un solo cable para conectar fácilmente todos sus monitores.</translation>
    </message>
    <message>
        <source>About Daisy Chain (MST)</source>
        <translation>Acerca de Daisy Chain (MST)</translation>
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
        <translation>Izquierda: </translation>
    </message>
    <message>
        <source>Sub: </source>
        <translation>Secundaria: </translation>
    </message>
    <message>
        <source>Right: </source>
        <translation>Derecha: </translation>
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
        <translation>Izquierda:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Derecha:</translation>
    </message>
</context>
<context>
    <name>LuInputSourceWidget</name>
    <message>
        <source>Input source</source>
        <translation>Fuente de entrada</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Built-in</source>
        <translation>Integrado</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocida</translation>
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
        <translation>¿Desea desactivar el modo PBP y %1?</translation>
    </message>
    <message>
        <source>%1 only works in PBP mode. If you choose to turn off PBP mode, %1 will be disabled as well.</source>
        <translation>%1 solo funciona en modo PBP. Si desactiva el modo PBP, %1 también se desactivará.</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Giro</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Giro de la pantalla</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Luz azul reducida Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Luz azul reducida</translation>
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
        <translation>Fuera de rango</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>Ajuste el amanecer entre las 00:00 y las 11:59 y el atardecer entre las 12:00 y las 23:59.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Modo circadiano</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Del alba al ocaso</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Amanecer</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Atardecer</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>El filtro sigue al sol de su lugar. Nivel %1 hasta las %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>Por una conexión inestable u otros problemas no se han podido recibir las horas del sol. Cambie al modo manual.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Datos meteorológicos de</translation>
    </message>
    <message>
        <source>Set your location</source>
        <translation>Fijar su ubicación</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Nivel a lo largo del día</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Luz azul reducida Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Luz azul reducida</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Modo circadiano</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Del alba al ocaso</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protección nocturna</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>El modo automático activa o desactiva la protección nocturna según la luz ambiental y cuida la vista sin esfuerzo.</translation>
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
        <translation>Smart KVM Basic está activado</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>¿Desea cambiar al modo PBP?</translation>
    </message>
    <message>
        <source>Smart KVM Basic works only in PBP Mode. Turning off PBP Mode will also disable Smart KVM Basic.</source>
        <translation>Smart KVM Basic solo funciona en modo PBP. Al desactivar el modo PBP también se desactiva Smart KVM Basic.</translation>
    </message>
    <message>
        <source>Smart KVM Basic</source>
        <translation>Smart KVM Basic</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Orvane Smart KVM Basic makes multitasking effortless - use one keyboard and mouse to control two computers. With automatic switching when your cursor crosses the screen edge, you can work seamlessly across systems. Just install Lumen Desk 2 on both devices and enable PBP Mode to get started.</source>
        <translation>Orvane Smart KVM Basic facilita la multitarea: controle dos equipos con un solo teclado y ratón. El cambio es automático cuando el cursor cruza el borde de la pantalla. Instale Lumen Desk 2 en ambos dispositivos y active el modo PBP para empezar.</translation>
    </message>
</context>
<context>
    <name>LuSmartKvmWidget</name>
    <message>
        <source>Driver installation is required</source>
        <translation>Es necesario instalar el controlador</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Buscando</translation>
    </message>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Smart KVM Enabled</source>
        <translation>Smart KVM activado</translation>
    </message>
    <message>
        <source>Driver installation is required.</source>
        <translation>Es necesario instalar el controlador.</translation>
    </message>
    <message>
        <source>Smart KVM requires your permission to install its driver. Would you like to install it now?</source>
        <translation>Smart KVM necesita su permiso para instalar el controlador. ¿Desea instalarlo ahora?</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>¿Desea cambiar al modo PBP?</translation>
    </message>
    <message>
        <source>Smart KVM only works in PBP mode. If you'd like to continue using Smart KVM, we can switch to PBP mode for you.</source>
        <translation>Smart KVM solo funciona en modo PBP. Si desea seguir usándolo, podemos cambiar al modo PBP por usted.</translation>
    </message>
    <message>
        <source>Smart KVM</source>
        <translation>Smart KVM</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Abajo</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protección nocturna</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protección nocturna</translation>
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
        <translation>La imagen de este equipo desaparece con su entrada. %1 la recupera.</translation>
    </message>
    <message>
        <source>This computer's picture goes away with its input. Choose %1 in the monitor's menu to bring it back.</source>
        <translation>La imagen de este equipo desaparece con su entrada. Elija %1 en el menú del monitor para recuperarla.</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Volver a %1</translation>
    </message>
    <message>
        <source>Turn on shortcuts</source>
        <translation>Activar atajos</translation>
    </message>
</context>
<context>
    <name>PipOptions</name>
    <message>
        <source>Sub size</source>
        <translation>Tamaño de la ventana</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Pequeño</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mediano</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grande</translation>
    </message>
    <message>
        <source>Sub position</source>
        <translation>Posición de la ventana</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>Arriba a la izquierda</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Abajo a la derecha</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
</context>
<context>
    <name>PipPbpPage</name>
    <message>
        <source>Picture in picture</source>
        <translation>Imagen en imagen</translation>
    </message>
    <message>
        <source>Half and half</source>
        <translation>Mitad y mitad</translation>
    </message>
    <message>
        <source>Four windows</source>
        <translation>Cuatro ventanas</translation>
    </message>
    <message>
        <source>16 : 9 and 9 : 5</source>
        <translation>16 : 9 y 9 : 5</translation>
    </message>
    <message>
        <source>Two to one</source>
        <translation>Dos a uno</translation>
    </message>
    <message>
        <source>Three to one</source>
        <translation>Tres a uno</translation>
    </message>
    <message>
        <source>Audio Source</source>
        <translation>Fuente de audio</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Intercambiar</translation>
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
        <translation>Secundaria:</translation>
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
        <translation>Izquierda:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Derecha:</translation>
    </message>
</context>
<context>
    <name>LuBrightnessWidget</name>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Modo de color / Brillo</translation>
    </message>
</context>
<context>
    <name>BrightnessPage</name>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Modo de color / Brillo</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Modo de color</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Software Dimming</source>
        <translation>Atenuación por software</translation>
    </message>
    <message>
        <source>Darkens the picture below the lowest brightness of the monitor. Ambient brightness functions switch it off for as long as they run.</source>
        <translation>Oscurece la imagen por debajo del brillo mínimo del monitor. Las funciones de luz ambiental la desactivan mientras funcionan.</translation>
    </message>
    <message>
        <source>Brightness Sync</source>
        <translation>Sincronizar brillo</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Nitidez</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Gama de colores</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Uniformidad</translation>
    </message>
    <message>
        <source>Reset Color</source>
        <translation>Restablecer color</translation>
    </message>
</context>
<context>
    <name>BrightnessSliders</name>
    <message>
        <source>Software Dimming</source>
        <translation>Atenuación por software</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
</context>
<context>
    <name>ColorModeChoice</name>
    <message>
        <source>Color Mode</source>
        <translation>Modo de color</translation>
    </message>
</context>
<context>
    <name>ColorTemperatureControls</name>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatura de color</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
</context>
<context>
    <name>AxisControls</name>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cian</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
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
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Nitidez</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatura de color</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Gama de colores</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Uniformidad</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Luz azul reducida</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protección nocturna</translation>
    </message>
    <message>
        <source>Ambient brightness</source>
        <translation>Brillo ambiental</translation>
    </message>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Vinculado al modo de color</translation>
    </message>
    <message>
        <source>Stored for each color mode: %1.</source>
        <translation>Se guarda para cada modo de color: %1.</translation>
    </message>
</context>
<context>
    <name>LuBuiltInBrightnessWidget</name>
    <message>
        <source>Built-in brightness</source>
        <translation>Brillo integrado</translation>
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
        <translation>Rojo: %1</translation>
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
        <translation>Debido a la escala de macOS, HDR no está disponible temporalmente. Desactive HiDPI o reduzca la resolución.</translation>
    </message>
    <message>
        <source>This monitor has no HDR mode to switch to.</source>
        <translation>Este monitor no tiene un modo HDR.</translation>
    </message>
</context>
<context>
    <name>LuPopupColorModeAction</name>
    <message>
        <source>Color Mode</source>
        <translation>Modo de color</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
</context>
<context>
    <name>LuPopupBrightnessShortcut</name>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
</context>
<context>
    <name>LuPopupIccSyncHint</name>
    <message>
        <source>Color Sync</source>
        <translation>Sincronización de color</translation>
    </message>
    <message>
        <source>The color profile of the desktop now follows the color mode of this monitor.</source>
        <translation>El perfil de color del escritorio sigue ahora el modo de color de este monitor.</translation>
    </message>
</context>
<context>
    <name>PackageStrings</name>
    <message>
        <source>Coding - Light Theme</source>
        <translation>Código - Tema claro</translation>
    </message>
    <message>
        <source>Coding - Dark Theme</source>
        <translation>Código - Tema oscuro</translation>
    </message>
    <message>
        <source>Coding - Paper Color</source>
        <translation>Código - Color papel</translation>
    </message>
    <message>
        <source>M-book</source>
        <translation>M-book</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Cine</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Juego</translation>
    </message>
    <message>
        <source>ePaper</source>
        <translation>ePaper</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Bluish</source>
        <translation>Azulado</translation>
    </message>
    <message>
        <source>Reddish</source>
        <translation>Rojizo</translation>
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
        <translation>Acerca de %1</translation>
    </message>
    <message>
        <source>To meet individual preferences, %1 allows manual control of screen brightness. It learns and records your last adjustment, applying it to optimize its automatic brightness adjustment curve to better match your preferences.</source>
        <translation>%1 permite ajustar el brillo a mano según sus preferencias. Aprende y guarda su último ajuste y lo aplica para adaptar mejor la curva de brillo automático.</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parámetro</translation>
    </message>
    <message>
        <source>Brightness + Color Temperature</source>
        <translation>Brillo + temperatura de color</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Light Meter</source>
        <translation>Medidor de luz</translation>
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
        <translation>Medidor de luz</translation>
    </message>
</context>
<context>
    <name>SensitivitySlider</name>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensibilidad del sensor</translation>
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
        <translation>Atenuación automática</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
</context>
<context>
    <name>BackLightControls</name>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatura de color</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Modo de luz</translation>
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
        <translation>La atenuación automática ajusta el brillo de BackGlow a la luz ambiental y protege la vista con poca luz. Solo puede usarse si A.B. Gen2 está activado.</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Vinculación al modo de color</translation>
    </message>
    <message>
        <source>The system will automatically switch to the bundled BackGlow settings when you change the color mode.</source>
        <translation>Al cambiar el modo de color se aplican los ajustes de BackGlow vinculados a él.</translation>
    </message>
    <message>
        <source>Non-stop Mode</source>
        <translation>Modo continuo</translation>
    </message>
    <message>
        <source>To activate BackGlow while the monitor is in sleep mode, you can enable the non-stop mode.</source>
        <translation>Para que BackGlow funcione con el monitor en reposo, active el modo continuo.</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
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
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>Lejos</translation>
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
        <translation>Atenuar el monitor tras un tiempo de inactividad.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Display + BackGlow</source>
        <translation>Pantalla + BackGlow</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensibilidad del sensor</translation>
    </message>
    <message>
        <source>EcoPrivacy helps protect your screen privacy and dims your monitor after inactivity through your built-in monitor sensor.</source>
        <translation>EcoPrivacy protege la privacidad de la pantalla y atenúa el monitor en su ausencia mediante el sensor integrado.</translation>
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
        <translation>Sensibilidad del sensor</translation>
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
        <translation>Medidor de luz</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensibilidad del sensor</translation>
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
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatura de color</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>Modo de luz</translation>
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
        <translation>Atenuar el monitor tras %1</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensibilidad del sensor</translation>
    </message>
</context>
<context>
    <name>LuShortcutsWidget</name>
    <message>
        <source>Shortcuts</source>
        <translation>Atajos</translation>
    </message>
    <message>
        <source>The key combination can not be used.</source>
        <translation>No se puede usar esta combinación de teclas.</translation>
    </message>
    <message>
        <source>This shortcut cannot be used as it is currently being used by another function.</source>
        <translation>Este atajo no se puede usar porque ya lo utiliza otra función.</translation>
    </message>
    <message>
        <source>Reset All Shortcuts</source>
        <translation>Restablecer todos los atajos</translation>
    </message>
    <message>
        <source>To reset your keyboard shortcuts, click on the 'Reset' button below. Once confirmed, the app will immediately restore the default settings.</source>
        <translation>Para restablecer los atajos de teclado, haga clic en «Restablecer». Al confirmar, la aplicación recupera de inmediato los ajustes predeterminados.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>ShortcutRows</name>
    <message>
        <source>Input</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Modo de color</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protección nocturna</translation>
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
        <translation>Copiar/pegar adicional</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>Aumentar</translation>
    </message>
    <message>
        <source>TurnOn/Off</source>
        <translation>Activar/desactivar</translation>
    </message>
    <message>
        <source>Loop all KVM switch</source>
        <translation>Recorrer todos los puertos KVM</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>This function supports image, text, file, and URL formats. Copying other types of content may impact the content of the clipboard.</source>
        <translation>Esta función admite imágenes, texto, archivos y URL. Copiar otros contenidos puede afectar al portapapeles.</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <translation>Cambiar a %1</translation>
    </message>
    <message>
        <source>Loop all color mode</source>
        <translation>Recorrer todos los modos de color</translation>
    </message>
    <message>
        <source>Loop all Audio Mode</source>
        <translation>Recorrer todos los modos de audio</translation>
    </message>
    <message>
        <source>Loop all speaker output</source>
        <translation>Recorrer todas las salidas de audio</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silenciar</translation>
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
        <translation>El volumen se puede ajustar en la página principal en cualquier momento. También puede desplegar el menú para elegir la fuente de audio.</translation>
    </message>
    <message>
        <source>iKeyboard Control</source>
        <translation>Control iKeyboard</translation>
    </message>
    <message>
        <source>Enable iKeyboard Control to use the F11/F12 volume keys on Mac keyboard to adjust the volume of the selected audio output.</source>
        <translation>Active el control iKeyboard para ajustar con las teclas de volumen F11/F12 del teclado Mac el volumen de la salida de audio elegida.</translation>
    </message>
</context>
<context>
    <name>AudioModeChoice</name>
    <message>
        <source>Audio Mode</source>
        <translation>Modo de audio</translation>
    </message>
</context>
<context>
    <name>Equaliser</name>
    <message>
        <source>Equalizer Setting</source>
        <translation>Ajuste del ecualizador</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>RESTABLECER</translation>
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
        <translation>Salida</translation>
    </message>
    <message>
        <source>Sound Settings</source>
        <translation>Ajustes de sonido</translation>
    </message>
</context>
<context>
    <name>VolumePage</name>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>System's volume</source>
        <translation>Volumen del sistema</translation>
    </message>
    <message>
        <source>Audio Mode</source>
        <translation>Modo de audio</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>The volume of this monitor can be set while the system plays through it.</source>
        <translation>El volumen de este monitor se puede ajustar mientras el sistema suena por él.</translation>
    </message>
</context>
<context>
    <name>LuPopupVolumeShortcut</name>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
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
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Audio Mode :</source>
        <translation>Modo de audio:</translation>
    </message>
</context>
<context>
    <name>Walkthrough</name>
    <message>
        <source>BackGlow Auto-dimming</source>
        <translation>BackGlow: atenuación automática</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Protección nocturna</translation>
    </message>
    <message>
        <source>The light behind your monitor dims with the room, so that your eyes stay at ease.</source>
        <translation>La luz de detrás del monitor se atenúa con la habitación, para que sus ojos descansen.</translation>
    </message>
    <message>
        <source>After dark the picture turns darker than the lowest brightness, without losing its details.</source>
        <translation>Al anochecer la imagen se oscurece por debajo del brillo mínimo, sin perder detalles.</translation>
    </message>
</context>
</TS>
