<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>ButtonDevice</name>
    <message>
        <source>%1 (Local)</source>
        <translation>%1 (lokal)</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>ButtonNetwork</name>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
</context>
<context>
    <name>ContentUpdateState</name>
    <message>
        <source>Unknown state</source>
        <translation>Unbekannter Zustand</translation>
    </message>
    <message>
        <source>Checking for new content</source>
        <translation>Neue Inhalte werden gesucht</translation>
    </message>
    <message>
        <source>Error checking for new content</source>
        <translation>Fehler bei der Suche nach neuen Inhalten</translation>
    </message>
    <message>
        <source>Downloading content</source>
        <translation>Inhalte werden geladen</translation>
    </message>
    <message>
        <source>Error downloading content</source>
        <translation>Fehler beim Laden der Inhalte</translation>
    </message>
    <message>
        <source>Server content not ready</source>
        <translation>Inhalte auf dem Server noch nicht bereit</translation>
    </message>
    <message>
        <source>Content install pending</source>
        <translation>Installation der Inhalte steht an</translation>
    </message>
    <message>
        <source>Installing content</source>
        <translation>Inhalte werden installiert</translation>
    </message>
    <message>
        <source>Error installing content</source>
        <translation>Fehler beim Installieren der Inhalte</translation>
    </message>
    <message>
        <source>Code: %1</source>
        <translation>Code: %1</translation>
    </message>
</context>
<context>
    <name>CrashHandlerImpl</name>
    <message>
        <source>Orvex</source>
        <translation>Orvex</translation>
    </message>
    <message>
        <source>An error has occured. The application must exit.</source>
        <translation>Ein Fehler ist aufgetreten. Die Anwendung muss beendet werden.</translation>
    </message>
</context>
<context>
    <name>DeviceInfoProxy</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Orvex Coded Video</source>
        <translation>Orvex-codiertes Video</translation>
    </message>
    <message>
        <source>Premium haptic experience for Orvex coded movies and TV shows, using audio synchronization.</source>
        <translation>Haptik in höchster Qualität für Orvex-codierte Filme und Serien, synchron zum Ton.</translation>
    </message>
    <message>
        <source>Orvex Coded Gaming</source>
        <translation>Orvex-codierte Spiele</translation>
    </message>
    <message>
        <source>Premium haptic experience for Orvex coded apps, simulators and games.</source>
        <translation>Haptik in höchster Qualität für Orvex-codierte Apps, Simulatoren und Spiele.</translation>
    </message>
    <message>
        <source>Adaptive Audio</source>
        <translation>Adaptives Audio</translation>
    </message>
    <message>
        <source>Automated haptic experience for any movie, music and TV show, using audio processing.</source>
        <translation>Automatisch aus dem Ton erzeugte Haptik für alle Filme, Serien und jede Musik.</translation>
    </message>
    <message>
        <source>Adaptive Gaming</source>
        <translation>Adaptives Gaming</translation>
    </message>
    <message>
        <source>Haptic experience using real-time events from game controller or keyboard.</source>
        <translation>Haptik aus den Eingaben an Gamecontroller oder Tastatur, in Echtzeit.</translation>
    </message>
    <message>
        <source>Unknown Mode - Update Your App</source>
        <translation>Unbekannter Modus – bitte App aktualisieren</translation>
    </message>
    <message>
        <source>Update your app to see the newest Quivera Modes.</source>
        <translation>Aktualisieren Sie die App, um die neuesten Quivera-Modi zu sehen.</translation>
    </message>
    <message>
        <source>Error with Quivera agent (%1) - try restarting the Quivera app</source>
        <translation>Fehler beim Quivera-Agenten (%1) – bitte starten Sie die Quivera-App neu</translation>
    </message>
    <message>
        <source>Oops, something went wrong (%1) - try restarting the Quivera app or device</source>
        <translation>Leider ist etwas schiefgegangen (%1) – bitte starten Sie die Quivera-App oder das Gerät neu</translation>
    </message>
    <message>
        <source>No seat detected (%1) - connect your device or check your connections</source>
        <translation>Kein Sitz erkannt (%1) – schließen Sie das Gerät an oder prüfen Sie die Verbindungen</translation>
    </message>
    <message>
        <source>Error with Adaptive Gaming (%1) - try restarting your PC or reinstalling the software</source>
        <translation>Fehler beim adaptiven Gaming (%1) – bitte starten Sie den PC neu oder installieren Sie die Software erneut</translation>
    </message>
    <message>
        <source>Error with Adaptive Gaming setup (%1) - try reinstalling the software</source>
        <translation>Fehler beim Einrichten des adaptiven Gamings (%1) – bitte installieren Sie die Software erneut</translation>
    </message>
    <message>
        <source>Oops, something went wrong (%1) - try restarting your PC or reinstalling the software</source>
        <translation>Leider ist etwas schiefgegangen (%1) – bitte starten Sie den PC neu oder installieren Sie die Software erneut</translation>
    </message>
    <message>
        <source>Quivera Mode selection failed (%1) - try restarting the Quivera app or device</source>
        <translation>Der Quivera-Modus konnte nicht gewählt werden (%1) – bitte starten Sie die Quivera-App oder das Gerät neu</translation>
    </message>
    <message>
        <source>Error with haptic device (%1) - try replugging your cables</source>
        <translation>Fehler beim Haptikgerät (%1) – bitte stecken Sie die Kabel neu ein</translation>
    </message>
    <message>
        <source>N/A</source>
        <comment>update time</comment>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>Please wait for mode change...</source>
        <translation>Moduswechsel, bitte warten...</translation>
    </message>
    <message>
        <source>It is starting. Please wait a moment.</source>
        <translation>Das Programm startet. Bitte warten Sie einen Moment.</translation>
    </message>
    <message>
        <source>Restart your PC. If this does not help, reinstall the Quivera software.</source>
        <translation>Starten Sie den PC neu. Hilft das nicht, installieren Sie die Quivera-Software erneut.</translation>
    </message>
    <message>
        <source>It is not running. Restart the Quivera app or your PC.</source>
        <translation>Das Programm läuft nicht. Starten Sie die Quivera-App oder den PC neu.</translation>
    </message>
    <message>
        <source>Update your app to learn what this state means.</source>
        <translation>Aktualisieren Sie die App, um zu erfahren, was dieser Zustand bedeutet.</translation>
    </message>
</context>
<context>
    <name>MediaStatus</name>
    <message>
        <source>Configuring Audio Capture</source>
        <translation>Tonaufnahme wird eingerichtet</translation>
    </message>
    <message>
        <source>Audio Capture Configured</source>
        <translation>Tonaufnahme eingerichtet</translation>
    </message>
    <message>
        <source>Starting Audio Capture</source>
        <translation>Tonaufnahme wird gestartet</translation>
    </message>
    <message>
        <source>Audio Capture Started</source>
        <translation>Tonaufnahme gestartet</translation>
    </message>
    <message>
        <source>Stopping Audio Capture</source>
        <translation>Tonaufnahme wird beendet</translation>
    </message>
    <message>
        <source>Audio Capture Stopped</source>
        <translation>Tonaufnahme beendet</translation>
    </message>
    <message>
        <source>Capturing Audio</source>
        <translation>Ton wird aufgenommen</translation>
    </message>
    <message>
        <source>Silence Detected</source>
        <translation>Stille erkannt</translation>
    </message>
    <message>
        <source>Audio Source Detected</source>
        <translation>Tonquelle erkannt</translation>
    </message>
    <message>
        <source>Content Identification Lost</source>
        <translation>Inhalt nicht mehr erkannt</translation>
    </message>
    <message>
        <source>Listening and Analyzing Audio</source>
        <translation>Ton wird abgehört und ausgewertet</translation>
    </message>
    <message>
        <source>Audio Feed Lost</source>
        <translation>Tonsignal verloren</translation>
    </message>
    <message>
        <source>Audio Capture Error</source>
        <translation>Fehler bei der Tonaufnahme</translation>
    </message>
    <message>
        <source>Unknown Media State</source>
        <translation>Unbekannter Medienzustand</translation>
    </message>
    <message>
        <source>Motion Code Found</source>
        <translation>Bewegungscode gefunden</translation>
    </message>
    <message>
        <source>Looking for Motion Code</source>
        <translation>Bewegungscode wird gesucht</translation>
    </message>
    <message>
        <source>Motion Code Available</source>
        <translation>Bewegungscode verfügbar</translation>
    </message>
    <message>
        <source>Motion Code not Available</source>
        <translation>Bewegungscode nicht verfügbar</translation>
    </message>
    <message>
        <source>Unknown Motion Code</source>
        <translation>Unbekannter Bewegungscode</translation>
    </message>
</context>
<context>
    <name>PageGenericInput</name>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>PageMain010DeviceList</name>
    <message>
        <source>ORVEX SYSTEMS</source>
        <translation>ORVEX-SYSTEME</translation>
    </message>
    <message>
        <source>Quivera devices</source>
        <translation>Quivera-Geräte</translation>
    </message>
    <message>
        <source>Network Setup Required</source>
        <translation>Netzwerk muss eingerichtet werden</translation>
    </message>
    <message>
        <source>System Update Required</source>
        <translation>Systemaktualisierung erforderlich</translation>
    </message>
    <message>
        <source>No Quivera device found.
Tap the &quot;Add Quivera Device&quot;
button below.</source>
        <translation>Kein Quivera-Gerät gefunden.
Tippen Sie unten auf
„Quivera-Gerät hinzufügen“.</translation>
    </message>
    <message>
        <source>Add Quivera Device from Network</source>
        <translation>Quivera-Gerät aus dem Netzwerk hinzufügen</translation>
    </message>
    <message>
        <source>Connect a Orvex device to your Wi-Fi</source>
        <translation>Ein Orvex-Gerät mit Ihrem WLAN verbinden</translation>
    </message>
</context>
<context>
    <name>PageMain040DeviceInfo</name>
    <message>
        <source>About this device</source>
        <translation>Über dieses Gerät</translation>
    </message>
    <message>
        <source>System Update Required</source>
        <translation>Systemaktualisierung erforderlich</translation>
    </message>
    <message>
        <source>This device does not answer</source>
        <translation>Dieses Gerät antwortet nicht</translation>
    </message>
    <message>
        <source>%1 requires a more recent software version for compatibility. The update should be done automatically but if it doesn&apos;t, please contact support.</source>
        <translation>%1 benötigt eine neuere Softwareversion. Die Aktualisierung sollte automatisch erfolgen. Falls nicht, wenden Sie sich bitte an den Support.</translation>
    </message>
    <message>
        <source>Check that it is switched on and connected to your network. The page fills again as soon as the device answers.</source>
        <translation>Prüfen Sie, ob es eingeschaltet und mit Ihrem Netzwerk verbunden ist. Die Seite füllt sich wieder, sobald das Gerät antwortet.</translation>
    </message>
    <message>
        <source>The device answers slowly. Check its network connection if this takes longer.</source>
        <translation>Das Gerät antwortet langsam. Prüfen Sie seine Netzwerkverbindung, falls es länger dauert.</translation>
    </message>
    <message>
        <source>Reading the settings of the device...</source>
        <translation>Einstellungen des Geräts werden gelesen...</translation>
    </message>
</context>
<context>
    <name>PageMain050NetworkStatus</name>
    <message>
        <source>NETWORK STATUS</source>
        <translation>NETZWERKSTATUS</translation>
    </message>
    <message>
        <source>The network status is not known yet. Waiting for the device to report it...</source>
        <translation>Der Netzwerkstatus ist noch nicht bekannt. Warten auf die Meldung des Geräts...</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Connected to the network</source>
        <translation>Mit dem Netzwerk verbunden</translation>
    </message>
    <message>
        <source>Not connected to a network</source>
        <translation>Mit keinem Netzwerk verbunden</translation>
    </message>
    <message>
        <source>The access point of the device is on: it waits to be set up</source>
        <translation>Der Zugangspunkt des Geräts ist eingeschaltet: Es wartet auf die Einrichtung</translation>
    </message>
    <message>
        <source>Wi-Fi Network</source>
        <translation>WLAN</translation>
    </message>
    <message>
        <source>Set Up Wi-Fi</source>
        <translation>WLAN einrichten</translation>
    </message>
    <message>
        <source>Reset Network Settings</source>
        <translation>Netzwerkeinstellungen zurücksetzen</translation>
    </message>
</context>
<context>
    <name>PageMain070DeviceAbout</name>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>Produkt</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>Geräte-ID</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>Device Software Version</source>
        <translation>Softwareversion des Geräts</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Network Address</source>
        <translation>Netzwerkadresse</translation>
    </message>
    <message>
        <source>%1 (Local)</source>
        <translation>%1 (lokal)</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>ABOUT THIS DEVICE</source>
        <translation>ÜBER DIESES GERÄT</translation>
    </message>
    <message>
        <source>Change device name</source>
        <translation>Gerätenamen ändern</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Nicht bekannt</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>Verschlüsselt</translation>
    </message>
    <message>
        <source>Not encrypted</source>
        <translation>Unverschlüsselt</translation>
    </message>
</context>
<context>
    <name>PageMain076DetailedStatus</name>
    <message>
        <source>DETAILED STATUS</source>
        <translation>STATUS IM DETAIL</translation>
    </message>
    <message>
        <source>Full Status</source>
        <translation>Gesamter Status</translation>
    </message>
    <message>
        <source>Faults Only</source>
        <translation>Nur Fehler</translation>
    </message>
    <message>
        <source>Faults With Siblings</source>
        <translation>Fehler mit Nachbarn</translation>
    </message>
    <message>
        <source>Topology Outline</source>
        <translation>Aufbau im Überblick</translation>
    </message>
    <message>
        <source>Topology Details</source>
        <translation>Aufbau im Detail</translation>
    </message>
    <message>
        <source>What is shown</source>
        <translation>Angezeigter Ausschnitt</translation>
    </message>
    <message>
        <source>The device reports nothing here. Choose another view above.</source>
        <translation>Das Gerät meldet hier nichts. Wählen Sie oben eine andere Ansicht.</translation>
    </message>
    <message>
        <source>The device answers slowly. Check its network connection if this takes longer.</source>
        <translation>Das Gerät antwortet langsam. Prüfen Sie seine Netzwerkverbindung, falls es länger dauert.</translation>
    </message>
    <message>
        <source>Reading the status of the modules...</source>
        <translation>Status der Module wird gelesen...</translation>
    </message>
    <message>
        <source>No module reports a fault.</source>
        <translation>Kein Modul meldet einen Fehler.</translation>
    </message>
</context>
<context>
    <name>PageMain080MediaList</name>
    <message>
        <source>CODED TITLES</source>
        <translation>CODIERTE TITEL</translation>
    </message>
    <message>
        <source>Search for a title</source>
        <translation>Titel suchen</translation>
    </message>
    <message>
        <source>Titles found: %1</source>
        <translation>Gefundene Titel: %1</translation>
    </message>
    <message>
        <source>Titles: %1</source>
        <translation>Titel: %1</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Released</source>
        <translation>Erschienen</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Coded</source>
        <translation>Codiert</translation>
    </message>
    <message>
        <source>No coded titles yet</source>
        <translation>Noch keine codierten Titel</translation>
    </message>
    <message>
        <source>No title matches your search</source>
        <translation>Kein Titel passt zu Ihrer Suche</translation>
    </message>
    <message>
        <source>The device answers slowly. Check its network connection if this takes longer.</source>
        <translation>Das Gerät antwortet langsam. Prüfen Sie seine Netzwerkverbindung, falls es länger dauert.</translation>
    </message>
    <message>
        <source>Reading the list of titles...</source>
        <translation>Titelliste wird gelesen...</translation>
    </message>
    <message>
        <source>The device loads its titles from the internet. Check that it is online, then come back in a few minutes.</source>
        <translation>Das Gerät lädt seine Titel aus dem Internet. Prüfen Sie, ob es online ist, und kommen Sie in ein paar Minuten wieder.</translation>
    </message>
    <message>
        <source>Check the spelling, or search for a part of the title.</source>
        <translation>Prüfen Sie die Schreibweise oder suchen Sie nach einem Teil des Titels.</translation>
    </message>
</context>
<context>
    <name>PageSetup010WaitForDevice</name>
    <message>
        <source>Open the Wi-Fi settings of this computer.</source>
        <translation>Öffnen Sie die WLAN-Einstellungen dieses Computers.</translation>
    </message>
    <message>
        <source>Join the network whose name begins with &quot;%1&quot;.</source>
        <translation>Verbinden Sie sich mit dem Netzwerk, dessen Name mit „%1“ beginnt.</translation>
    </message>
    <message>
        <source>Enter the password &quot;%1&quot;.</source>
        <translation>Geben Sie das Passwort „%1“ ein.</translation>
    </message>
    <message>
        <source>Return to this application.</source>
        <translation>Kehren Sie zu dieser Anwendung zurück.</translation>
    </message>
    <message>
        <source>Switch on your Quivera device, then connect this computer to it:</source>
        <translation>Schalten Sie Ihr Quivera-Gerät ein und verbinden Sie diesen Computer damit:</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Network Name</source>
        <translation>Netzwerkname</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Searching for
Quivera device...</source>
        <translation>Quivera-Gerät
wird gesucht...</translation>
    </message>
</context>
<context>
    <name>PageWiFiList</name>
    <message>
        <source>Select the Wi-Fi network for your Quivera device.</source>
        <translation>Wählen Sie das WLAN für Ihr Quivera-Gerät.</translation>
    </message>
    <message>
        <source>Wi-Fi networks</source>
        <translation>WLAN-Netzwerke</translation>
    </message>
    <message>
        <source>No Wi-Fi network found yet. Make sure that your router is switched on and near the device.</source>
        <translation>Noch kein WLAN gefunden. Stellen Sie sicher, dass Ihr Router eingeschaltet ist und in der Nähe des Geräts steht.</translation>
    </message>
</context>
<context>
    <name>PageWiFiPassword</name>
    <message>
        <source>Wi-Fi Network</source>
        <translation>WLAN</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Leave the password empty if the network is open.</source>
        <translation>Lassen Sie das Passwort leer, wenn das Netzwerk offen ist.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>SeatInfo</name>
    <message>
        <source>System OK</source>
        <translation>System in Ordnung</translation>
    </message>
    <message>
        <source>Fault in System</source>
        <translation>Fehler im System</translation>
    </message>
    <message>
        <source>System in Transition</source>
        <translation>System wechselt den Zustand</translation>
    </message>
    <message>
        <source>No Power or Actuator Disconnected</source>
        <translation>Kein Strom oder Aktor nicht angeschlossen</translation>
    </message>
    <message>
        <source>No Communication with System</source>
        <translation>Keine Verbindung zum System</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>Status: %1</translation>
    </message>
</context>
<context>
    <name>Style</name>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>In transition</source>
        <translation>Im Übergang</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>WidgetAdaptiveAudioCard</name>
    <message>
        <source>Adaptive Audio Configuration</source>
        <translation>Adaptives Audio einstellen</translation>
    </message>
    <message>
        <source>Audio Source Level:</source>
        <translation>Pegel der Tonquelle:</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>Ignore Central Audio (Voice)</source>
        <translation>Mittenkanal (Sprache) ignorieren</translation>
    </message>
</context>
<context>
    <name>WidgetAdaptiveGamingCard</name>
    <message>
        <source>Adaptive Gaming Configuration</source>
        <translation>Adaptives Gaming einstellen</translation>
    </message>
    <message>
        <source>Selected Profile:</source>
        <translation>Gewähltes Profil:</translation>
    </message>
    <message>
        <source>No Profile selected</source>
        <translation>Kein Profil gewählt</translation>
    </message>
    <message>
        <source>Open Adaptive Gaming Configurator</source>
        <translation>Adaptive Gaming Configurator öffnen</translation>
    </message>
    <message>
        <source>Open Orvex Adaptive Gaming Configurator on your PC.</source>
        <translation>Öffnen Sie den Orvex Adaptive Gaming Configurator auf Ihrem PC.</translation>
    </message>
</context>
<context>
    <name>WidgetAudioSource</name>
    <message>
        <source>Audio Source:</source>
        <translation>Tonquelle:</translation>
    </message>
    <message>
        <source>Audio Source: None</source>
        <translation>Tonquelle: keine</translation>
    </message>
    <message>
        <source>Connect a sound source to the device, or a microphone or sound card to the PC.</source>
        <translation>Schließen Sie eine Tonquelle an das Gerät an oder ein Mikrofon oder eine Soundkarte an den PC.</translation>
    </message>
</context>
<context>
    <name>WidgetBusy</name>
    <message>
        <source>Please wait</source>
        <translation>Bitte warten</translation>
    </message>
</context>
<context>
    <name>WidgetCodedGamingCard</name>
    <message>
        <source>ORVEX Coded Gaming Configuration</source>
        <translation>ORVEX-codierte Spiele einstellen</translation>
    </message>
    <message>
        <source>Open Game Center</source>
        <translation>Game Center öffnen</translation>
    </message>
    <message>
        <source>Open Orvex Game Center on your PC.</source>
        <translation>Öffnen Sie das Orvex Game Center auf Ihrem PC.</translation>
    </message>
</context>
<context>
    <name>WidgetCodedVideoCard</name>
    <message>
        <source>ORVEX Coded Video Configuration</source>
        <translation>ORVEX-codiertes Video einstellen</translation>
    </message>
    <message>
        <source>Automatic Input Level Control</source>
        <translation>Automatische Eingangspegelung</translation>
    </message>
    <message>
        <source>Always on for a source that is an output.</source>
        <translation>Bei einer Quelle, die ein Ausgang ist, immer eingeschaltet.</translation>
    </message>
    <message>
        <source>Haptic Delay Calibration:</source>
        <translation>Haptikverzögerung:</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Moves the haptic effects later or earlier than the picture</source>
        <translation>Verschiebt die haptischen Effekte gegenüber dem Bild nach hinten oder vorn</translation>
    </message>
    <message>
        <source>Recognition Tolerance:</source>
        <translation>Erkennungstoleranz:</translation>
    </message>
    <message>
        <source>%1 sec</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>How long the haptic effects go on when the sound is not recognised</source>
        <translation>Wie lange die haptischen Effekte weiterlaufen, wenn der Ton nicht erkannt wird</translation>
    </message>
    <message>
        <source>List of ORVEX Coded Titles</source>
        <translation>Liste der ORVEX-codierten Titel</translation>
    </message>
</context>
<context>
    <name>WidgetCompanion</name>
    <message>
        <source>It is not installed on this PC.</source>
        <translation>Es ist auf diesem PC nicht installiert.</translation>
    </message>
    <message>
        <source>The program did not start. Try again, or install it anew.</source>
        <translation>Das Programm ist nicht gestartet. Versuchen Sie es noch einmal oder installieren Sie es neu.</translation>
    </message>
</context>
<context>
    <name>WidgetContentCard</name>
    <message>
        <source>Content</source>
        <translation>Inhalte</translation>
    </message>
    <message>
        <source>Last Updated: %1</source>
        <translation>Zuletzt aktualisiert: %1</translation>
    </message>
</context>
<context>
    <name>WidgetDetailRow</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>WidgetHapticCard</name>
    <message>
        <source>Haptic Output</source>
        <translation>Haptische Ausgabe</translation>
    </message>
    <message>
        <source>Haptic Seats</source>
        <translation>Haptische Sitze</translation>
    </message>
    <message>
        <source>No Seat Detected</source>
        <translation>Kein Sitz erkannt</translation>
    </message>
    <message>
        <source>Check that the seat has power and that its cable is plugged in.</source>
        <translation>Prüfen Sie, ob der Sitz Strom hat und sein Kabel eingesteckt ist.</translation>
    </message>
    <message>
        <source>Open Control Panel</source>
        <translation>Control Panel öffnen</translation>
    </message>
    <message>
        <source>Open Orvex Control Panel on your PC.</source>
        <translation>Öffnen Sie das Orvex Control Panel auf Ihrem PC.</translation>
    </message>
</context>
<context>
    <name>WidgetInputPass</name>
    <message>
        <source>Hide the password</source>
        <translation>Passwort verbergen</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Passwort anzeigen</translation>
    </message>
</context>
<context>
    <name>WidgetLabeledText</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation>Kopieren: %1</translation>
    </message>
</context>
<context>
    <name>WidgetMediaCard</name>
    <message>
        <source>Now Playing:</source>
        <translation>Es läuft:</translation>
    </message>
    <message>
        <source>Nothing is recognised. Play a coded title with sound on the chosen audio source.</source>
        <translation>Es wird nichts erkannt. Spielen Sie einen codierten Titel mit Ton über die gewählte Tonquelle ab.</translation>
    </message>
    <message>
        <source>%1 of %2 played</source>
        <translation>%1 von %2 abgespielt</translation>
    </message>
</context>
<context>
    <name>WidgetModeCard</name>
    <message>
        <source>Quivera Mode</source>
        <translation>Quivera-Modus</translation>
    </message>
    <message>
        <source>Please wait for mode change...</source>
        <translation>Moduswechsel, bitte warten...</translation>
    </message>
    <message>
        <source>The mode is now %1.</source>
        <translation>Der Modus ist jetzt %1.</translation>
    </message>
</context>
<context>
    <name>WidgetNetworkCard</name>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Network status</source>
        <translation>Netzwerkstatus</translation>
    </message>
    <message>
        <source>Shows the network status and its settings</source>
        <translation>Zeigt den Netzwerkstatus und die Netzwerkeinstellungen</translation>
    </message>
    <message>
        <source>Device Online</source>
        <translation>Gerät online</translation>
    </message>
    <message>
        <source>Device Offline</source>
        <translation>Gerät offline</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Wi-Fi Network</source>
        <translation>WLAN</translation>
    </message>
</context>
<context>
    <name>WidgetNetworkInterface</name>
    <message>
        <source>IP Address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>Netmask</source>
        <translation>Netzmaske</translation>
    </message>
    <message>
        <source>Broadcast Address</source>
        <translation>Broadcast-Adresse</translation>
    </message>
    <message>
        <source>Hardware Address</source>
        <translation>Hardwareadresse</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Not active</source>
        <translation>Nicht aktiv</translation>
    </message>
</context>
<context>
    <name>WidgetPageTitle</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>WidgetProductCard</name>
    <message>
        <source>This App</source>
        <translation>Diese App</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>App Version</source>
        <translation>App-Version</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Urheberrecht</translation>
    </message>
    <message>
        <source>© %1</source>
        <translation>© %1</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>Parts of others in this app, and their licences</source>
        <translation>Bestandteile anderer in dieser App und ihre Lizenzen</translation>
    </message>
</context>
<context>
    <name>WidgetRefusal</name>
    <message>
        <source>The device did not take over this change. Please try again.</source>
        <translation>Das Gerät hat diese Änderung nicht übernommen. Bitte versuchen Sie es noch einmal.</translation>
    </message>
</context>
<context>
    <name>WidgetSearchField</name>
    <message>
        <source>Clear the search</source>
        <translation>Suche löschen</translation>
    </message>
</context>
<context>
    <name>WidgetSeat</name>
    <message>
        <source>Seat %1</source>
        <translation>Sitz %1</translation>
    </message>
    <message>
        <source>Seat</source>
        <translation>Sitz</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>Bewegung</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>Vibration</source>
        <translation>Vibration</translation>
    </message>
    <message>
        <source>Keep motion and vibration together</source>
        <translation>Bewegung und Vibration gemeinsam regeln</translation>
    </message>
</context>
<context>
    <name>WidgetSeatHealth</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Shows the detailed status</source>
        <translation>Zeigt den Status im Detail</translation>
    </message>
</context>
<context>
    <name>WidgetSettingSlider</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>WidgetSoftwareCard</name>
    <message>
        <source>Software Health</source>
        <translation>Zustand der Software</translation>
    </message>
</context>
<context>
    <name>WidgetSortButton</name>
    <message>
        <source>Sorts by this column</source>
        <translation>Sortiert nach dieser Spalte</translation>
    </message>
    <message>
        <source>Sorted, descending</source>
        <translation>Absteigend sortiert</translation>
    </message>
    <message>
        <source>Sorted, ascending</source>
        <translation>Aufsteigend sortiert</translation>
    </message>
</context>
<context>
    <name>WindowMain</name>
    <message>
        <source>CHANGE DEVICE NAME</source>
        <translation>GERÄTENAMEN ÄNDERN</translation>
    </message>
    <message>
        <source>Enter new name</source>
        <translation>Neuen Namen eingeben</translation>
    </message>
</context>
<context>
    <name>WindowMainReset</name>
    <message>
        <source>NETWORK RESET</source>
        <translation>NETZWERK ZURÜCKSETZEN</translation>
    </message>
    <message>
        <source>This will remove all personalized network settings, including Wi-Fi networks. Device will need to be setup again from the home screen.</source>
        <translation>Alle eigenen Netzwerkeinstellungen einschließlich der WLAN-Netzwerke werden gelöscht. Das Gerät muss danach von der Startseite aus neu eingerichtet werden.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Resetting...</source>
        <translation>Wird zurückgesetzt...</translation>
    </message>
    <message>
        <source>Your Quivera device
network settings
are reset.</source>
        <translation>Die Netzwerkeinstellungen
Ihres Quivera-Geräts
sind zurückgesetzt.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>WindowMainWiFi</name>
    <message>
        <source>NETWORK SETUP</source>
        <translation>NETZWERK EINRICHTEN</translation>
    </message>
    <message>
        <source>Quivera device is
searching for Wi-Fi</source>
        <translation>Quivera-Gerät
sucht nach WLAN-Netzwerken</translation>
    </message>
    <message>
        <source>Waiting for your Quivera device to appear on selected network</source>
        <translation>Warten, bis Ihr Quivera-Gerät im gewählten Netzwerk erscheint</translation>
    </message>
    <message>
        <source>Please connect this device to the same network that you selected for your Quivera device</source>
        <translation>Bitte verbinden Sie diesen Computer mit demselben Netzwerk, das Sie für Ihr Quivera-Gerät gewählt haben</translation>
    </message>
    <message>
        <source>Quivera device is already connected to selected network.
Tap the &apos;Back&apos; button above and select another network.</source>
        <translation>Das Quivera-Gerät ist bereits mit dem gewählten Netzwerk verbunden.
Tippen Sie oben auf „Zurück“ und wählen Sie ein anderes Netzwerk.</translation>
    </message>
    <message>
        <source>Quivera device cannot connect to selected network.
Tap the &apos;Back&apos; button above and try selecting the network again.</source>
        <translation>Das Quivera-Gerät kann sich nicht mit dem gewählten Netzwerk verbinden.
Tippen Sie oben auf „Zurück“ und wählen Sie das Netzwerk noch einmal.</translation>
    </message>
    <message>
        <source>Your Quivera device
successfully connected
to selected network.</source>
        <translation>Ihr Quivera-Gerät
ist nun mit dem gewählten
Netzwerk verbunden.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>WindowSetup</name>
    <message>
        <source>Add Quivera Device</source>
        <translation>Quivera-Gerät hinzufügen</translation>
    </message>
    <message>
        <source>NETWORK SETUP</source>
        <translation>NETZWERK EINRICHTEN</translation>
    </message>
    <message>
        <source>Quivera device is
searching for Wi-Fi...</source>
        <translation>Quivera-Gerät
sucht nach WLAN-Netzwerken...</translation>
    </message>
    <message>
        <source>Waiting for
Quivera device
to connect to
your network...</source>
        <translation>Warten,
bis das Quivera-Gerät
mit Ihrem Netzwerk
verbunden ist...</translation>
    </message>
    <message>
        <source>Quivera device cannot connect to your network.
Tap the &apos;Back&apos; button above and try selecting the network again.</source>
        <translation>Das Quivera-Gerät kann sich nicht mit Ihrem Netzwerk verbinden.
Tippen Sie oben auf „Zurück“ und wählen Sie das Netzwerk noch einmal.</translation>
    </message>
    <message>
        <source>Your Quivera device
successfully connected
to your network.</source>
        <translation>Ihr Quivera-Gerät
ist nun mit Ihrem
Netzwerk verbunden.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Please connect this computer to the same network as well.</source>
        <translation>Verbinden Sie auch diesen Computer mit demselben Netzwerk.</translation>
    </message>
</context>
<context>
    <name>WindowSplashForm.ui</name>
    <message>
        <source>Orvex Quivera</source>
        <translation>Orvex Quivera</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Orvex Quivera</source>
        <translation>Orvex Quivera</translation>
    </message>
</context>
</TS>
