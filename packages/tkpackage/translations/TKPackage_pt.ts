<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>FourWindows</name>
    <message>
        <source>Upper left</source>
        <translation>Em cima à esquerda</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Em cima à direita</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Em baixo à esquerda</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Em baixo à direita</translation>
    </message>
</context>
<context>
    <name>KvmPage</name>
    <message>
        <source>Current Device Location</source>
        <translation>Localização deste dispositivo</translation>
    </message>
    <message>
        <source>Connected to the other computer</source>
        <translation>Ligado ao outro computador</translation>
    </message>
    <message>
        <source>Connect the other computer</source>
        <translation>Ligar o outro computador</translation>
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
        <translation>Entrada USB-C</translation>
    </message>
    <message>
        <source>USB-B Upstream</source>
        <translation>Entrada USB-B</translation>
    </message>
    <message>
        <source>TBT Upstream</source>
        <translation>Entrada TBT</translation>
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
        <translation>Contraste por IA</translation>
    </message>
</context>
<context>
    <name>LuAutoPivotWidget</name>
    <message>
        <source>Auto Pivot</source>
        <translation>Rotação automática</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Rotação do ecrã</translation>
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
        <translation>Um só cabo para ligar facilmente todos os seus monitores.</translation>
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
        <translation>Esquerda: </translation>
    </message>
    <message>
        <source>Sub: </source>
        <translation>Secundária: </translation>
    </message>
    <message>
        <source>Right: </source>
        <translation>Direita: </translation>
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
        <translation>Esquerda:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Direita:</translation>
    </message>
</context>
<context>
    <name>LuInputSourceWidget</name>
    <message>
        <source>Input source</source>
        <translation>Fonte de entrada</translation>
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
        <translation>Desconhecida</translation>
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
        <translation>Deseja desativar o modo PBP e %1?</translation>
    </message>
    <message>
        <source>%1 only works in PBP mode. If you choose to turn off PBP mode, %1 will be disabled as well.</source>
        <translation>%1 só funciona no modo PBP. Se desativar o modo PBP, %1 também será desativado.</translation>
    </message>
</context>
<context>
    <name>LuPivotWidget</name>
    <message>
        <source>Pivot</source>
        <translation>Rotação</translation>
    </message>
    <message>
        <source>Screen pivot</source>
        <translation>Rotação do ecrã</translation>
    </message>
</context>
<context>
    <name>LuLowBlueLightWidget</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Luz azul reduzida Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Luz azul reduzida</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nível</translation>
    </message>
</context>
<context>
    <name>CircadianControls</name>
    <message>
        <source>Out of Range</source>
        <translation>Fora do intervalo</translation>
    </message>
    <message>
        <source>Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.</source>
        <translation>Defina o nascer do sol entre 00:00 e 11:59 e o pôr do sol entre 12:00 e 23:59.</translation>
    </message>
    <message>
        <source>Circadian Mode</source>
        <translation>Modo circadiano</translation>
    </message>
    <message>
        <source>Sunrise to Sunset</source>
        <translation>Do nascer ao pôr do sol</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Nascer do sol</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Pôr do sol</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>The filter follows the sun where you are. Level %1 until %2.</source>
        <translation>O filtro segue o sol do seu local. Nível %1 até %2.</translation>
    </message>
    <message>
        <source>Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.</source>
        <translation>Devido a uma ligação instável ou a outros problemas, não foi possível obter as horas do sol. Mude para o modo manual.</translation>
    </message>
    <message>
        <source>Weather data provided by</source>
        <translation>Dados meteorológicos de</translation>
    </message>
    <message>
        <source>Set your location</source>
        <translation>Definir a sua localização</translation>
    </message>
</context>
<context>
    <name>CircadianPlot</name>
    <message>
        <source>Level over the day</source>
        <translation>Nível ao longo do dia</translation>
    </message>
</context>
<context>
    <name>LuPopupLowBlueLightAction</name>
    <message>
        <source>Low Blue Light Plus</source>
        <translation>Luz azul reduzida Plus</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Luz azul reduzida</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nível</translation>
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
        <translation>Do nascer ao pôr do sol</translation>
    </message>
</context>
<context>
    <name>LuNightProtectionWidget</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Proteção noturna</translation>
    </message>
    <message>
        <source>The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.</source>
        <translation>O modo automático ativa ou desativa a proteção noturna conforme a luz ambiente, cuidando dos olhos sem esforço.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nível</translation>
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
        <translation>Smart KVM Basic está ativado</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Deseja mudar para o modo PBP?</translation>
    </message>
    <message>
        <source>Smart KVM Basic works only in PBP Mode. Turning off PBP Mode will also disable Smart KVM Basic.</source>
        <translation>O Smart KVM Basic só funciona no modo PBP. Desativar o modo PBP também desativa o Smart KVM Basic.</translation>
    </message>
    <message>
        <source>Smart KVM Basic</source>
        <translation>Smart KVM Basic</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Esquerda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Direita</translation>
    </message>
    <message>
        <source>Orvane Smart KVM Basic makes multitasking effortless - use one keyboard and mouse to control two computers. With automatic switching when your cursor crosses the screen edge, you can work seamlessly across systems. Just install Lumen Desk 2 on both devices and enable PBP Mode to get started.</source>
        <translation>O Orvane Smart KVM Basic facilita o trabalho: use um só teclado e rato para controlar dois computadores. A mudança é automática quando o cursor passa a margem do ecrã. Instale o Lumen Desk 2 em ambos os dispositivos e ative o modo PBP para começar.</translation>
    </message>
</context>
<context>
    <name>LuSmartKvmWidget</name>
    <message>
        <source>Driver installation is required</source>
        <translation>É necessário instalar o controlador</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>A procurar</translation>
    </message>
    <message>
        <source>KVM</source>
        <translation>KVM</translation>
    </message>
    <message>
        <source>Smart KVM Enabled</source>
        <translation>Smart KVM ativado</translation>
    </message>
    <message>
        <source>Driver installation is required.</source>
        <translation>É necessário instalar o controlador.</translation>
    </message>
    <message>
        <source>Smart KVM requires your permission to install its driver. Would you like to install it now?</source>
        <translation>O Smart KVM precisa da sua permissão para instalar o controlador. Instalar agora?</translation>
    </message>
    <message>
        <source>Do you want to switch to PBP Mode?</source>
        <translation>Deseja mudar para o modo PBP?</translation>
    </message>
    <message>
        <source>Smart KVM only works in PBP mode. If you'd like to continue using Smart KVM, we can switch to PBP mode for you.</source>
        <translation>O Smart KVM só funciona no modo PBP. Se quiser continuar a usá-lo, podemos mudar para o modo PBP por si.</translation>
    </message>
    <message>
        <source>Smart KVM</source>
        <translation>Smart KVM</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Esquerda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Direita</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Em cima</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Em baixo</translation>
    </message>
</context>
<context>
    <name>NightStateChoice</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Proteção noturna</translation>
    </message>
    <message>
        <source>Auto Switch</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desligado</translation>
    </message>
</context>
<context>
    <name>LuPopupNightHoursProtectionAction</name>
    <message>
        <source>Night Hours Protection</source>
        <translation>Proteção noturna</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nível</translation>
    </message>
</context>
<context>
    <name>PictureGoneNote</name>
    <message>
        <source>This computer's picture goes away with its input. %1 brings it back.</source>
        <translation>A imagem deste computador desaparece com a sua entrada. %1 recupera-a.</translation>
    </message>
    <message>
        <source>This computer's picture goes away with its input. Choose %1 in the monitor's menu to bring it back.</source>
        <translation>A imagem deste computador desaparece com a sua entrada. Escolha %1 no menu do monitor para a recuperar.</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Voltar a %1</translation>
    </message>
    <message>
        <source>Turn on shortcuts</source>
        <translation>Ativar atalhos</translation>
    </message>
</context>
<context>
    <name>PipOptions</name>
    <message>
        <source>Sub size</source>
        <translation>Tamanho da janela</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Pequeno</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Médio</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grande</translation>
    </message>
    <message>
        <source>Sub position</source>
        <translation>Posição da janela</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Em cima à direita</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>Em cima à esquerda</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Em baixo à direita</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Em baixo à esquerda</translation>
    </message>
</context>
<context>
    <name>PipPbpPage</name>
    <message>
        <source>Picture in picture</source>
        <translation>Imagem na imagem</translation>
    </message>
    <message>
        <source>Half and half</source>
        <translation>Metade e metade</translation>
    </message>
    <message>
        <source>Four windows</source>
        <translation>Quatro janelas</translation>
    </message>
    <message>
        <source>16 : 9 and 9 : 5</source>
        <translation>16 : 9 e 9 : 5</translation>
    </message>
    <message>
        <source>Two to one</source>
        <translation>Dois para um</translation>
    </message>
    <message>
        <source>Three to one</source>
        <translation>Três para um</translation>
    </message>
    <message>
        <source>Audio Source</source>
        <translation>Fonte de áudio</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Esquerda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Direita</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Trocar</translation>
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
        <translation>Secundária:</translation>
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
        <translation>Esquerda:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Direita:</translation>
    </message>
</context>
<context>
    <name>LuBrightnessWidget</name>
    <message>
        <source>Brightness</source>
        <translation>Brilho</translation>
    </message>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Modo de cor / Brilho</translation>
    </message>
</context>
<context>
    <name>BrightnessPage</name>
    <message>
        <source>Color Mode / Brightness</source>
        <translation>Modo de cor / Brilho</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Modo de cor</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brilho</translation>
    </message>
    <message>
        <source>Software Dimming</source>
        <translation>Escurecimento por software</translation>
    </message>
    <message>
        <source>Darkens the picture below the lowest brightness of the monitor. Ambient brightness functions switch it off for as long as they run.</source>
        <translation>Escurece a imagem abaixo do brilho mínimo do monitor. As funções de luz ambiente desativam-no enquanto estão ativas.</translation>
    </message>
    <message>
        <source>Brightness Sync</source>
        <translation>Sincronizar brilho</translation>
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
        <translation>Matiz</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturação</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gama</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Gama de cores</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Uniformidade</translation>
    </message>
    <message>
        <source>Reset Color</source>
        <translation>Repor cores</translation>
    </message>
</context>
<context>
    <name>BrightnessSliders</name>
    <message>
        <source>Software Dimming</source>
        <translation>Escurecimento por software</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brilho</translation>
    </message>
</context>
<context>
    <name>ColorModeChoice</name>
    <message>
        <source>Color Mode</source>
        <translation>Modo de cor</translation>
    </message>
</context>
<context>
    <name>ColorTemperatureControls</name>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatura da cor</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Vermelho</translation>
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
        <translation>Vermelho</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarelo</translation>
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
        <translation>Brilho</translation>
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
        <translation>Temperatura da cor</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Matiz</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturação</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gama</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>Gama de cores</translation>
    </message>
    <message>
        <source>Uniformity</source>
        <translation>Uniformidade</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Luz azul reduzida</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Proteção noturna</translation>
    </message>
    <message>
        <source>Ambient brightness</source>
        <translation>Luz ambiente</translation>
    </message>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Associado ao modo de cor</translation>
    </message>
    <message>
        <source>Stored for each color mode: %1.</source>
        <translation>Guardado para cada modo de cor: %1.</translation>
    </message>
</context>
<context>
    <name>LuBuiltInBrightnessWidget</name>
    <message>
        <source>Built-in brightness</source>
        <translation>Brilho integrado</translation>
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
        <translation>Vermelho: %1</translation>
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
        <translation>Devido à escala do macOS, o HDR está temporariamente indisponível. Desative o HiDPI ou reduza a resolução.</translation>
    </message>
    <message>
        <source>This monitor has no HDR mode to switch to.</source>
        <translation>Este monitor não tem um modo HDR.</translation>
    </message>
</context>
<context>
    <name>LuPopupColorModeAction</name>
    <message>
        <source>Color Mode</source>
        <translation>Modo de cor</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brilho</translation>
    </message>
</context>
<context>
    <name>LuPopupBrightnessShortcut</name>
    <message>
        <source>Brightness</source>
        <translation>Brilho</translation>
    </message>
</context>
<context>
    <name>LuPopupIccSyncHint</name>
    <message>
        <source>Color Sync</source>
        <translation>Sincronização de cor</translation>
    </message>
    <message>
        <source>The color profile of the desktop now follows the color mode of this monitor.</source>
        <translation>O perfil de cores da área de trabalho segue agora o modo de cor deste monitor.</translation>
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
        <translation>Código - Tema escuro</translation>
    </message>
    <message>
        <source>Coding - Paper Color</source>
        <translation>Código - Cor de papel</translation>
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
        <translation>Jogo</translation>
    </message>
    <message>
        <source>ePaper</source>
        <translation>ePaper</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilizador</translation>
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
        <translation>Avermelhado</translation>
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
        <translation>Sobre %1</translation>
    </message>
    <message>
        <source>To meet individual preferences, %1 allows manual control of screen brightness. It learns and records your last adjustment, applying it to optimize its automatic brightness adjustment curve to better match your preferences.</source>
        <translation>%1 permite ajustar o brilho manualmente conforme a sua preferência. Aprende e guarda o último ajuste e aplica-o para adaptar melhor a curva de brilho automático.</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parâmetro</translation>
    </message>
    <message>
        <source>Brightness + Color Temperature</source>
        <translation>Brilho + temperatura de cor</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brilho</translation>
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
        <translation>Sensibilidade do sensor</translation>
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
        <translation>Escurecimento automático</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desligado</translation>
    </message>
</context>
<context>
    <name>BackLightControls</name>
    <message>
        <source>Brightness</source>
        <translation>Brilho</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatura de cor</translation>
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
        <translation>O escurecimento automático ajusta o brilho do BackGlow à luz ambiente e protege os olhos com pouca luz. Só pode ser usado com o A.B. Gen2 ligado.</translation>
    </message>
    <message>
        <source>Bundling of Color Mode</source>
        <translation>Associação ao modo de cor</translation>
    </message>
    <message>
        <source>The system will automatically switch to the bundled BackGlow settings when you change the color mode.</source>
        <translation>Ao mudar o modo de cor são aplicadas as definições BackGlow associadas.</translation>
    </message>
    <message>
        <source>Non-stop Mode</source>
        <translation>Modo contínuo</translation>
    </message>
    <message>
        <source>To activate BackGlow while the monitor is in sleep mode, you can enable the non-stop mode.</source>
        <translation>Para usar o BackGlow com o monitor em suspensão, ligue o modo contínuo.</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mais</translation>
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
        <translation>Perto</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Médio</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>Longe</translation>
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
        <translation>Escurecer o monitor após um período de inatividade.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Display + BackGlow</source>
        <translation>Ecrã + BackGlow</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Ecrã</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensibilidade do sensor</translation>
    </message>
    <message>
        <source>EcoPrivacy helps protect your screen privacy and dims your monitor after inactivity through your built-in monitor sensor.</source>
        <translation>O EcoPrivacy protege a privacidade do ecrã e escurece o monitor na sua ausência com o sensor integrado.</translation>
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
        <translation>Sensibilidade do sensor</translation>
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
        <translation>Ligado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensibilidade do sensor</translation>
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
        <translation>Brilho</translation>
    </message>
    <message>
        <source>Color Temperature</source>
        <translation>Temperatura de cor</translation>
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
        <translation>Escurecer o monitor após %1</translation>
    </message>
    <message>
        <source>Sensor Sensitivity</source>
        <translation>Sensibilidade do sensor</translation>
    </message>
</context>
<context>
    <name>LuShortcutsWidget</name>
    <message>
        <source>Shortcuts</source>
        <translation>Atalhos</translation>
    </message>
    <message>
        <source>The key combination can not be used.</source>
        <translation>Não é possível usar esta combinação de teclas.</translation>
    </message>
    <message>
        <source>This shortcut cannot be used as it is currently being used by another function.</source>
        <translation>Este atalho não pode ser usado porque já é utilizado por outra função.</translation>
    </message>
    <message>
        <source>Reset All Shortcuts</source>
        <translation>Repor todos os atalhos</translation>
    </message>
    <message>
        <source>To reset your keyboard shortcuts, click on the 'Reset' button below. Once confirmed, the app will immediately restore the default settings.</source>
        <translation>Para repor os atalhos de teclado, clique em “Repor” abaixo. Depois de confirmar, a aplicação volta logo às predefinições.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Repor</translation>
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
        <translation>Modo de cor</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brilho</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Proteção noturna</translation>
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
        <translation>Copiar/colar adicional</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>Diminuir</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>Aumentar</translation>
    </message>
    <message>
        <source>TurnOn/Off</source>
        <translation>Ligar/desligar</translation>
    </message>
    <message>
        <source>Loop all KVM switch</source>
        <translation>Percorrer todas as portas KVM</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>This function supports image, text, file, and URL formats. Copying other types of content may impact the content of the clipboard.</source>
        <translation>Esta função suporta imagens, texto, ficheiros e URL. Copiar outros conteúdos pode afetar a área de transferência.</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <translation>Mudar para %1</translation>
    </message>
    <message>
        <source>Loop all color mode</source>
        <translation>Percorrer todos os modos de cor</translation>
    </message>
    <message>
        <source>Loop all Audio Mode</source>
        <translation>Percorrer todos os modos de áudio</translation>
    </message>
    <message>
        <source>Loop all speaker output</source>
        <translation>Percorrer todas as saídas de som</translation>
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
        <translation>Áudio</translation>
    </message>
    <message>
        <source>Volume can be adjusted in main page at anytime. You can also expand the menu to choose the audio source.</source>
        <translation>O volume pode ser ajustado a qualquer momento na página principal. Também pode expandir o menu para escolher a fonte de áudio.</translation>
    </message>
    <message>
        <source>iKeyboard Control</source>
        <translation>Controlo iKeyboard</translation>
    </message>
    <message>
        <source>Enable iKeyboard Control to use the F11/F12 volume keys on Mac keyboard to adjust the volume of the selected audio output.</source>
        <translation>Ative o controlo iKeyboard para ajustar com as teclas de volume F11/F12 do teclado Mac o volume da saída de áudio escolhida.</translation>
    </message>
</context>
<context>
    <name>AudioModeChoice</name>
    <message>
        <source>Audio Mode</source>
        <translation>Modo de áudio</translation>
    </message>
</context>
<context>
    <name>Equaliser</name>
    <message>
        <source>Equalizer Setting</source>
        <translation>Ajuste do equalizador</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>REPOR</translation>
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
        <translation>Saída</translation>
    </message>
    <message>
        <source>Sound Settings</source>
        <translation>Definições de som</translation>
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
        <translation>Volume do sistema</translation>
    </message>
    <message>
        <source>Audio Mode</source>
        <translation>Modo de áudio</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Saída</translation>
    </message>
    <message>
        <source>The volume of this monitor can be set while the system plays through it.</source>
        <translation>O volume deste monitor pode ser ajustado enquanto o sistema reproduz através dele.</translation>
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
        <translation>Áudio</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Audio Mode :</source>
        <translation>Modo de áudio:</translation>
    </message>
</context>
<context>
    <name>Walkthrough</name>
    <message>
        <source>BackGlow Auto-dimming</source>
        <translation>BackGlow: escurecimento automático</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Proteção noturna</translation>
    </message>
    <message>
        <source>The light behind your monitor dims with the room, so that your eyes stay at ease.</source>
        <translation>A luz por trás do monitor diminui com a da sala, para descanso dos seus olhos.</translation>
    </message>
    <message>
        <source>After dark the picture turns darker than the lowest brightness, without losing its details.</source>
        <translation>Depois de escurecer, a imagem fica mais escura do que o brilho mínimo, sem perder pormenores.</translation>
    </message>
</context>
</TS>
