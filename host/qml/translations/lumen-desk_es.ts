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
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Two computers</source>
        <translation>Dos ordenadores</translation>
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
<context>
    <name>ComputersPage</name>
    <message>
        <source>Two computers</source>
        <translation>Dos ordenadores</translation>
    </message>
    <message>
        <source>Two computers that share a monitor can hand over keyboard and mouse at the edge of the screen. Connected, they agree who has the pointer, and it enters where it left.</source>
        <translation>Dos ordenadores que comparten un monitor pueden pasarse el teclado y el ratón en el borde de la pantalla. Conectados, acuerdan quién tiene el puntero, y este entra por donde salió.</translation>
    </message>
    <message>
        <source>Connection to a second computer</source>
        <translation>Conexión con un segundo ordenador</translation>
    </message>
    <message>
        <source>Only the computer that you pair can connect, encrypted, on your local network. It learns where the pointer is: no keys, texts or files are sent. While it is on, the network sees this computer's name.</source>
        <translation>Solo puede conectarse el ordenador que empareje, cifrado y en su red local. Sabe dónde está el puntero: no se envían teclas, textos ni archivos. Mientras está activada, la red ve el nombre de este ordenador.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Este ordenador</translation>
    </message>
    <message>
        <source>It has no address on a local network.</source>
        <translation>No tiene dirección en una red local.</translation>
    </message>
    <message>
        <source>Paired computer</source>
        <translation>Ordenador emparejado</translation>
    </message>
    <message>
        <source>Pair again</source>
        <translation>Emparejar de nuevo</translation>
    </message>
    <message>
        <source>Pair a computer</source>
        <translation>Emparejar un ordenador</translation>
    </message>
</context>
<context>
    <name>PairedComputer</name>
    <message>
        <source>Computer without a name</source>
        <translation>Ordenador sin nombre</translation>
    </message>
    <message>
        <source>Last met at %1</source>
        <translation>Visto por última vez en %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Not paired there</source>
        <translation>No emparejado allí</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Buscando</translation>
    </message>
    <message>
        <source>It answers, and does not know this computer any more. Pair the two anew.</source>
        <translation>Responde, pero ya no conoce este ordenador. Empareje los dos de nuevo.</translation>
    </message>
    <message>
        <source>It is found again by itself once it runs in the same network. If it has another address, you can type it here.</source>
        <translation>Se encuentra solo en cuanto funciona en la misma red. Si tiene otra dirección, puede escribirla aquí.</translation>
    </message>
    <message>
        <source>Another address</source>
        <translation>Otra dirección</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Olvidar</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Forget %1?</source>
        <translation>¿Olvidar %1?</translation>
    </message>
    <message>
        <source>The two do not connect any more until they are paired again.</source>
        <translation>Los dos no se conectarán hasta que se emparejen de nuevo.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Conservar</translation>
    </message>
</context>
<context>
    <name>ComputerChoice</name>
    <message>
        <source>1. On one computer</source>
        <translation>1. En un ordenador</translation>
    </message>
    <message>
        <source>It waits for two minutes, for one call.</source>
        <translation>Espera una llamada durante dos minutos.</translation>
    </message>
    <message>
        <source>Wait for the other computer</source>
        <translation>Esperar al otro ordenador</translation>
    </message>
    <message>
        <source>2. On the other computer</source>
        <translation>2. En el otro ordenador</translation>
    </message>
    <message>
        <source>Type the address of the computer that waits. Where the service Avahi runs, it is found by itself.</source>
        <translation>Escriba la dirección del ordenador que espera. Donde funciona el servicio Avahi, se encuentra solo.</translation>
    </message>
    <message>
        <source>Choose the computer that waits, or type its address.</source>
        <translation>Elija el ordenador que espera o escriba su dirección.</translation>
    </message>
    <message>
        <source>No computer nearby has this switched on. You can also type its address.</source>
        <translation>Ningún ordenador cercano tiene esto activado. También puede escribir su dirección.</translation>
    </message>
    <message>
        <source>Pair</source>
        <translation>Emparejar</translation>
    </message>
    <message>
        <source>Pair with %1</source>
        <translation>Emparejar con %1</translation>
    </message>
    <message>
        <source>Address of the other computer</source>
        <translation>Dirección del otro ordenador</translation>
    </message>
</context>
<context>
    <name>ComputerPairing</name>
    <message>
        <source>Waiting for the other computer</source>
        <translation>Esperando al otro ordenador</translation>
    </message>
    <message>
        <source>Calling the other computer</source>
        <translation>Llamando al otro ordenador</translation>
    </message>
    <message>
        <source>Now confirm the code on the other computer</source>
        <translation>Confirme ahora el código en el otro ordenador</translation>
    </message>
    <message>
        <source>Does %1 show the same code?</source>
        <translation>¿Muestra %1 el mismo código?</translation>
    </message>
    <message>
        <source>Does the other computer show the same code?</source>
        <translation>¿Muestra el otro ordenador el mismo código?</translation>
    </message>
    <message>
        <source>Choose this computer there, or type its address: %1</source>
        <translation>Elija allí este ordenador o escriba su dirección: %1</translation>
    </message>
    <message>
        <source>If the codes differ, somebody else is in between: answer no.</source>
        <translation>Si los códigos difieren, hay alguien en medio: responda que no.</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Yes, pair</source>
        <translation>Sí, emparejar</translation>
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
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>LocationPage</name>
    <message>
        <source>Location service of the system</source>
        <translation>Servicio de ubicación del sistema</translation>
    </message>
    <message>
        <source>GeoClue is asked for your city, and no closer. To find it, it may send which networks are around you to a service on the Internet. Without an answer the city of the time zone is used.</source>
        <translation>Se pregunta a GeoClue por su ciudad, sin más detalle. Para hallarla, puede enviar a un servicio de Internet qué redes hay a su alrededor. Sin respuesta se usa la ciudad de la zona horaria.</translation>
    </message>
    <message>
        <source>City of the time zone</source>
        <translation>Ciudad de la zona horaria</translation>
    </message>
    <message>
        <source>%1. Nobody is asked.</source>
        <translation>%1. No se pregunta a nadie.</translation>
    </message>
    <message>
        <source>Your time zone has no city.</source>
        <translation>Su zona horaria no tiene ciudad.</translation>
    </message>
    <message>
        <source>A place that I choose</source>
        <translation>Un lugar que elijo</translation>
    </message>
    <message>
        <source>Nobody is asked.</source>
        <translation>No se pregunta a nadie.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Nothing follows the sun. Times that you set yourself still work.</source>
        <translation>Nada sigue al sol. Las horas que usted fije siguen funcionando.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Functions that follow sunrise and sunset need to know roughly where you are. Nothing else uses it.</source>
        <translation>Las funciones que siguen la salida y la puesta del sol necesitan saber más o menos dónde está. Nada más lo usa.</translation>
    </message>
    <message>
        <source>Position in use</source>
        <translation>Posición en uso</translation>
    </message>
    <message>
        <source>It is sent, rounded to hundredths of a degree, to %1 for the times of sunrise and sunset.</source>
        <translation>Se envía, redondeada a centésimas de grado, a %1 para las horas de salida y puesta del sol.</translation>
    </message>
    <message>
        <source>The times of sunrise and sunset are computed on this computer. The position is sent to nobody.</source>
        <translation>Las horas de salida y puesta del sol se calculan en este ordenador. La posición no se envía a nadie.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
</context>
<context>
    <name>PlaceChoice</name>
    <message>
        <source>Chosen place: %1</source>
        <translation>Lugar elegido: %1</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>Lugar elegido</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Ciudad</translation>
    </message>
    <message>
        <source>Of the cities that name a time zone. They are known here: nothing is sent.</source>
        <translation>De las ciudades que dan nombre a una zona horaria. Se conocen aquí: no se envía nada.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitud</translation>
    </message>
    <message>
        <source>Degrees, north of the equator. South is negative.</source>
        <translation>Grados al norte del ecuador. El sur es negativo.</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Degrees, east of Greenwich. West is negative.</source>
        <translation>Grados al este de Greenwich. El oeste es negativo.</translation>
    </message>
    <message>
        <source>A latitude is a number from -90 to 90, a longitude one from -180 to 180.</source>
        <translation>Una latitud es un número de -90 a 90, una longitud de -180 a 180.</translation>
    </message>
</context>
<context>
    <name>LuComputers</name>
    <message>
        <source>The connection could not be switched on: %1.</source>
        <translation>No se pudo activar la conexión: %1.</translation>
    </message>
    <message>
        <source>This is neither an address, such as 192.168.1.7, nor the name of a computer.</source>
        <translation>No es una dirección, como 192.168.1.7, ni el nombre de un ordenador.</translation>
    </message>
    <message>
        <source>Only a computer of your local network can be paired.</source>
        <translation>Solo se puede emparejar un ordenador de su red local.</translation>
    </message>
    <message>
        <source>No other computer has called within two minutes.</source>
        <translation>Ningún otro ordenador ha llamado en dos minutos.</translation>
    </message>
    <message>
        <source>The code was not confirmed on both computers within two minutes.</source>
        <translation>El código no se confirmó en los dos ordenadores en dos minutos.</translation>
    </message>
    <message>
        <source>No Lumen Desk answers there. Are both computers on the same network, is the connection switched on there, and does a firewall let it through?</source>
        <translation>Allí no responde ningún Lumen Desk. ¿Están los dos ordenadores en la misma red, está activada allí la conexión y la deja pasar un cortafuegos?</translation>
    </message>
    <message>
        <source>The other computer is not waiting. Choose "Wait for the other computer" there first.</source>
        <translation>El otro ordenador no está esperando. Elija allí primero «Esperar al otro ordenador».</translation>
    </message>
    <message>
        <source>The other computer did not confirm the code.</source>
        <translation>El otro ordenador no confirmó el código.</translation>
    </message>
    <message>
        <source>What has called does not keep to the rules. Nothing was paired.</source>
        <translation>Quien ha llamado no cumple las reglas. No se emparejó nada.</translation>
    </message>
    <message>
        <source>No computer of this name was found.</source>
        <translation>No se encontró ningún ordenador con este nombre.</translation>
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
