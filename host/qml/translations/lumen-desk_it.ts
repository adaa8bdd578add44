<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>AboutPage</name>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Version %1 · Apache License 2.0</source>
        <translation>Versione %1 · Licenza Apache 2.0</translation>
    </message>
    <message>
        <source>Apache License 2.0</source>
        <translation>Licenza Apache 2.0</translation>
    </message>
    <message>
        <source>Puts you in control of your monitors.</source>
        <translation>Ti dà il controllo dei tuoi monitor.</translation>
    </message>
    <message>
        <source>Show the introduction</source>
        <translation>Mostra l’introduzione</translation>
    </message>
    <message>
        <source>Open-source notices</source>
        <translation>Note open source</translation>
    </message>
</context>
<context>
    <name>ArrangeList</name>
    <message>
        <source>Rows</source>
        <translation>Righe</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Riquadri</translation>
    </message>
    <message>
        <source>Wide tiles</source>
        <translation>Riquadri larghi</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>In fondo</translation>
    </message>
    <message>
        <source>Move %1 forward</source>
        <translation>Sposta %1 avanti</translation>
    </message>
    <message>
        <source>Move %1 back</source>
        <translation>Sposta %1 indietro</translation>
    </message>
    <message>
        <source>Reset to the original order</source>
        <translation>Ripristina l’ordine originale</translation>
    </message>
</context>
<context>
    <name>ArrangePage</name>
    <message>
        <source>Arrange</source>
        <translation>Disponi</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Scegli che cosa mostra la finestra e in quale ordine.</translation>
    </message>
</context>
<context>
    <name>DiagnosticsPage</name>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnostica</translation>
    </message>
    <message>
        <source>No monitor is connected.</source>
        <translation>Nessun monitor collegato.</translation>
    </message>
    <message>
        <source>The report holds what is shown here and the log of the monitors' buses. Serial numbers, your name and your folders are left out.</source>
        <translation>Il rapporto contiene ciò che è mostrato qui e il registro dei bus. Numeri di serie, nome e cartelle sono esclusi.</translation>
    </message>
    <message>
        <source>Export report</source>
        <translation>Esporta rapporto</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>Salvato in %1</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Every widget is hidden</source>
        <translation>Tutto è nascosto</translation>
    </message>
    <message>
        <source>Looking for monitors…</source>
        <translation>Ricerca dei monitor…</translation>
    </message>
    <message>
        <source>No supported monitor found</source>
        <translation>Nessun monitor supportato</translation>
    </message>
    <message>
        <source>Bring back what you need; nothing was lost.</source>
        <translation>Riporta ciò che ti serve; nulla è andato perso.</translation>
    </message>
    <message>
        <source>This takes a moment.</source>
        <translation>Ci vorrà un momento.</translation>
    </message>
    <message>
        <source>Plug one in and it appears here by itself.</source>
        <translation>Collegane uno e apparirà qui da solo.</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Disponi</translation>
    </message>
    <message>
        <source>The monitor is switched on and connected directly, by USB-C, DisplayPort or HDMI.</source>
        <translation>Il monitor è acceso e collegato direttamente tramite USB-C, DisplayPort o HDMI.</translation>
    </message>
    <message>
        <source>DDC/CI is switched on in the monitor's own menu.</source>
        <translation>DDC/CI è attivo nel menu del monitor.</translation>
    </message>
    <message>
        <source>This account may use the I2C devices: install the device rule or join the group "i2c", then log in again.</source>
        <translation>Questo account può usare i dispositivi I2C: installa la regola o entra nel gruppo «i2c», poi accedi di nuovo.</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Cerca di nuovo</translation>
    </message>
    <message>
        <source>Try it with a simulated monitor</source>
        <translation>Prova con un monitor simulato</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Follow the desktop</source>
        <translation>Come il desktop</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Chiaro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Scuro</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Contrasto elevato</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generali</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Come il desktop</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Avvia all’accesso</translation>
    </message>
    <message>
        <source>Schedules and shortcuts work from the moment that you log in.</source>
        <translation>Programmi e scorciatoie funzionano fin dall’accesso.</translation>
    </message>
    <message>
        <source>Keep running when the window is closed</source>
        <translation>Resta attivo alla chiusura della finestra</translation>
    </message>
    <message>
        <source>The icon in the tray brings the window back.</source>
        <translation>L’icona nel pannello riporta la finestra.</translation>
    </message>
    <message>
        <source>Starting Lumen Desk again brings the window back.</source>
        <translation>Riavviando Lumen Desk la finestra ritorna.</translation>
    </message>
    <message>
        <source>Restore my settings at start</source>
        <translation>Ripristina le impostazioni all’avvio</translation>
    </message>
    <message>
        <source>Monitors get the values of your last session. Switched off, they keep what they have.</source>
        <translation>I monitor ricevono i valori dell’ultima sessione. Se disattivato, mantengono i propri.</translation>
    </message>
</context>
<context>
    <name>HeaderBar</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>LuActionSelectionPopup</name>
    <message>
        <source>Set an Action</source>
        <translation>Imposta un’azione</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>This flow has every action that the monitor offers.</source>
        <translation>Questo flusso ha tutte le azioni offerte dal monitor.</translation>
    </message>
</context>
<context>
    <name>LuContext</name>
    <message>
        <source>Built-in</source>
        <translation>Integrato</translation>
    </message>
    <message>
        <source>S/N %1</source>
        <translation>N. serie %1</translation>
    </message>
</context>
<context>
    <name>LuDiagnostics</name>
    <message>
        <source>Connection</source>
        <translation>Connessione</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Trasferimenti</translation>
    </message>
    <message>
        <source>Retries</source>
        <translation>Tentativi</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Errori</translation>
    </message>
    <message>
        <source>Learnt waits</source>
        <translation>Attese apprese</translation>
    </message>
    <message>
        <source>Writes today</source>
        <translation>Scritture oggi</translation>
    </message>
    <message>
        <source>Circuit breaker</source>
        <translation>Interruttore</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>sconosciuto</translation>
    </message>
    <message>
        <source>asleep</source>
        <translation>in riposo</translation>
    </message>
    <message>
        <source>gives no answer</source>
        <translation>non risponde</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>risponde</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>integrato</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>simulato</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>chiuso</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Schermo</translation>
    </message>
    <message>
        <source>not told from an equal monitor's</source>
        <translation>non distinguibile da quello di un monitor uguale</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>impossibile creare la cartella</translation>
    </message>
    <message>
        <source>The report could not be written to %1: %2</source>
        <translation>Impossibile scrivere il rapporto in %1: %2</translation>
    </message>
    <message>
        <source>no reply</source>
        <translation>nessuna risposta</translation>
    </message>
    <message>
        <source>null reply</source>
        <translation>risposta vuota</translation>
    </message>
    <message>
        <source>bad checksum</source>
        <translation>somma di controllo errata</translation>
    </message>
    <message>
        <source>unsupported code</source>
        <translation>codice non supportato</translation>
    </message>
    <message>
        <source>malformed reply</source>
        <translation>risposta malformata</translation>
    </message>
    <message>
        <source>bus busy</source>
        <translation>bus occupato</translation>
    </message>
    <message>
        <source>no access to the bus</source>
        <translation>nessun accesso al bus</translation>
    </message>
    <message>
        <source>monitor gone</source>
        <translation>monitor scomparso</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>annullato</translation>
    </message>
    <message>
        <source>refused after too many writes</source>
        <translation>rifiutato dopo troppe scritture</translation>
    </message>
    <message>
        <source>display asleep</source>
        <translation>schermo in sospensione</translation>
    </message>
    <message>
        <source>%1 ms before a reply</source>
        <translation>%1 ms prima di una risposta</translation>
    </message>
    <message>
        <source>%1 ms after a write</source>
        <translation>%1 ms dopo una scrittura</translation>
    </message>
    <message>
        <source>open for %1</source>
        <translation>aperto per %1</translation>
    </message>
    <message>
        <source>closed; times opened: %1</source>
        <translation>chiuso; volte aperto: %1</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 su %2</translation>
    </message>
</context>
<context>
    <name>LuHelpButton</name>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
</context>
<context>
    <name>LuHintWindow</name>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>LuListRow</name>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
</context>
<context>
    <name>LuNamePopup</name>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>There is one of that name already.</source>
        <translation>Questo nome esiste già.</translation>
    </message>
</context>
<context>
    <name>LuPopupAction</name>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
</context>
<context>
    <name>LuPopupController</name>
    <message>
        <source>Color mode</source>
        <translation>Modalità colore</translation>
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
        <translation>Apri applicazioni</translation>
    </message>
    <message>
        <source>Add a flow</source>
        <translation>Aggiungi un flusso</translation>
    </message>
    <message>
        <source>Rename the flow</source>
        <translation>Rinomina il flusso</translation>
    </message>
</context>
<context>
    <name>LuProgressRing</name>
    <message>
        <source>Please wait…</source>
        <translation>Attendere…</translation>
    </message>
</context>
<context>
    <name>LuSchedulePopup</name>
    <message>
        <source>Schedule</source>
        <translation>Programma</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>%1, hour</source>
        <translation>%1, ora</translation>
    </message>
    <message>
        <source>%1, minute</source>
        <translation>%1, minuto</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Ends on the next day.</source>
        <translation>Termina il giorno dopo.</translation>
    </message>
    <message>
        <source>Start and end are the same.</source>
        <translation>Inizio e fine coincidono.</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Ripeti</translation>
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
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>LuTimeButton</name>
    <message>
        <source>Hours</source>
        <translation>Ore</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuti</translation>
    </message>
</context>
<context>
    <name>LuWarningWindow</name>
    <message>
        <source>%1 is not available in the current color mode.</source>
        <translation>%1 non è disponibile nella modalità colore attuale.</translation>
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
        <translation>Personalizzata</translation>
    </message>
    <message>
        <source>Native</source>
        <translation>Nativo</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Dialogue</source>
        <translation>Dialoghi</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musica</translation>
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
        <source>Studio</source>
        <translation>Studio</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utente</translation>
    </message>
</context>
<context>
    <name>PagePanel</name>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>Generali</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>Elementi</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnostica</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzate</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Two computers</source>
        <translation>Due computer</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Lumen Desk</source>
        <translation>Mostra Lumen Desk</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
</context>
<context>
    <name>WalkthroughWindow</name>
    <message>
        <source>Welcome to Lumen Desk</source>
        <translation>Benvenuto in Lumen Desk</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Prova</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
</context>
<context>
    <name>WidgetsPage</name>
    <message>
        <source>Widgets</source>
        <translation>Elementi</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Scegli che cosa mostra la finestra e in quale ordine.</translation>
    </message>
    <message>
        <source>Widgets can be arranged while a supported monitor is connected.</source>
        <translation>Gli elementi si dispongono con un monitor supportato collegato.</translation>
    </message>
</context>
<context>
    <name>LuAbsences</name>
    <message>
        <source>This session does not let programs change the resolution.</source>
        <translation>Questa sessione non permette ai programmi di cambiare la risoluzione.</translation>
    </message>
    <message>
        <source>This session does not let programs turn the picture.</source>
        <translation>Questa sessione non permette ai programmi di ruotare l'immagine.</translation>
    </message>
    <message>
        <source>This session does not let programs change the scaling.</source>
        <translation>Questa sessione non permette ai programmi di cambiare la scala.</translation>
    </message>
    <message>
        <source>This session gives programs no keys while another window is in front: shortcuts work only in the windows of Lumen Desk.</source>
        <translation>Questa sessione non dà tasti ai programmi mentre un'altra finestra è in primo piano: le scorciatoie funzionano solo nelle finestre di Lumen Desk.</translation>
    </message>
    <message>
        <source>This session does not tell which application is in front.</source>
        <translation>Questa sessione non dice quale applicazione è in primo piano.</translation>
    </message>
    <message>
        <source>This session does not let programs move the windows of other applications.</source>
        <translation>Questa sessione non permette ai programmi di spostare le finestre di altre applicazioni.</translation>
    </message>
    <message>
        <source>This session does not let programs press the keys of copy and paste: the second clipboard does not work.</source>
        <translation>Questa sessione non permette ai programmi di premere i tasti copia e incolla: il secondo blocco appunti non funziona.</translation>
    </message>
    <message>
        <source>This session does not tell where the pointer is: keyboard and mouse do not change over at the edge of the screen.</source>
        <translation>Questa sessione non dice dove si trova il puntatore: tastiera e mouse non cambiano al bordo dello schermo.</translation>
    </message>
    <message>
        <source>No sound output was found: the system volume and the choice of the output need PulseAudio or PipeWire.</source>
        <translation>Nessuna uscita audio trovata: il volume di sistema e la scelta dell'uscita richiedono PulseAudio o PipeWire.</translation>
    </message>
    <message>
        <source>Nothing composes this desktop: the picture cannot be darkened further than the monitor's own brightness.</source>
        <translation>Questo desktop non ha un compositore: l'immagine non può essere scurita oltre la luminosità del monitor.</translation>
    </message>
    <message>
        <source>This session keeps no window above all others: what comes to the front later may not be darkened.</source>
        <translation>Questa sessione non tiene alcuna finestra sopra tutte le altre: ciò che passa davanti in seguito potrebbe non essere scurito.</translation>
    </message>
    <message>
        <source>There is no desktop session.</source>
        <translation>Non c'è alcuna sessione desktop.</translation>
    </message>
    <message>
        <source>In an X11 session it works.</source>
        <translation>In una sessione X11 funziona.</translation>
    </message>
</context>
<context>
    <name>RealMonitors</name>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. Your account is in the group %2 already: log out and in again.</source>
        <translation>Manca l’autorizzazione a usare %1, perciò il suo monitor non può essere controllato. Il suo account è già nel gruppo %2: esca dalla sessione e rientri.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer.</source>
        <translation>Manca l’autorizzazione a usare %1, perciò il suo monitor non può essere controllato. La regola udev %2 di questo programma non è installata: la installi in %3 e riavvii il computer.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer, or add your account to the group %4 and log in again.</source>
        <translation>Manca l’autorizzazione a usare %1, perciò il suo monitor non può essere controllato. La regola udev %2 di questo programma non è installata: la installi in %3 e riavvii il computer, oppure aggiunga il suo account al gruppo %4 e acceda di nuovo.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed, but this session has no seat at this computer: add your account to the group %2 and log in again.</source>
        <translation>Manca l’autorizzazione a usare %1, perciò il suo monitor non può essere controllato. La regola udev è installata, ma questa sessione non ha una postazione su questo computer: aggiunga il suo account al gruppo %2 e acceda di nuovo.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed but not in force: run "udevadm trigger --subsystem-match=i2c-dev" as root or restart the computer.</source>
        <translation>Manca l’autorizzazione a usare %1, perciò il suo monitor non può essere controllato. La regola udev è installata ma non in vigore: esegua "udevadm trigger --subsystem-match=i2c-dev" come root o riavvii il computer.</translation>
    </message>
    <message>
        <source>The system shows no I2C device files, so external monitors cannot be controlled. Load the kernel module i2c-dev: run "modprobe i2c-dev" as root, or install modules-load.d/lumen-desk.conf of this program and restart the computer.</source>
        <translation>Il sistema non mostra file di dispositivo I2C, perciò i monitor esterni non possono essere controllati. Carichi il modulo del kernel i2c-dev: esegua "modprobe i2c-dev" come root, oppure installi modules-load.d/lumen-desk.conf di questo programma e riavvii il computer.</translation>
    </message>
    <message>
        <source>%1 leads to another monitor now; nothing was sent to it.</source>
        <translation>%1 porta ora a un altro monitor; non gli è stato inviato nulla.</translation>
    </message>
</context>
<context>
    <name>ComputersPage</name>
    <message>
        <source>Two computers</source>
        <translation>Due computer</translation>
    </message>
    <message>
        <source>Two computers that share a monitor can hand over keyboard and mouse at the edge of the screen. Connected, they agree who has the pointer, and it enters where it left.</source>
        <translation>Due computer che condividono un monitor possono passarsi tastiera e mouse al bordo dello schermo. Collegati, concordano chi ha il puntatore, che entra da dove è uscito.</translation>
    </message>
    <message>
        <source>Connection to a second computer</source>
        <translation>Connessione a un secondo computer</translation>
    </message>
    <message>
        <source>Only the computer that you pair can connect, encrypted, on your local network. It learns where the pointer is: no keys, texts or files are sent. While it is on, the network sees this computer's name.</source>
        <translation>Può collegarsi solo il computer che abbini, in modo cifrato e nella rete locale. Sa dove si trova il puntatore: non vengono inviati tasti, testi o file. Finché è attiva, la rete vede il nome di questo computer.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Questo computer</translation>
    </message>
    <message>
        <source>It has no address on a local network.</source>
        <translation>Non ha un indirizzo in una rete locale.</translation>
    </message>
    <message>
        <source>Paired computer</source>
        <translation>Computer abbinato</translation>
    </message>
    <message>
        <source>Pair again</source>
        <translation>Abbina di nuovo</translation>
    </message>
    <message>
        <source>Pair a computer</source>
        <translation>Abbina un computer</translation>
    </message>
</context>
<context>
    <name>PairedComputer</name>
    <message>
        <source>Computer without a name</source>
        <translation>Computer senza nome</translation>
    </message>
    <message>
        <source>Last met at %1</source>
        <translation>Visto l'ultima volta a %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connesso</translation>
    </message>
    <message>
        <source>Not paired there</source>
        <translation>Non abbinato lì</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Ricerca</translation>
    </message>
    <message>
        <source>It answers, and does not know this computer any more. Pair the two anew.</source>
        <translation>Risponde, ma non conosce più questo computer. Abbina di nuovo i due.</translation>
    </message>
    <message>
        <source>It is found again by itself once it runs in the same network. If it has another address, you can type it here.</source>
        <translation>Viene ritrovato da solo appena è attivo nella stessa rete. Se ha un altro indirizzo, puoi scriverlo qui.</translation>
    </message>
    <message>
        <source>Another address</source>
        <translation>Altro indirizzo</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Dimentica</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Collega</translation>
    </message>
    <message>
        <source>Forget %1?</source>
        <translation>Dimenticare %1?</translation>
    </message>
    <message>
        <source>The two do not connect any more until they are paired again.</source>
        <translation>I due non si collegano più finché non vengono abbinati di nuovo.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Mantieni</translation>
    </message>
</context>
<context>
    <name>ComputerChoice</name>
    <message>
        <source>1. On one computer</source>
        <translation>1. Su un computer</translation>
    </message>
    <message>
        <source>It waits for two minutes, for one call.</source>
        <translation>Attende una chiamata per due minuti.</translation>
    </message>
    <message>
        <source>Wait for the other computer</source>
        <translation>Attendi l'altro computer</translation>
    </message>
    <message>
        <source>2. On the other computer</source>
        <translation>2. Sull'altro computer</translation>
    </message>
    <message>
        <source>Type the address of the computer that waits. Where the service Avahi runs, it is found by itself.</source>
        <translation>Scrivi l'indirizzo del computer in attesa. Dove è attivo il servizio Avahi, viene trovato da solo.</translation>
    </message>
    <message>
        <source>Choose the computer that waits, or type its address.</source>
        <translation>Scegli il computer in attesa o scrivi il suo indirizzo.</translation>
    </message>
    <message>
        <source>No computer nearby has this switched on. You can also type its address.</source>
        <translation>Nessun computer vicino ha attivato questa funzione. Puoi anche scrivere il suo indirizzo.</translation>
    </message>
    <message>
        <source>Pair</source>
        <translation>Abbina</translation>
    </message>
    <message>
        <source>Pair with %1</source>
        <translation>Abbina con %1</translation>
    </message>
    <message>
        <source>Address of the other computer</source>
        <translation>Indirizzo dell'altro computer</translation>
    </message>
</context>
<context>
    <name>ComputerPairing</name>
    <message>
        <source>Waiting for the other computer</source>
        <translation>In attesa dell'altro computer</translation>
    </message>
    <message>
        <source>Calling the other computer</source>
        <translation>Chiamata all'altro computer</translation>
    </message>
    <message>
        <source>Now confirm the code on the other computer</source>
        <translation>Ora conferma il codice sull'altro computer</translation>
    </message>
    <message>
        <source>Does %1 show the same code?</source>
        <translation>%1 mostra lo stesso codice?</translation>
    </message>
    <message>
        <source>Does the other computer show the same code?</source>
        <translation>L'altro computer mostra lo stesso codice?</translation>
    </message>
    <message>
        <source>Choose this computer there, or type its address: %1</source>
        <translation>Scegli lì questo computer o scrivi il suo indirizzo: %1</translation>
    </message>
    <message>
        <source>If the codes differ, somebody else is in between: answer no.</source>
        <translation>Se i codici sono diversi, c'è qualcuno in mezzo: rispondi no.</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Yes, pair</source>
        <translation>Sì, abbina</translation>
    </message>
</context>
<context>
    <name>AddressLine</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>LocationPage</name>
    <message>
        <source>Location service of the system</source>
        <translation>Servizio di localizzazione del sistema</translation>
    </message>
    <message>
        <source>GeoClue is asked for your city, and no closer. To find it, it may send which networks are around you to a service on the Internet. Without an answer the city of the time zone is used.</source>
        <translation>A GeoClue si chiede la tua città, niente di più preciso. Per trovarla può inviare a un servizio su Internet quali reti ti circondano. Senza risposta si usa la città del fuso orario.</translation>
    </message>
    <message>
        <source>City of the time zone</source>
        <translation>Città del fuso orario</translation>
    </message>
    <message>
        <source>%1. Nobody is asked.</source>
        <translation>%1. Non si chiede a nessuno.</translation>
    </message>
    <message>
        <source>Your time zone has no city.</source>
        <translation>Il tuo fuso orario non ha una città.</translation>
    </message>
    <message>
        <source>A place that I choose</source>
        <translation>Un luogo che scelgo</translation>
    </message>
    <message>
        <source>Nobody is asked.</source>
        <translation>Non si chiede a nessuno.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>Nothing follows the sun. Times that you set yourself still work.</source>
        <translation>Nulla segue il sole. Gli orari che imposti tu continuano a valere.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Functions that follow sunrise and sunset need to know roughly where you are. Nothing else uses it.</source>
        <translation>Le funzioni che seguono alba e tramonto devono sapere all'incirca dove ti trovi. Nient'altro lo usa.</translation>
    </message>
    <message>
        <source>Position in use</source>
        <translation>Posizione in uso</translation>
    </message>
    <message>
        <source>It is sent, rounded to hundredths of a degree, to %1 for the times of sunrise and sunset.</source>
        <translation>Viene inviata, arrotondata al centesimo di grado, a %1 per gli orari di alba e tramonto.</translation>
    </message>
    <message>
        <source>The times of sunrise and sunset are computed on this computer. The position is sent to nobody.</source>
        <translation>Gli orari di alba e tramonto sono calcolati su questo computer. La posizione non viene inviata a nessuno.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuna</translation>
    </message>
</context>
<context>
    <name>PlaceChoice</name>
    <message>
        <source>Chosen place: %1</source>
        <translation>Luogo scelto: %1</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>Luogo scelto</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Città</translation>
    </message>
    <message>
        <source>Of the cities that name a time zone. They are known here: nothing is sent.</source>
        <translation>Tra le città che danno il nome a un fuso orario. Sono note qui: non viene inviato nulla.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitudine</translation>
    </message>
    <message>
        <source>Degrees, north of the equator. South is negative.</source>
        <translation>Gradi a nord dell'equatore. Il sud è negativo.</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitudine</translation>
    </message>
    <message>
        <source>Degrees, east of Greenwich. West is negative.</source>
        <translation>Gradi a est di Greenwich. L'ovest è negativo.</translation>
    </message>
    <message>
        <source>A latitude is a number from -90 to 90, a longitude one from -180 to 180.</source>
        <translation>Una latitudine è un numero da -90 a 90, una longitudine da -180 a 180.</translation>
    </message>
</context>
<context>
    <name>LuComputers</name>
    <message>
        <source>The connection could not be switched on: %1.</source>
        <translation>Non è stato possibile attivare la connessione: %1.</translation>
    </message>
    <message>
        <source>This is neither an address, such as 192.168.1.7, nor the name of a computer.</source>
        <translation>Non è un indirizzo, come 192.168.1.7, né il nome di un computer.</translation>
    </message>
    <message>
        <source>Only a computer of your local network can be paired.</source>
        <translation>Si può abbinare solo un computer della rete locale.</translation>
    </message>
    <message>
        <source>No other computer has called within two minutes.</source>
        <translation>Nessun altro computer ha chiamato entro due minuti.</translation>
    </message>
    <message>
        <source>The code was not confirmed on both computers within two minutes.</source>
        <translation>Il codice non è stato confermato su entrambi i computer entro due minuti.</translation>
    </message>
    <message>
        <source>No Lumen Desk answers there. Are both computers on the same network, is the connection switched on there, and does a firewall let it through?</source>
        <translation>Lì non risponde alcun Lumen Desk. I due computer sono nella stessa rete, la connessione è attiva lì e un firewall la lascia passare?</translation>
    </message>
    <message>
        <source>The other computer is not waiting. Choose "Wait for the other computer" there first.</source>
        <translation>L'altro computer non è in attesa. Scegli prima lì «Attendi l'altro computer».</translation>
    </message>
    <message>
        <source>The other computer did not confirm the code.</source>
        <translation>L'altro computer non ha confermato il codice.</translation>
    </message>
    <message>
        <source>What has called does not keep to the rules. Nothing was paired.</source>
        <translation>Chi ha chiamato non rispetta le regole. Non è stato abbinato nulla.</translation>
    </message>
    <message>
        <source>No computer of this name was found.</source>
        <translation>Nessun computer con questo nome è stato trovato.</translation>
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
