<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AboutPage</name>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Version %1 · Apache License 2.0</source>
        <translation>Versión %1 · Licencia Apache 2.0</translation>
    </message>
    <message>
        <source>Apache License 2.0</source>
        <translation>Licencia Apache 2.0</translation>
    </message>
    <message>
        <source>Puts you in control of your monitors.</source>
        <translation>Le da el control de sus monitores.</translation>
    </message>
    <message>
        <source>Show the introduction</source>
        <translation>Mostrar la introducción</translation>
    </message>
    <message>
        <source>Open-source notices</source>
        <translation>Avisos de código abierto</translation>
    </message>
</context>
<context>
    <name>ArrangeList</name>
    <message>
        <source>Rows</source>
        <translation>Filas</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Mosaicos</translation>
    </message>
    <message>
        <source>Wide tiles</source>
        <translation>Mosaicos anchos</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>Al final</translation>
    </message>
    <message>
        <source>Move %1 forward</source>
        <translation>Mover %1 hacia delante</translation>
    </message>
    <message>
        <source>Move %1 back</source>
        <translation>Mover %1 hacia atrás</translation>
    </message>
    <message>
        <source>Reset to the original order</source>
        <translation>Restablecer el orden original</translation>
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
        <translation>Elija qué muestra la ventana y en qué orden.</translation>
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
        <translation>No hay ningún monitor conectado.</translation>
    </message>
    <message>
        <source>The report holds what is shown here and the log of the monitors' buses. Serial numbers, your name and your folders are left out.</source>
        <translation>El informe contiene lo mostrado aquí y el registro de los buses. Se omiten los números de serie, su nombre y sus carpetas.</translation>
    </message>
    <message>
        <source>Export report</source>
        <translation>Exportar informe</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>Guardado en %1</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Every widget is hidden</source>
        <translation>Todo está oculto</translation>
    </message>
    <message>
        <source>Looking for monitors…</source>
        <translation>Buscando monitores…</translation>
    </message>
    <message>
        <source>No supported monitor found</source>
        <translation>No se encontró ningún monitor compatible</translation>
    </message>
    <message>
        <source>Bring back what you need; nothing was lost.</source>
        <translation>Recupere lo que necesite; no se ha perdido nada.</translation>
    </message>
    <message>
        <source>This takes a moment.</source>
        <translation>Tardará un momento.</translation>
    </message>
    <message>
        <source>Plug one in and it appears here by itself.</source>
        <translation>Conecte uno y aparecerá aquí por sí solo.</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Organizar</translation>
    </message>
    <message>
        <source>The monitor is switched on and connected directly, by USB-C, DisplayPort or HDMI.</source>
        <translation>El monitor está encendido y conectado directamente por USB-C, DisplayPort o HDMI.</translation>
    </message>
    <message>
        <source>DDC/CI is switched on in the monitor's own menu.</source>
        <translation>DDC/CI está activado en el menú del monitor.</translation>
    </message>
    <message>
        <source>This account may use the I2C devices: install the device rule or join the group "i2c", then log in again.</source>
        <translation>Esta cuenta puede usar los dispositivos I2C: instale la regla o únase al grupo «i2c» y vuelva a iniciar sesión.</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Buscar de nuevo</translation>
    </message>
    <message>
        <source>Try it with a simulated monitor</source>
        <translation>Probar con un monitor simulado</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Follow the desktop</source>
        <translation>Como el escritorio</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Alto contraste</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
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
        <translation>Como el escritorio</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Iniciar con la sesión</translation>
    </message>
    <message>
        <source>Schedules and shortcuts work from the moment that you log in.</source>
        <translation>Los horarios y atajos funcionan desde que inicia sesión.</translation>
    </message>
    <message>
        <source>Keep running when the window is closed</source>
        <translation>Seguir activo al cerrar la ventana</translation>
    </message>
    <message>
        <source>The icon in the tray brings the window back.</source>
        <translation>El icono de la bandeja recupera la ventana.</translation>
    </message>
    <message>
        <source>Starting Lumen Desk again brings the window back.</source>
        <translation>Iniciar de nuevo Lumen Desk recupera la ventana.</translation>
    </message>
    <message>
        <source>Restore my settings at start</source>
        <translation>Restaurar mis ajustes al iniciar</translation>
    </message>
    <message>
        <source>Monitors get the values of your last session. Switched off, they keep what they have.</source>
        <translation>Los monitores reciben los valores de la última sesión. Desactivado, conservan los suyos.</translation>
    </message>
</context>
<context>
    <name>HeaderBar</name>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>LuActionSelectionPopup</name>
    <message>
        <source>Set an Action</source>
        <translation>Definir una acción</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>This flow has every action that the monitor offers.</source>
        <translation>Este flujo tiene todas las acciones que ofrece el monitor.</translation>
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
        <translation>N.º de serie %1</translation>
    </message>
</context>
<context>
    <name>LuDiagnostics</name>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Transferencias</translation>
    </message>
    <message>
        <source>Retries</source>
        <translation>Reintentos</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Errores</translation>
    </message>
    <message>
        <source>Learnt waits</source>
        <translation>Esperas aprendidas</translation>
    </message>
    <message>
        <source>Writes today</source>
        <translation>Escrituras hoy</translation>
    </message>
    <message>
        <source>Circuit breaker</source>
        <translation>Protección</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>asleep</source>
        <translation>en reposo</translation>
    </message>
    <message>
        <source>gives no answer</source>
        <translation>no responde</translation>
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
        <translation>cerrado</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>not told from an equal monitor's</source>
        <translation>no se distingue de la de un monitor igual</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>no se puede crear la carpeta</translation>
    </message>
    <message>
        <source>The report could not be written to %1: %2</source>
        <translation>No se pudo escribir el informe en %1: %2</translation>
    </message>
    <message>
        <source>no reply</source>
        <translation>sin respuesta</translation>
    </message>
    <message>
        <source>null reply</source>
        <translation>respuesta vacía</translation>
    </message>
    <message>
        <source>bad checksum</source>
        <translation>suma de comprobación errónea</translation>
    </message>
    <message>
        <source>unsupported code</source>
        <translation>código no admitido</translation>
    </message>
    <message>
        <source>malformed reply</source>
        <translation>respuesta mal formada</translation>
    </message>
    <message>
        <source>bus busy</source>
        <translation>bus ocupado</translation>
    </message>
    <message>
        <source>no access to the bus</source>
        <translation>sin acceso al bus</translation>
    </message>
    <message>
        <source>monitor gone</source>
        <translation>monitor desaparecido</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>refused after too many writes</source>
        <translation>rechazado tras demasiadas escrituras</translation>
    </message>
    <message>
        <source>display asleep</source>
        <translation>pantalla en reposo</translation>
    </message>
    <message>
        <source>%1 ms before a reply</source>
        <translation>%1 ms antes de una respuesta</translation>
    </message>
    <message>
        <source>%1 ms after a write</source>
        <translation>%1 ms después de una escritura</translation>
    </message>
    <message>
        <source>open for %1</source>
        <translation>abierto para %1</translation>
    </message>
    <message>
        <source>closed; times opened: %1</source>
        <translation>cerrado; veces abierto: %1</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 en %2</translation>
    </message>
</context>
<context>
    <name>LuHelpButton</name>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
</context>
<context>
    <name>LuHintWindow</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
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
        <translation>Nombre</translation>
    </message>
    <message>
        <source>There is one of that name already.</source>
        <translation>Ya existe uno con ese nombre.</translation>
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
        <translation>Modo de color</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
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
        <translation>Abrir aplicaciones</translation>
    </message>
    <message>
        <source>Add a flow</source>
        <translation>Añadir un flujo</translation>
    </message>
    <message>
        <source>Rename the flow</source>
        <translation>Renombrar el flujo</translation>
    </message>
</context>
<context>
    <name>LuProgressRing</name>
    <message>
        <source>Please wait…</source>
        <translation>Espere…</translation>
    </message>
</context>
<context>
    <name>LuSchedulePopup</name>
    <message>
        <source>Schedule</source>
        <translation>Horario</translation>
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
        <translation>Inicio</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Ends on the next day.</source>
        <translation>Termina al día siguiente.</translation>
    </message>
    <message>
        <source>Start and end are the same.</source>
        <translation>El inicio y el fin coinciden.</translation>
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
        <translation>Aceptar</translation>
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
        <translation>%1 no está disponible en el modo de color actual.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
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
        <translation>Estándar</translation>
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
        <translation>Cine</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Juego</translation>
    </message>
    <message>
        <source>Studio</source>
        <translation>Estudio</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
</context>
<context>
    <name>PagePanel</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>General</translation>
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
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzado</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Lumen Desk</source>
        <translation>Mostrar Lumen Desk</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>WalkthroughWindow</name>
    <message>
        <source>Welcome to Lumen Desk</source>
        <translation>Bienvenido a Lumen Desk</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Probar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
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
        <translation>Elija qué muestra la ventana y en qué orden.</translation>
    </message>
    <message>
        <source>Widgets can be arranged while a supported monitor is connected.</source>
        <translation>Los elementos se organizan con un monitor compatible conectado.</translation>
    </message>
</context>
<context>
    <name>LuAbsences</name>
    <message>
        <source>This session does not let programs change the resolution.</source>
        <translation>Esta sesión no permite que los programas cambien la resolución.</translation>
    </message>
    <message>
        <source>This session does not let programs turn the picture.</source>
        <translation>Esta sesión no permite que los programas giren la imagen.</translation>
    </message>
    <message>
        <source>This session does not let programs change the scaling.</source>
        <translation>Esta sesión no permite que los programas cambien la escala.</translation>
    </message>
    <message>
        <source>This session gives programs no keys while another window is in front: shortcuts work only in the windows of Lumen Desk.</source>
        <translation>Esta sesión no da teclas a los programas mientras otra ventana está delante: los atajos solo funcionan en las ventanas de Lumen Desk.</translation>
    </message>
    <message>
        <source>This session does not tell which application is in front.</source>
        <translation>Esta sesión no indica qué aplicación está delante.</translation>
    </message>
    <message>
        <source>This session does not let programs move the windows of other applications.</source>
        <translation>Esta sesión no permite que los programas muevan las ventanas de otras aplicaciones.</translation>
    </message>
    <message>
        <source>This session does not let programs press the keys of copy and paste: the second clipboard does not work.</source>
        <translation>Esta sesión no permite que los programas pulsen las teclas de copiar y pegar: el segundo portapapeles no funciona.</translation>
    </message>
    <message>
        <source>This session does not tell where the pointer is: keyboard and mouse do not change over at the edge of the screen.</source>
        <translation>Esta sesión no indica dónde está el puntero: el teclado y el ratón no cambian en el borde de la pantalla.</translation>
    </message>
    <message>
        <source>No sound output was found: the system volume and the choice of the output need PulseAudio or PipeWire.</source>
        <translation>No se encontró ninguna salida de sonido: el volumen del sistema y la elección de la salida necesitan PulseAudio o PipeWire.</translation>
    </message>
    <message>
        <source>Nothing composes this desktop: the picture cannot be darkened further than the monitor's own brightness.</source>
        <translation>Este escritorio no tiene compositor: la imagen no se puede oscurecer más allá del brillo del monitor.</translation>
    </message>
    <message>
        <source>This session keeps no window above all others: what comes to the front later may not be darkened.</source>
        <translation>Esta sesión no mantiene ninguna ventana por encima de todas: lo que pase delante después puede no oscurecerse.</translation>
    </message>
    <message>
        <source>There is no desktop session.</source>
        <translation>No hay ninguna sesión de escritorio.</translation>
    </message>
    <message>
        <source>In an X11 session it works.</source>
        <translation>En una sesión X11 funciona.</translation>
    </message>
</context>
<context>
    <name>RealMonitors</name>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. Your account is in the group %2 already: log out and in again.</source>
        <translation>No hay permiso para usar %1, por lo que no se puede controlar su monitor. Su cuenta ya está en el grupo %2: cierre la sesión y vuelva a iniciarla.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer.</source>
        <translation>No hay permiso para usar %1, por lo que no se puede controlar su monitor. La regla de udev %2 de este programa no está instalada: instálela en %3 y reinicie el equipo.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer, or add your account to the group %4 and log in again.</source>
        <translation>No hay permiso para usar %1, por lo que no se puede controlar su monitor. La regla de udev %2 de este programa no está instalada: instálela en %3 y reinicie el equipo, o añada su cuenta al grupo %4 y vuelva a iniciar sesión.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed, but this session has no seat at this computer: add your account to the group %2 and log in again.</source>
        <translation>No hay permiso para usar %1, por lo que no se puede controlar su monitor. La regla de udev está instalada, pero esta sesión no tiene un puesto en este equipo: añada su cuenta al grupo %2 y vuelva a iniciar sesión.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed but not in force: run "udevadm trigger --subsystem-match=i2c-dev" as root or restart the computer.</source>
        <translation>No hay permiso para usar %1, por lo que no se puede controlar su monitor. La regla de udev está instalada, pero no en vigor: ejecute "udevadm trigger --subsystem-match=i2c-dev" como root o reinicie el equipo.</translation>
    </message>
    <message>
        <source>The system shows no I2C device files, so external monitors cannot be controlled. Load the kernel module i2c-dev: run "modprobe i2c-dev" as root, or install modules-load.d/lumen-desk.conf of this program and restart the computer.</source>
        <translation>El sistema no muestra archivos de dispositivo I2C, por lo que no se pueden controlar monitores externos. Cargue el módulo del núcleo i2c-dev: ejecute "modprobe i2c-dev" como root, o instale modules-load.d/lumen-desk.conf de este programa y reinicie el equipo.</translation>
    </message>
    <message>
        <source>%1 leads to another monitor now; nothing was sent to it.</source>
        <translation>%1 lleva ahora a otro monitor; no se le ha enviado nada.</translation>
    </message>
</context>
</TS>
