<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ButtonDevice</name>
    <message>
        <source>%1 (Local)</source>
        <translation>%1 (local)</translation>
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
        <translation>Conectado</translation>
    </message>
</context>
<context>
    <name>ContentUpdateState</name>
    <message>
        <source>Unknown state</source>
        <translation>Estado desconocido</translation>
    </message>
    <message>
        <source>Checking for new content</source>
        <translation>Buscando contenido nuevo</translation>
    </message>
    <message>
        <source>Error checking for new content</source>
        <translation>Error al buscar contenido nuevo</translation>
    </message>
    <message>
        <source>Downloading content</source>
        <translation>Descargando contenido</translation>
    </message>
    <message>
        <source>Error downloading content</source>
        <translation>Error al descargar el contenido</translation>
    </message>
    <message>
        <source>Server content not ready</source>
        <translation>El contenido del servidor aún no está listo</translation>
    </message>
    <message>
        <source>Content install pending</source>
        <translation>Instalación de contenido pendiente</translation>
    </message>
    <message>
        <source>Installing content</source>
        <translation>Instalando contenido</translation>
    </message>
    <message>
        <source>Error installing content</source>
        <translation>Error al instalar el contenido</translation>
    </message>
    <message>
        <source>Code: %1</source>
        <translation>Código: %1</translation>
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
        <translation>Se ha producido un error. La aplicación debe cerrarse.</translation>
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
        <translation>Vídeo codificado Orvex</translation>
    </message>
    <message>
        <source>Premium haptic experience for Orvex coded movies and TV shows, using audio synchronization.</source>
        <translation>Experiencia háptica de máxima calidad para películas y series codificadas por Orvex, sincronizada con el sonido.</translation>
    </message>
    <message>
        <source>Orvex Coded Gaming</source>
        <translation>Juegos codificados Orvex</translation>
    </message>
    <message>
        <source>Premium haptic experience for Orvex coded apps, simulators and games.</source>
        <translation>Experiencia háptica de máxima calidad para aplicaciones, simuladores y juegos codificados por Orvex.</translation>
    </message>
    <message>
        <source>Adaptive Audio</source>
        <translation>Audio adaptativo</translation>
    </message>
    <message>
        <source>Automated haptic experience for any movie, music and TV show, using audio processing.</source>
        <translation>Experiencia háptica creada automáticamente a partir del sonido, para cualquier película, música o serie.</translation>
    </message>
    <message>
        <source>Adaptive Gaming</source>
        <translation>Juego adaptativo</translation>
    </message>
    <message>
        <source>Haptic experience using real-time events from game controller or keyboard.</source>
        <translation>Experiencia háptica que sigue en tiempo real el mando o el teclado.</translation>
    </message>
    <message>
        <source>Unknown Mode - Update Your App</source>
        <translation>Modo desconocido: actualice la aplicación</translation>
    </message>
    <message>
        <source>Update your app to see the newest Quivera Modes.</source>
        <translation>Actualice la aplicación para ver los modos Quivera más recientes.</translation>
    </message>
    <message>
        <source>Error with Quivera agent (%1) - try restarting the Quivera app</source>
        <translation>Error del agente Quivera (%1): pruebe a reiniciar la aplicación Quivera</translation>
    </message>
    <message>
        <source>Oops, something went wrong (%1) - try restarting the Quivera app or device</source>
        <translation>Algo ha salido mal (%1): pruebe a reiniciar la aplicación Quivera o el dispositivo</translation>
    </message>
    <message>
        <source>No seat detected (%1) - connect your device or check your connections</source>
        <translation>No se detecta ningún asiento (%1): conecte el dispositivo o revise las conexiones</translation>
    </message>
    <message>
        <source>Error with Adaptive Gaming (%1) - try restarting your PC or reinstalling the software</source>
        <translation>Error del juego adaptativo (%1): pruebe a reiniciar el PC o a reinstalar el software</translation>
    </message>
    <message>
        <source>Error with Adaptive Gaming setup (%1) - try reinstalling the software</source>
        <translation>Error al configurar el juego adaptativo (%1): pruebe a reinstalar el software</translation>
    </message>
    <message>
        <source>Oops, something went wrong (%1) - try restarting your PC or reinstalling the software</source>
        <translation>Algo ha salido mal (%1): pruebe a reiniciar el PC o a reinstalar el software</translation>
    </message>
    <message>
        <source>Quivera Mode selection failed (%1) - try restarting the Quivera app or device</source>
        <translation>No se ha podido elegir el modo Quivera (%1): pruebe a reiniciar la aplicación Quivera o el dispositivo</translation>
    </message>
    <message>
        <source>Error with haptic device (%1) - try replugging your cables</source>
        <translation>Error del dispositivo háptico (%1): pruebe a volver a conectar los cables</translation>
    </message>
    <message>
        <source>N/A</source>
        <comment>update time</comment>
        <translation>desconocida</translation>
    </message>
    <message>
        <source>Please wait for mode change...</source>
        <translation>Cambiando de modo, espere...</translation>
    </message>
    <message>
        <source>It is starting. Please wait a moment.</source>
        <translation>El programa se está iniciando. Espere un momento.</translation>
    </message>
    <message>
        <source>Restart your PC. If this does not help, reinstall the Quivera software.</source>
        <translation>Reinicie el PC. Si el problema continúa, reinstale el software Quivera.</translation>
    </message>
    <message>
        <source>It is not running. Restart the Quivera app or your PC.</source>
        <translation>El programa no está en marcha. Reinicie la aplicación Quivera o el PC.</translation>
    </message>
    <message>
        <source>Update your app to learn what this state means.</source>
        <translation>Actualice la aplicación para saber qué significa este estado.</translation>
    </message>
</context>
<context>
    <name>MediaStatus</name>
    <message>
        <source>Configuring Audio Capture</source>
        <translation>Configurando la captura de audio</translation>
    </message>
    <message>
        <source>Audio Capture Configured</source>
        <translation>Captura de audio configurada</translation>
    </message>
    <message>
        <source>Starting Audio Capture</source>
        <translation>Iniciando la captura de audio</translation>
    </message>
    <message>
        <source>Audio Capture Started</source>
        <translation>Captura de audio iniciada</translation>
    </message>
    <message>
        <source>Stopping Audio Capture</source>
        <translation>Deteniendo la captura de audio</translation>
    </message>
    <message>
        <source>Audio Capture Stopped</source>
        <translation>Captura de audio detenida</translation>
    </message>
    <message>
        <source>Capturing Audio</source>
        <translation>Capturando audio</translation>
    </message>
    <message>
        <source>Silence Detected</source>
        <translation>Silencio detectado</translation>
    </message>
    <message>
        <source>Audio Source Detected</source>
        <translation>Fuente de audio detectada</translation>
    </message>
    <message>
        <source>Content Identification Lost</source>
        <translation>Ya no se reconoce el contenido</translation>
    </message>
    <message>
        <source>Listening and Analyzing Audio</source>
        <translation>Escuchando y analizando el audio</translation>
    </message>
    <message>
        <source>Audio Feed Lost</source>
        <translation>Señal de audio perdida</translation>
    </message>
    <message>
        <source>Audio Capture Error</source>
        <translation>Error en la captura de audio</translation>
    </message>
    <message>
        <source>Unknown Media State</source>
        <translation>Estado del medio desconocido</translation>
    </message>
    <message>
        <source>Motion Code Found</source>
        <translation>Código de movimiento encontrado</translation>
    </message>
    <message>
        <source>Looking for Motion Code</source>
        <translation>Buscando el código de movimiento</translation>
    </message>
    <message>
        <source>Motion Code Available</source>
        <translation>Código de movimiento disponible</translation>
    </message>
    <message>
        <source>Motion Code not Available</source>
        <translation>Código de movimiento no disponible</translation>
    </message>
    <message>
        <source>Unknown Motion Code</source>
        <translation>Código de movimiento desconocido</translation>
    </message>
</context>
<context>
    <name>PageGenericInput</name>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
</context>
<context>
    <name>PageMain010DeviceList</name>
    <message>
        <source>ORVEX SYSTEMS</source>
        <translation>SISTEMAS ORVEX</translation>
    </message>
    <message>
        <source>Quivera devices</source>
        <translation>Dispositivos Quivera</translation>
    </message>
    <message>
        <source>Network Setup Required</source>
        <translation>Hay que configurar la red</translation>
    </message>
    <message>
        <source>System Update Required</source>
        <translation>Hay que actualizar el sistema</translation>
    </message>
    <message>
        <source>No Quivera device found.
Tap the &quot;Add Quivera Device&quot;
button below.</source>
        <translation>No se ha encontrado ningún
dispositivo Quivera. Pulse abajo
«Añadir dispositivo Quivera».</translation>
    </message>
    <message>
        <source>Add Quivera Device from Network</source>
        <translation>Añadir un dispositivo Quivera de la red</translation>
    </message>
    <message>
        <source>Connect a Orvex device to your Wi-Fi</source>
        <translation>Conectar un dispositivo Orvex a su wifi</translation>
    </message>
</context>
<context>
    <name>PageMain040DeviceInfo</name>
    <message>
        <source>About this device</source>
        <translation>Acerca de este dispositivo</translation>
    </message>
    <message>
        <source>System Update Required</source>
        <translation>Hay que actualizar el sistema</translation>
    </message>
    <message>
        <source>This device does not answer</source>
        <translation>Este dispositivo no responde</translation>
    </message>
    <message>
        <source>%1 requires a more recent software version for compatibility. The update should be done automatically but if it doesn&apos;t, please contact support.</source>
        <translation>%1 necesita una versión más reciente del software. La actualización debería hacerse automáticamente; si no es así, póngase en contacto con el servicio técnico.</translation>
    </message>
    <message>
        <source>Check that it is switched on and connected to your network. The page fills again as soon as the device answers.</source>
        <translation>Compruebe que está encendido y conectado a su red. La página volverá a llenarse en cuanto el dispositivo responda.</translation>
    </message>
    <message>
        <source>The device answers slowly. Check its network connection if this takes longer.</source>
        <translation>El dispositivo responde con lentitud. Si esto se prolonga, revise su conexión de red.</translation>
    </message>
    <message>
        <source>Reading the settings of the device...</source>
        <translation>Leyendo los ajustes del dispositivo...</translation>
    </message>
</context>
<context>
    <name>PageMain050NetworkStatus</name>
    <message>
        <source>NETWORK STATUS</source>
        <translation>ESTADO DE LA RED</translation>
    </message>
    <message>
        <source>The network status is not known yet. Waiting for the device to report it...</source>
        <translation>Aún no se conoce el estado de la red. Esperando a que el dispositivo lo comunique...</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>Connected to the network</source>
        <translation>Conectado a la red</translation>
    </message>
    <message>
        <source>Not connected to a network</source>
        <translation>Sin conexión a una red</translation>
    </message>
    <message>
        <source>The access point of the device is on: it waits to be set up</source>
        <translation>El punto de acceso del dispositivo está activo: espera a ser configurado</translation>
    </message>
    <message>
        <source>Wi-Fi Network</source>
        <translation>Red wifi</translation>
    </message>
    <message>
        <source>Set Up Wi-Fi</source>
        <translation>Configurar wifi</translation>
    </message>
    <message>
        <source>Reset Network Settings</source>
        <translation>Restablecer la red</translation>
    </message>
</context>
<context>
    <name>PageMain070DeviceAbout</name>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>Producto</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Fabricante</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>Identificador del dispositivo</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>Device Software Version</source>
        <translation>Versión del software del dispositivo</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Network Address</source>
        <translation>Dirección de red</translation>
    </message>
    <message>
        <source>%1 (Local)</source>
        <translation>%1 (local)</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>ABOUT THIS DEVICE</source>
        <translation>ACERCA DE ESTE DISPOSITIVO</translation>
    </message>
    <message>
        <source>Change device name</source>
        <translation>Cambiar el nombre del dispositivo</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>Cifrada</translation>
    </message>
    <message>
        <source>Not encrypted</source>
        <translation>Sin cifrar</translation>
    </message>
</context>
<context>
    <name>PageMain076DetailedStatus</name>
    <message>
        <source>DETAILED STATUS</source>
        <translation>ESTADO DETALLADO</translation>
    </message>
    <message>
        <source>Full Status</source>
        <translation>Estado completo</translation>
    </message>
    <message>
        <source>Faults Only</source>
        <translation>Solo fallos</translation>
    </message>
    <message>
        <source>Faults With Siblings</source>
        <translation>Fallos y elementos contiguos</translation>
    </message>
    <message>
        <source>Topology Outline</source>
        <translation>Resumen de la topología</translation>
    </message>
    <message>
        <source>Topology Details</source>
        <translation>Topología detallada</translation>
    </message>
    <message>
        <source>What is shown</source>
        <translation>Elementos mostrados</translation>
    </message>
    <message>
        <source>The device reports nothing here. Choose another view above.</source>
        <translation>El dispositivo no comunica nada aquí. Elija otra vista arriba.</translation>
    </message>
    <message>
        <source>The device answers slowly. Check its network connection if this takes longer.</source>
        <translation>El dispositivo responde con lentitud. Si esto se prolonga, revise su conexión de red.</translation>
    </message>
    <message>
        <source>Reading the status of the modules...</source>
        <translation>Leyendo el estado de los módulos...</translation>
    </message>
    <message>
        <source>No module reports a fault.</source>
        <translation>Ningún módulo informa de fallos.</translation>
    </message>
</context>
<context>
    <name>PageMain080MediaList</name>
    <message>
        <source>CODED TITLES</source>
        <translation>TÍTULOS CODIFICADOS</translation>
    </message>
    <message>
        <source>Search for a title</source>
        <translation>Buscar un título</translation>
    </message>
    <message>
        <source>Titles found: %1</source>
        <translation>Títulos encontrados: %1</translation>
    </message>
    <message>
        <source>Titles: %1</source>
        <translation>Títulos: %1</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Released</source>
        <translation>Estreno</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Coded</source>
        <translation>Codificado</translation>
    </message>
    <message>
        <source>No coded titles yet</source>
        <translation>Aún no hay títulos codificados</translation>
    </message>
    <message>
        <source>No title matches your search</source>
        <translation>Ningún título coincide con su búsqueda</translation>
    </message>
    <message>
        <source>The device answers slowly. Check its network connection if this takes longer.</source>
        <translation>El dispositivo responde con lentitud. Si esto se prolonga, revise su conexión de red.</translation>
    </message>
    <message>
        <source>Reading the list of titles...</source>
        <translation>Leyendo la lista de títulos...</translation>
    </message>
    <message>
        <source>The device loads its titles from the internet. Check that it is online, then come back in a few minutes.</source>
        <translation>El dispositivo descarga sus títulos de Internet. Compruebe que está en línea y vuelva dentro de unos minutos.</translation>
    </message>
    <message>
        <source>Check the spelling, or search for a part of the title.</source>
        <translation>Revise la ortografía o busque una parte del título.</translation>
    </message>
</context>
<context>
    <name>PageSetup010WaitForDevice</name>
    <message>
        <source>Open the Wi-Fi settings of this computer.</source>
        <translation>Abra los ajustes de wifi de este ordenador.</translation>
    </message>
    <message>
        <source>Join the network whose name begins with &quot;%1&quot;.</source>
        <translation>Conéctese a la red cuyo nombre empieza por «%1».</translation>
    </message>
    <message>
        <source>Enter the password &quot;%1&quot;.</source>
        <translation>Introduzca la contraseña «%1».</translation>
    </message>
    <message>
        <source>Return to this application.</source>
        <translation>Vuelva a esta aplicación.</translation>
    </message>
    <message>
        <source>Switch on your Quivera device, then connect this computer to it:</source>
        <translation>Encienda su dispositivo Quivera y conecte este ordenador a él:</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Network Name</source>
        <translation>Nombre de la red</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Searching for
Quivera device...</source>
        <translation>Buscando el
dispositivo Quivera...</translation>
    </message>
</context>
<context>
    <name>PageWiFiList</name>
    <message>
        <source>Select the Wi-Fi network for your Quivera device.</source>
        <translation>Elija la red wifi para su dispositivo Quivera.</translation>
    </message>
    <message>
        <source>Wi-Fi networks</source>
        <translation>Redes wifi</translation>
    </message>
    <message>
        <source>No Wi-Fi network found yet. Make sure that your router is switched on and near the device.</source>
        <translation>Aún no se ha encontrado ninguna red wifi. Asegúrese de que su router está encendido y cerca del dispositivo.</translation>
    </message>
</context>
<context>
    <name>PageWiFiPassword</name>
    <message>
        <source>Wi-Fi Network</source>
        <translation>Red wifi</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Leave the password empty if the network is open.</source>
        <translation>Deje la contraseña vacía si la red es abierta.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
</context>
<context>
    <name>SeatInfo</name>
    <message>
        <source>System OK</source>
        <translation>Sistema correcto</translation>
    </message>
    <message>
        <source>Fault in System</source>
        <translation>Fallo en el sistema</translation>
    </message>
    <message>
        <source>System in Transition</source>
        <translation>Sistema en transición</translation>
    </message>
    <message>
        <source>No Power or Actuator Disconnected</source>
        <translation>Sin corriente o actuador desconectado</translation>
    </message>
    <message>
        <source>No Communication with System</source>
        <translation>Sin comunicación con el sistema</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>Estado: %1</translation>
    </message>
</context>
<context>
    <name>Style</name>
    <message>
        <source>Inactive</source>
        <translation>Inactivo</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Fallo</translation>
    </message>
    <message>
        <source>In transition</source>
        <translation>En transición</translation>
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
        <translation>Ajustes del audio adaptativo</translation>
    </message>
    <message>
        <source>Audio Source Level:</source>
        <translation>Nivel de la fuente de audio:</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>Ignore Central Audio (Voice)</source>
        <translation>Ignorar el canal central (voz)</translation>
    </message>
</context>
<context>
    <name>WidgetAdaptiveGamingCard</name>
    <message>
        <source>Adaptive Gaming Configuration</source>
        <translation>Ajustes del juego adaptativo</translation>
    </message>
    <message>
        <source>Selected Profile:</source>
        <translation>Perfil elegido:</translation>
    </message>
    <message>
        <source>No Profile selected</source>
        <translation>Ningún perfil elegido</translation>
    </message>
    <message>
        <source>Open Adaptive Gaming Configurator</source>
        <translation>Abrir Adaptive Gaming Configurator</translation>
    </message>
    <message>
        <source>Open Orvex Adaptive Gaming Configurator on your PC.</source>
        <translation>Abra Orvex Adaptive Gaming Configurator en su PC.</translation>
    </message>
</context>
<context>
    <name>WidgetAudioSource</name>
    <message>
        <source>Audio Source:</source>
        <translation>Fuente de audio:</translation>
    </message>
    <message>
        <source>Audio Source: None</source>
        <translation>Fuente de audio: ninguna</translation>
    </message>
    <message>
        <source>Connect a sound source to the device, or a microphone or sound card to the PC.</source>
        <translation>Conecte una fuente de sonido al dispositivo, o un micrófono o una tarjeta de sonido al PC.</translation>
    </message>
</context>
<context>
    <name>WidgetBusy</name>
    <message>
        <source>Please wait</source>
        <translation>Espere</translation>
    </message>
</context>
<context>
    <name>WidgetCodedGamingCard</name>
    <message>
        <source>ORVEX Coded Gaming Configuration</source>
        <translation>Ajustes de los juegos codificados ORVEX</translation>
    </message>
    <message>
        <source>Open Game Center</source>
        <translation>Abrir Game Center</translation>
    </message>
    <message>
        <source>Open Orvex Game Center on your PC.</source>
        <translation>Abra Orvex Game Center en su PC.</translation>
    </message>
</context>
<context>
    <name>WidgetCodedVideoCard</name>
    <message>
        <source>ORVEX Coded Video Configuration</source>
        <translation>Ajustes del vídeo codificado ORVEX</translation>
    </message>
    <message>
        <source>Automatic Input Level Control</source>
        <translation>Nivel de entrada automático</translation>
    </message>
    <message>
        <source>Always on for a source that is an output.</source>
        <translation>Siempre activado para una fuente que es una salida.</translation>
    </message>
    <message>
        <source>Haptic Delay Calibration:</source>
        <translation>Ajuste del retardo háptico:</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Moves the haptic effects later or earlier than the picture</source>
        <translation>Retrasa o adelanta los efectos hápticos respecto a la imagen</translation>
    </message>
    <message>
        <source>Recognition Tolerance:</source>
        <translation>Tolerancia de reconocimiento:</translation>
    </message>
    <message>
        <source>%1 sec</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>How long the haptic effects go on when the sound is not recognised</source>
        <translation>Tiempo que siguen los efectos hápticos cuando no se reconoce el sonido</translation>
    </message>
    <message>
        <source>List of ORVEX Coded Titles</source>
        <translation>Lista de títulos codificados ORVEX</translation>
    </message>
</context>
<context>
    <name>WidgetCompanion</name>
    <message>
        <source>It is not installed on this PC.</source>
        <translation>No está instalado en este PC.</translation>
    </message>
    <message>
        <source>The program did not start. Try again, or install it anew.</source>
        <translation>El programa no se ha iniciado. Inténtelo de nuevo o vuelva a instalarlo.</translation>
    </message>
</context>
<context>
    <name>WidgetContentCard</name>
    <message>
        <source>Content</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>Last Updated: %1</source>
        <translation>Última actualización: %1</translation>
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
        <translation>Salida háptica</translation>
    </message>
    <message>
        <source>Haptic Seats</source>
        <translation>Asientos hápticos</translation>
    </message>
    <message>
        <source>No Seat Detected</source>
        <translation>No se detecta ningún asiento</translation>
    </message>
    <message>
        <source>Check that the seat has power and that its cable is plugged in.</source>
        <translation>Compruebe que el asiento tiene corriente y que su cable está enchufado.</translation>
    </message>
    <message>
        <source>Open Control Panel</source>
        <translation>Abrir Control Panel</translation>
    </message>
    <message>
        <source>Open Orvex Control Panel on your PC.</source>
        <translation>Abra Orvex Control Panel en su PC.</translation>
    </message>
</context>
<context>
    <name>WidgetInputPass</name>
    <message>
        <source>Hide the password</source>
        <translation>Ocultar la contraseña</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Mostrar la contraseña</translation>
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
        <translation>Copiar: %1</translation>
    </message>
</context>
<context>
    <name>WidgetMediaCard</name>
    <message>
        <source>Now Playing:</source>
        <translation>Reproduciendo:</translation>
    </message>
    <message>
        <source>Nothing is recognised. Play a coded title with sound on the chosen audio source.</source>
        <translation>No se reconoce nada. Reproduzca un título codificado, con sonido, en la fuente de audio elegida.</translation>
    </message>
    <message>
        <source>%1 of %2 played</source>
        <translation>%1 de %2 reproducidos</translation>
    </message>
</context>
<context>
    <name>WidgetModeCard</name>
    <message>
        <source>Quivera Mode</source>
        <translation>Modo Quivera</translation>
    </message>
    <message>
        <source>Please wait for mode change...</source>
        <translation>Cambiando de modo, espere...</translation>
    </message>
    <message>
        <source>The mode is now %1.</source>
        <translation>El modo es ahora %1.</translation>
    </message>
</context>
<context>
    <name>WidgetNetworkCard</name>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Network status</source>
        <translation>Estado de la red</translation>
    </message>
    <message>
        <source>Shows the network status and its settings</source>
        <translation>Muestra el estado y los ajustes de la red</translation>
    </message>
    <message>
        <source>Device Online</source>
        <translation>Dispositivo en línea</translation>
    </message>
    <message>
        <source>Device Offline</source>
        <translation>Dispositivo sin conexión</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Wi-Fi Network</source>
        <translation>Red wifi</translation>
    </message>
</context>
<context>
    <name>WidgetNetworkInterface</name>
    <message>
        <source>IP Address</source>
        <translation>Dirección IP</translation>
    </message>
    <message>
        <source>Netmask</source>
        <translation>Máscara de red</translation>
    </message>
    <message>
        <source>Broadcast Address</source>
        <translation>Dirección de difusión</translation>
    </message>
    <message>
        <source>Hardware Address</source>
        <translation>Dirección de hardware</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Activa</translation>
    </message>
    <message>
        <source>Not active</source>
        <translation>Inactiva</translation>
    </message>
</context>
<context>
    <name>WidgetPageTitle</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>WidgetProductCard</name>
    <message>
        <source>This App</source>
        <translation>Esta aplicación</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>App Version</source>
        <translation>Versión de la aplicación</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Derechos de autor</translation>
    </message>
    <message>
        <source>© %1</source>
        <translation>© %1</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licencia</translation>
    </message>
    <message>
        <source>Parts of others in this app, and their licences</source>
        <translation>Componentes de terceros en esta aplicación y sus licencias</translation>
    </message>
</context>
<context>
    <name>WidgetRefusal</name>
    <message>
        <source>The device did not take over this change. Please try again.</source>
        <translation>El dispositivo no ha aplicado este cambio. Inténtelo de nuevo.</translation>
    </message>
</context>
<context>
    <name>WidgetSearchField</name>
    <message>
        <source>Clear the search</source>
        <translation>Borrar la búsqueda</translation>
    </message>
</context>
<context>
    <name>WidgetSeat</name>
    <message>
        <source>Seat %1</source>
        <translation>Asiento %1</translation>
    </message>
    <message>
        <source>Seat</source>
        <translation>Asiento</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>Movimiento</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>Vibration</source>
        <translation>Vibración</translation>
    </message>
    <message>
        <source>Keep motion and vibration together</source>
        <translation>Vincular movimiento y vibración</translation>
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
        <translation>Muestra el estado detallado</translation>
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
        <translation>Estado del software</translation>
    </message>
</context>
<context>
    <name>WidgetSortButton</name>
    <message>
        <source>Sorts by this column</source>
        <translation>Ordena por esta columna</translation>
    </message>
    <message>
        <source>Sorted, descending</source>
        <translation>Orden descendente</translation>
    </message>
    <message>
        <source>Sorted, ascending</source>
        <translation>Orden ascendente</translation>
    </message>
</context>
<context>
    <name>WindowMain</name>
    <message>
        <source>CHANGE DEVICE NAME</source>
        <translation>CAMBIAR EL NOMBRE DEL DISPOSITIVO</translation>
    </message>
    <message>
        <source>Enter new name</source>
        <translation>Escriba el nombre nuevo</translation>
    </message>
</context>
<context>
    <name>WindowMainReset</name>
    <message>
        <source>NETWORK RESET</source>
        <translation>RESTABLECER LA RED</translation>
    </message>
    <message>
        <source>This will remove all personalized network settings, including Wi-Fi networks. Device will need to be setup again from the home screen.</source>
        <translation>Se borrarán todos los ajustes de red personalizados, incluidas las redes wifi. Habrá que volver a configurar el dispositivo desde la pantalla de inicio.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Resetting...</source>
        <translation>Restableciendo...</translation>
    </message>
    <message>
        <source>Your Quivera device
network settings
are reset.</source>
        <translation>Los ajustes de red
de su dispositivo Quivera
se han restablecido.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
</context>
<context>
    <name>WindowMainWiFi</name>
    <message>
        <source>NETWORK SETUP</source>
        <translation>CONFIGURACIÓN DE LA RED</translation>
    </message>
    <message>
        <source>Quivera device is
searching for Wi-Fi</source>
        <translation>El dispositivo Quivera
está buscando redes wifi</translation>
    </message>
    <message>
        <source>Waiting for your Quivera device to appear on selected network</source>
        <translation>Esperando a que su dispositivo Quivera aparezca en la red elegida</translation>
    </message>
    <message>
        <source>Please connect this device to the same network that you selected for your Quivera device</source>
        <translation>Conecte este ordenador a la misma red que ha elegido para su dispositivo Quivera</translation>
    </message>
    <message>
        <source>Quivera device is already connected to selected network.
Tap the &apos;Back&apos; button above and select another network.</source>
        <translation>El dispositivo Quivera ya está conectado a la red elegida.
Pulse arriba «Atrás» y elija otra red.</translation>
    </message>
    <message>
        <source>Quivera device cannot connect to selected network.
Tap the &apos;Back&apos; button above and try selecting the network again.</source>
        <translation>El dispositivo Quivera no puede conectarse a la red elegida.
Pulse arriba «Atrás» y elija la red de nuevo.</translation>
    </message>
    <message>
        <source>Your Quivera device
successfully connected
to selected network.</source>
        <translation>Su dispositivo Quivera
se ha conectado
a la red elegida.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
</context>
<context>
    <name>WindowSetup</name>
    <message>
        <source>Add Quivera Device</source>
        <translation>Añadir dispositivo Quivera</translation>
    </message>
    <message>
        <source>NETWORK SETUP</source>
        <translation>CONFIGURACIÓN DE LA RED</translation>
    </message>
    <message>
        <source>Quivera device is
searching for Wi-Fi...</source>
        <translation>El dispositivo Quivera
está buscando redes wifi...</translation>
    </message>
    <message>
        <source>Waiting for
Quivera device
to connect to
your network...</source>
        <translation>Esperando
a que el dispositivo
Quivera se conecte
a su red...</translation>
    </message>
    <message>
        <source>Quivera device cannot connect to your network.
Tap the &apos;Back&apos; button above and try selecting the network again.</source>
        <translation>El dispositivo Quivera no puede conectarse a su red.
Pulse arriba «Atrás» y elija la red de nuevo.</translation>
    </message>
    <message>
        <source>Your Quivera device
successfully connected
to your network.</source>
        <translation>Su dispositivo Quivera
se ha conectado
a su red.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Please connect this computer to the same network as well.</source>
        <translation>Conecte también este ordenador a la misma red.</translation>
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
