<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>AboutPage</name>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Version %1 · Apache License 2.0</source>
        <translation>Versão %1 · Licença Apache 2.0</translation>
    </message>
    <message>
        <source>Apache License 2.0</source>
        <translation>Licença Apache 2.0</translation>
    </message>
    <message>
        <source>Puts you in control of your monitors.</source>
        <translation>Dá-lhe o controlo dos seus monitores.</translation>
    </message>
    <message>
        <source>Show the introduction</source>
        <translation>Mostrar a introdução</translation>
    </message>
    <message>
        <source>Open-source notices</source>
        <translation>Avisos de código aberto</translation>
    </message>
</context>
<context>
    <name>ArrangeList</name>
    <message>
        <source>Rows</source>
        <translation>Linhas</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Mosaicos</translation>
    </message>
    <message>
        <source>Wide tiles</source>
        <translation>Mosaicos largos</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>No fundo</translation>
    </message>
    <message>
        <source>Move %1 forward</source>
        <translation>Mover %1 para a frente</translation>
    </message>
    <message>
        <source>Move %1 back</source>
        <translation>Mover %1 para trás</translation>
    </message>
    <message>
        <source>Reset to the original order</source>
        <translation>Repor a ordem original</translation>
    </message>
</context>
<context>
    <name>ArrangePage</name>
    <message>
        <source>Arrange</source>
        <translation>Organizar</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Escolha o que a janela mostra e por que ordem.</translation>
    </message>
</context>
<context>
    <name>DiagnosticsPage</name>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnóstico</translation>
    </message>
    <message>
        <source>No monitor is connected.</source>
        <translation>Nenhum monitor ligado.</translation>
    </message>
    <message>
        <source>The report holds what is shown here and the log of the monitors' buses. Serial numbers, your name and your folders are left out.</source>
        <translation>O relatório contém o que é mostrado aqui e o registo dos barramentos. Números de série, nome e pastas ficam de fora.</translation>
    </message>
    <message>
        <source>Export report</source>
        <translation>Exportar relatório</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>Guardado em %1</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Every widget is hidden</source>
        <translation>Está tudo oculto</translation>
    </message>
    <message>
        <source>Looking for monitors…</source>
        <translation>A procurar monitores…</translation>
    </message>
    <message>
        <source>No supported monitor found</source>
        <translation>Nenhum monitor suportado</translation>
    </message>
    <message>
        <source>Bring back what you need; nothing was lost.</source>
        <translation>Recupere o que precisa; nada se perdeu.</translation>
    </message>
    <message>
        <source>This takes a moment.</source>
        <translation>Demora um momento.</translation>
    </message>
    <message>
        <source>Plug one in and it appears here by itself.</source>
        <translation>Ligue um e aparecerá aqui sozinho.</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Organizar</translation>
    </message>
    <message>
        <source>The monitor is switched on and connected directly, by USB-C, DisplayPort or HDMI.</source>
        <translation>O monitor está ligado e diretamente conectado por USB-C, DisplayPort ou HDMI.</translation>
    </message>
    <message>
        <source>DDC/CI is switched on in the monitor's own menu.</source>
        <translation>O DDC/CI está ligado no menu do monitor.</translation>
    </message>
    <message>
        <source>This account may use the I2C devices: install the device rule or join the group "i2c", then log in again.</source>
        <translation>Esta conta pode usar os dispositivos I2C: instale a regra ou junte-se ao grupo «i2c» e volte a iniciar sessão.</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Procurar de novo</translation>
    </message>
    <message>
        <source>Try it with a simulated monitor</source>
        <translation>Experimentar com um monitor simulado</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Follow the desktop</source>
        <translation>Como o sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Escuro</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Alto contraste</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Como o sistema</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Iniciar com a sessão</translation>
    </message>
    <message>
        <source>Schedules and shortcuts work from the moment that you log in.</source>
        <translation>Os horários e atalhos funcionam desde o início da sessão.</translation>
    </message>
    <message>
        <source>Keep running when the window is closed</source>
        <translation>Continuar ativo ao fechar a janela</translation>
    </message>
    <message>
        <source>The icon in the tray brings the window back.</source>
        <translation>O ícone no tabuleiro traz a janela de volta.</translation>
    </message>
    <message>
        <source>Starting Lumen Desk again brings the window back.</source>
        <translation>Iniciar de novo o Lumen Desk traz a janela de volta.</translation>
    </message>
    <message>
        <source>Restore my settings at start</source>
        <translation>Repor as definições ao iniciar</translation>
    </message>
    <message>
        <source>Monitors get the values of your last session. Switched off, they keep what they have.</source>
        <translation>Os monitores recebem os valores da última sessão. Desligado, mantêm os seus.</translation>
    </message>
</context>
<context>
    <name>HeaderBar</name>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>LuActionSelectionPopup</name>
    <message>
        <source>Set an Action</source>
        <translation>Definir uma ação</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seguinte</translation>
    </message>
    <message>
        <source>This flow has every action that the monitor offers.</source>
        <translation>Este fluxo tem todas as ações do monitor.</translation>
    </message>
</context>
<context>
    <name>LuContext</name>
    <message>
        <source>Built-in</source>
        <translation>Integrado</translation>
    </message>
    <message>
        <source>S/N %1</source>
        <translation>N.º de série %1</translation>
    </message>
</context>
<context>
    <name>LuDiagnostics</name>
    <message>
        <source>Connection</source>
        <translation>Ligação</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Transferências</translation>
    </message>
    <message>
        <source>Retries</source>
        <translation>Repetições</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Erros</translation>
    </message>
    <message>
        <source>Learnt waits</source>
        <translation>Esperas aprendidas</translation>
    </message>
    <message>
        <source>Writes today</source>
        <translation>Escritas hoje</translation>
    </message>
    <message>
        <source>Circuit breaker</source>
        <translation>Disjuntor</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhum</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconhecido</translation>
    </message>
    <message>
        <source>asleep</source>
        <translation>em repouso</translation>
    </message>
    <message>
        <source>gives no answer</source>
        <translation>não responde</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>responde</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>integrado</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>simulado</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>fechado</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Ecrã</translation>
    </message>
    <message>
        <source>not told from an equal monitor's</source>
        <translation>não se distingue do de um monitor igual</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>não é possível criar a pasta</translation>
    </message>
    <message>
        <source>The report could not be written to %1: %2</source>
        <translation>Não foi possível guardar o relatório em %1: %2</translation>
    </message>
    <message>
        <source>no reply</source>
        <translation>sem resposta</translation>
    </message>
    <message>
        <source>null reply</source>
        <translation>resposta vazia</translation>
    </message>
    <message>
        <source>bad checksum</source>
        <translation>soma de verificação errada</translation>
    </message>
    <message>
        <source>unsupported code</source>
        <translation>código não suportado</translation>
    </message>
    <message>
        <source>malformed reply</source>
        <translation>resposta malformada</translation>
    </message>
    <message>
        <source>bus busy</source>
        <translation>barramento ocupado</translation>
    </message>
    <message>
        <source>no access to the bus</source>
        <translation>sem acesso ao barramento</translation>
    </message>
    <message>
        <source>monitor gone</source>
        <translation>monitor desapareceu</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>refused after too many writes</source>
        <translation>recusado após demasiadas escritas</translation>
    </message>
    <message>
        <source>display asleep</source>
        <translation>ecrã em repouso</translation>
    </message>
    <message>
        <source>%1 ms before a reply</source>
        <translation>%1 ms antes de uma resposta</translation>
    </message>
    <message>
        <source>%1 ms after a write</source>
        <translation>%1 ms após uma escrita</translation>
    </message>
    <message>
        <source>open for %1</source>
        <translation>aberto para %1</translation>
    </message>
    <message>
        <source>closed; times opened: %1</source>
        <translation>fechado; vezes aberto: %1</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 em %2</translation>
    </message>
</context>
<context>
    <name>LuHelpButton</name>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
</context>
<context>
    <name>LuHintWindow</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>LuListRow</name>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>LuNamePopup</name>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>There is one of that name already.</source>
        <translation>Já existe um com esse nome.</translation>
    </message>
</context>
<context>
    <name>LuPopupAction</name>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>LuPopupController</name>
    <message>
        <source>Color mode</source>
        <translation>Modo de cor</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Áudio</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Night Hours Protection</translation>
    </message>
    <message>
        <source>EcoPrivacy</source>
        <translation>EcoPrivacy</translation>
    </message>
    <message>
        <source>Visual Optimizer</source>
        <translation>Visual Optimizer</translation>
    </message>
    <message>
        <source>A.B.+ Gen2</source>
        <translation>A.B.+ Gen2</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Low Blue Light</translation>
    </message>
    <message>
        <source>A.B. Gen2</source>
        <translation>A.B. Gen2</translation>
    </message>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Open applications</source>
        <translation>Abrir aplicações</translation>
    </message>
    <message>
        <source>Add a flow</source>
        <translation>Adicionar um fluxo</translation>
    </message>
    <message>
        <source>Rename the flow</source>
        <translation>Mudar o nome do fluxo</translation>
    </message>
</context>
<context>
    <name>LuProgressRing</name>
    <message>
        <source>Please wait…</source>
        <translation>Aguarde…</translation>
    </message>
</context>
<context>
    <name>LuSchedulePopup</name>
    <message>
        <source>Schedule</source>
        <translation>Horário</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>%1, hour</source>
        <translation>%1, hora</translation>
    </message>
    <message>
        <source>%1, minute</source>
        <translation>%1, minuto</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fim</translation>
    </message>
    <message>
        <source>Ends on the next day.</source>
        <translation>Termina no dia seguinte.</translation>
    </message>
    <message>
        <source>Start and end are the same.</source>
        <translation>O início e o fim são iguais.</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Repetir</translation>
    </message>
</context>
<context>
    <name>LuSelectionWindow</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>LuTimeButton</name>
    <message>
        <source>Hours</source>
        <translation>Horas</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutos</translation>
    </message>
</context>
<context>
    <name>LuWarningWindow</name>
    <message>
        <source>%1 is not available in the current color mode.</source>
        <translation>%1 não está disponível no modo de cor atual.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Lumen Desk</source>
        <translation>Lumen Desk</translation>
    </message>
</context>
<context>
    <name>MonitorSwitcher</name>
    <message>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
</context>
<context>
    <name>OsdTranslator</name>
    <message>
        <source>5000 K</source>
        <translation>5000 K</translation>
    </message>
    <message>
        <source>6500 K</source>
        <translation>6500 K</translation>
    </message>
    <message>
        <source>9300 K</source>
        <translation>9300 K</translation>
    </message>
    <message>
        <source>DCI</source>
        <translation>DCI</translation>
    </message>
    <message>
        <source>User defined</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>Native</source>
        <translation>Nativo</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Padrão</translation>
    </message>
    <message>
        <source>Dialogue</source>
        <translation>Diálogo</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Música</translation>
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
        <source>Studio</source>
        <translation>Estúdio</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilizador</translation>
    </message>
</context>
<context>
    <name>PagePanel</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>Elementos</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnóstico</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avançado</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Localização</translation>
    </message>
    <message>
        <source>Two computers</source>
        <translation>Dois computadores</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Lumen Desk</source>
        <translation>Mostrar o Lumen Desk</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
</context>
<context>
    <name>WalkthroughWindow</name>
    <message>
        <source>Welcome to Lumen Desk</source>
        <translation>Bem-vindo ao Lumen Desk</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Experimentar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seguinte</translation>
    </message>
</context>
<context>
    <name>WidgetsPage</name>
    <message>
        <source>Widgets</source>
        <translation>Elementos</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Escolha o que a janela mostra e por que ordem.</translation>
    </message>
    <message>
        <source>Widgets can be arranged while a supported monitor is connected.</source>
        <translation>Os elementos organizam-se com um monitor suportado ligado.</translation>
    </message>
</context>
<context>
    <name>LuAbsences</name>
    <message>
        <source>This session does not let programs change the resolution.</source>
        <translation>Esta sessão não permite que os programas mudem a resolução.</translation>
    </message>
    <message>
        <source>This session does not let programs turn the picture.</source>
        <translation>Esta sessão não permite que os programas rodem a imagem.</translation>
    </message>
    <message>
        <source>This session does not let programs change the scaling.</source>
        <translation>Esta sessão não permite que os programas mudem a escala.</translation>
    </message>
    <message>
        <source>This session gives programs no keys while another window is in front: shortcuts work only in the windows of Lumen Desk.</source>
        <translation>Esta sessão não dá teclas aos programas enquanto outra janela está à frente: os atalhos só funcionam nas janelas do Lumen Desk.</translation>
    </message>
    <message>
        <source>This session does not tell which application is in front.</source>
        <translation>Esta sessão não diz que aplicação está à frente.</translation>
    </message>
    <message>
        <source>This session does not let programs move the windows of other applications.</source>
        <translation>Esta sessão não permite que os programas movam as janelas de outras aplicações.</translation>
    </message>
    <message>
        <source>This session does not let programs press the keys of copy and paste: the second clipboard does not work.</source>
        <translation>Esta sessão não permite que os programas premam as teclas de copiar e colar: a segunda área de transferência não funciona.</translation>
    </message>
    <message>
        <source>This session does not tell where the pointer is: keyboard and mouse do not change over at the edge of the screen.</source>
        <translation>Esta sessão não diz onde está o ponteiro: o teclado e o rato não mudam na margem do ecrã.</translation>
    </message>
    <message>
        <source>No sound output was found: the system volume and the choice of the output need PulseAudio or PipeWire.</source>
        <translation>Nenhuma saída de som encontrada: o volume do sistema e a escolha da saída precisam do PulseAudio ou do PipeWire.</translation>
    </message>
    <message>
        <source>Nothing composes this desktop: the picture cannot be darkened further than the monitor's own brightness.</source>
        <translation>Este ambiente não tem compositor: a imagem não pode ser escurecida além do brilho do próprio monitor.</translation>
    </message>
    <message>
        <source>This session keeps no window above all others: what comes to the front later may not be darkened.</source>
        <translation>Esta sessão não mantém nenhuma janela acima de todas: o que vier depois para a frente pode não ser escurecido.</translation>
    </message>
    <message>
        <source>There is no desktop session.</source>
        <translation>Não há nenhuma sessão de ambiente de trabalho.</translation>
    </message>
    <message>
        <source>In an X11 session it works.</source>
        <translation>Numa sessão X11 funciona.</translation>
    </message>
</context>
<context>
    <name>RealMonitors</name>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. Your account is in the group %2 already: log out and in again.</source>
        <translation>Sem permissão para usar %1, por isso não é possível controlar o respetivo monitor. A sua conta já está no grupo %2: termine a sessão e volte a iniciá-la.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer.</source>
        <translation>Sem permissão para usar %1, por isso não é possível controlar o respetivo monitor. A regra udev %2 deste programa não está instalada: instale-a em %3 e reinicie o computador.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer, or add your account to the group %4 and log in again.</source>
        <translation>Sem permissão para usar %1, por isso não é possível controlar o respetivo monitor. A regra udev %2 deste programa não está instalada: instale-a em %3 e reinicie o computador, ou adicione a sua conta ao grupo %4 e inicie sessão novamente.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed, but this session has no seat at this computer: add your account to the group %2 and log in again.</source>
        <translation>Sem permissão para usar %1, por isso não é possível controlar o respetivo monitor. A regra udev está instalada, mas esta sessão não tem um posto neste computador: adicione a sua conta ao grupo %2 e inicie sessão novamente.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed but not in force: run "udevadm trigger --subsystem-match=i2c-dev" as root or restart the computer.</source>
        <translation>Sem permissão para usar %1, por isso não é possível controlar o respetivo monitor. A regra udev está instalada, mas não em vigor: execute "udevadm trigger --subsystem-match=i2c-dev" como root ou reinicie o computador.</translation>
    </message>
    <message>
        <source>The system shows no I2C device files, so external monitors cannot be controlled. Load the kernel module i2c-dev: run "modprobe i2c-dev" as root, or install modules-load.d/lumen-desk.conf of this program and restart the computer.</source>
        <translation>O sistema não mostra ficheiros de dispositivo I2C, por isso não é possível controlar monitores externos. Carregue o módulo do kernel i2c-dev: execute "modprobe i2c-dev" como root, ou instale modules-load.d/lumen-desk.conf deste programa e reinicie o computador.</translation>
    </message>
    <message>
        <source>%1 leads to another monitor now; nothing was sent to it.</source>
        <translation>%1 leva agora a outro monitor; nada lhe foi enviado.</translation>
    </message>
</context>
<context>
    <name>ComputersPage</name>
    <message>
        <source>Two computers</source>
        <translation>Dois computadores</translation>
    </message>
    <message>
        <source>Two computers that share a monitor can hand over keyboard and mouse at the edge of the screen. Connected, they agree who has the pointer, and it enters where it left.</source>
        <translation>Dois computadores que partilham um monitor podem passar o teclado e o rato na margem do ecrã. Ligados, acordam quem tem o ponteiro, que entra por onde saiu.</translation>
    </message>
    <message>
        <source>Connection to a second computer</source>
        <translation>Ligação a um segundo computador</translation>
    </message>
    <message>
        <source>Only the computer that you pair can connect, encrypted, on your local network. It learns where the pointer is: no keys, texts or files are sent. While it is on, the network sees this computer's name.</source>
        <translation>Só o computador que emparelhar se pode ligar, cifrado e na rede local. Fica a saber onde está o ponteiro: não são enviadas teclas, textos nem ficheiros. Enquanto está ativa, a rede vê o nome deste computador.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Este computador</translation>
    </message>
    <message>
        <source>It has no address on a local network.</source>
        <translation>Não tem endereço numa rede local.</translation>
    </message>
    <message>
        <source>Paired computer</source>
        <translation>Computador emparelhado</translation>
    </message>
    <message>
        <source>Pair again</source>
        <translation>Emparelhar de novo</translation>
    </message>
    <message>
        <source>Pair a computer</source>
        <translation>Emparelhar um computador</translation>
    </message>
</context>
<context>
    <name>PairedComputer</name>
    <message>
        <source>Computer without a name</source>
        <translation>Computador sem nome</translation>
    </message>
    <message>
        <source>Last met at %1</source>
        <translation>Visto pela última vez em %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>Not paired there</source>
        <translation>Não emparelhado lá</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>A procurar</translation>
    </message>
    <message>
        <source>It answers, and does not know this computer any more. Pair the two anew.</source>
        <translation>Responde, mas já não conhece este computador. Emparelhe os dois de novo.</translation>
    </message>
    <message>
        <source>It is found again by itself once it runs in the same network. If it has another address, you can type it here.</source>
        <translation>É encontrado sozinho assim que funciona na mesma rede. Se tiver outro endereço, pode escrevê-lo aqui.</translation>
    </message>
    <message>
        <source>Another address</source>
        <translation>Outro endereço</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Esquecer</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Ligar</translation>
    </message>
    <message>
        <source>Forget %1?</source>
        <translation>Esquecer %1?</translation>
    </message>
    <message>
        <source>The two do not connect any more until they are paired again.</source>
        <translation>Os dois só se voltam a ligar quando forem emparelhados de novo.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Manter</translation>
    </message>
</context>
<context>
    <name>ComputerChoice</name>
    <message>
        <source>1. On one computer</source>
        <translation>1. Num computador</translation>
    </message>
    <message>
        <source>It waits for two minutes, for one call.</source>
        <translation>Espera uma chamada durante dois minutos.</translation>
    </message>
    <message>
        <source>Wait for the other computer</source>
        <translation>Esperar pelo outro computador</translation>
    </message>
    <message>
        <source>2. On the other computer</source>
        <translation>2. No outro computador</translation>
    </message>
    <message>
        <source>Type the address of the computer that waits. Where the service Avahi runs, it is found by itself.</source>
        <translation>Escreva o endereço do computador que espera. Onde o serviço Avahi funciona, é encontrado sozinho.</translation>
    </message>
    <message>
        <source>Choose the computer that waits, or type its address.</source>
        <translation>Escolha o computador que espera ou escreva o seu endereço.</translation>
    </message>
    <message>
        <source>No computer nearby has this switched on. You can also type its address.</source>
        <translation>Nenhum computador próximo tem isto ligado. Também pode escrever o seu endereço.</translation>
    </message>
    <message>
        <source>Pair</source>
        <translation>Emparelhar</translation>
    </message>
    <message>
        <source>Pair with %1</source>
        <translation>Emparelhar com %1</translation>
    </message>
    <message>
        <source>Address of the other computer</source>
        <translation>Endereço do outro computador</translation>
    </message>
</context>
<context>
    <name>ComputerPairing</name>
    <message>
        <source>Waiting for the other computer</source>
        <translation>À espera do outro computador</translation>
    </message>
    <message>
        <source>Calling the other computer</source>
        <translation>A chamar o outro computador</translation>
    </message>
    <message>
        <source>Now confirm the code on the other computer</source>
        <translation>Confirme agora o código no outro computador</translation>
    </message>
    <message>
        <source>Does %1 show the same code?</source>
        <translation>%1 mostra o mesmo código?</translation>
    </message>
    <message>
        <source>Does the other computer show the same code?</source>
        <translation>O outro computador mostra o mesmo código?</translation>
    </message>
    <message>
        <source>Choose this computer there, or type its address: %1</source>
        <translation>Escolha lá este computador ou escreva o seu endereço: %1</translation>
    </message>
    <message>
        <source>If the codes differ, somebody else is in between: answer no.</source>
        <translation>Se os códigos forem diferentes, há alguém no meio: responda não.</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Yes, pair</source>
        <translation>Sim, emparelhar</translation>
    </message>
</context>
<context>
    <name>AddressLine</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>LocationPage</name>
    <message>
        <source>Location service of the system</source>
        <translation>Serviço de localização do sistema</translation>
    </message>
    <message>
        <source>GeoClue is asked for your city, and no closer. To find it, it may send which networks are around you to a service on the Internet. Without an answer the city of the time zone is used.</source>
        <translation>Pergunta-se ao GeoClue a sua cidade, e nada mais preciso. Para a encontrar, pode enviar a um serviço na Internet que redes estão à sua volta. Sem resposta usa-se a cidade do fuso horário.</translation>
    </message>
    <message>
        <source>City of the time zone</source>
        <translation>Cidade do fuso horário</translation>
    </message>
    <message>
        <source>%1. Nobody is asked.</source>
        <translation>%1. Não se pergunta a ninguém.</translation>
    </message>
    <message>
        <source>Your time zone has no city.</source>
        <translation>O seu fuso horário não tem cidade.</translation>
    </message>
    <message>
        <source>A place that I choose</source>
        <translation>Um lugar que escolho</translation>
    </message>
    <message>
        <source>Nobody is asked.</source>
        <translation>Não se pergunta a ninguém.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>Nothing follows the sun. Times that you set yourself still work.</source>
        <translation>Nada segue o sol. As horas que definir continuam a valer.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Localização</translation>
    </message>
    <message>
        <source>Functions that follow sunrise and sunset need to know roughly where you are. Nothing else uses it.</source>
        <translation>As funções que seguem o nascer e o pôr do sol precisam de saber mais ou menos onde está. Nada mais o usa.</translation>
    </message>
    <message>
        <source>Position in use</source>
        <translation>Posição em uso</translation>
    </message>
    <message>
        <source>It is sent, rounded to hundredths of a degree, to %1 for the times of sunrise and sunset.</source>
        <translation>É enviada, arredondada a centésimos de grau, a %1 para as horas do nascer e do pôr do sol.</translation>
    </message>
    <message>
        <source>The times of sunrise and sunset are computed on this computer. The position is sent to nobody.</source>
        <translation>As horas do nascer e do pôr do sol são calculadas neste computador. A posição não é enviada a ninguém.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhuma</translation>
    </message>
</context>
<context>
    <name>PlaceChoice</name>
    <message>
        <source>Chosen place: %1</source>
        <translation>Lugar escolhido: %1</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>Lugar escolhido</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Cidade</translation>
    </message>
    <message>
        <source>Of the cities that name a time zone. They are known here: nothing is sent.</source>
        <translation>Das cidades que dão nome a um fuso horário. São conhecidas aqui: nada é enviado.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Procurar</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Degrees, north of the equator. South is negative.</source>
        <translation>Graus a norte do equador. O sul é negativo.</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>Degrees, east of Greenwich. West is negative.</source>
        <translation>Graus a leste de Greenwich. O oeste é negativo.</translation>
    </message>
    <message>
        <source>A latitude is a number from -90 to 90, a longitude one from -180 to 180.</source>
        <translation>Uma latitude é um número de -90 a 90, uma longitude de -180 a 180.</translation>
    </message>
</context>
<context>
    <name>LuComputers</name>
    <message>
        <source>The connection could not be switched on: %1.</source>
        <translation>Não foi possível ativar a ligação: %1.</translation>
    </message>
    <message>
        <source>This is neither an address, such as 192.168.1.7, nor the name of a computer.</source>
        <translation>Não é um endereço, como 192.168.1.7, nem o nome de um computador.</translation>
    </message>
    <message>
        <source>Only a computer of your local network can be paired.</source>
        <translation>Só é possível emparelhar um computador da sua rede local.</translation>
    </message>
    <message>
        <source>No other computer has called within two minutes.</source>
        <translation>Nenhum outro computador chamou em dois minutos.</translation>
    </message>
    <message>
        <source>The code was not confirmed on both computers within two minutes.</source>
        <translation>O código não foi confirmado nos dois computadores em dois minutos.</translation>
    </message>
    <message>
        <source>No Lumen Desk answers there. Are both computers on the same network, is the connection switched on there, and does a firewall let it through?</source>
        <translation>Nenhum Lumen Desk responde lá. Estão os dois computadores na mesma rede, a ligação está ativada lá e uma firewall deixa-a passar?</translation>
    </message>
    <message>
        <source>The other computer is not waiting. Choose "Wait for the other computer" there first.</source>
        <translation>O outro computador não está à espera. Escolha lá primeiro "Esperar pelo outro computador".</translation>
    </message>
    <message>
        <source>The other computer did not confirm the code.</source>
        <translation>O outro computador não confirmou o código.</translation>
    </message>
    <message>
        <source>What has called does not keep to the rules. Nothing was paired.</source>
        <translation>Quem chamou não cumpre as regras. Nada foi emparelhado.</translation>
    </message>
    <message>
        <source>No computer of this name was found.</source>
        <translation>Não foi encontrado nenhum computador com este nome.</translation>
    </message>
</context>
<context>
    <name>LuPlace</name>
    <message>
        <source>%1° S</source>
        <translation>%1° S</translation>
    </message>
    <message>
        <source>%1° N</source>
        <translation>%1° N</translation>
    </message>
    <message>
        <source>%1° W</source>
        <translation>%1° O</translation>
    </message>
    <message>
        <source>%1° E</source>
        <translation>%1° E</translation>
    </message>
</context>
</TS>
