<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
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
        <translation>Connecté</translation>
    </message>
</context>
<context>
    <name>ContentUpdateState</name>
    <message>
        <source>Unknown state</source>
        <translation>État inconnu</translation>
    </message>
    <message>
        <source>Checking for new content</source>
        <translation>Recherche de nouveaux contenus</translation>
    </message>
    <message>
        <source>Error checking for new content</source>
        <translation>Échec de la recherche de nouveaux contenus</translation>
    </message>
    <message>
        <source>Downloading content</source>
        <translation>Téléchargement des contenus</translation>
    </message>
    <message>
        <source>Error downloading content</source>
        <translation>Échec du téléchargement des contenus</translation>
    </message>
    <message>
        <source>Server content not ready</source>
        <translation>Contenus pas encore prêts sur le serveur</translation>
    </message>
    <message>
        <source>Content install pending</source>
        <translation>Installation des contenus en attente</translation>
    </message>
    <message>
        <source>Installing content</source>
        <translation>Installation des contenus</translation>
    </message>
    <message>
        <source>Error installing content</source>
        <translation>Échec de l’installation des contenus</translation>
    </message>
    <message>
        <source>Code: %1</source>
        <translation>Code&#xa0;: %1</translation>
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
        <translation>Une erreur est survenue. L’application doit se fermer.</translation>
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
        <translation>Vidéo codée Orvex</translation>
    </message>
    <message>
        <source>Premium haptic experience for Orvex coded movies and TV shows, using audio synchronization.</source>
        <translation>Une expérience haptique haut de gamme pour les films et séries codés Orvex, synchronisée sur le son.</translation>
    </message>
    <message>
        <source>Orvex Coded Gaming</source>
        <translation>Jeux codés Orvex</translation>
    </message>
    <message>
        <source>Premium haptic experience for Orvex coded apps, simulators and games.</source>
        <translation>Une expérience haptique haut de gamme pour les applications, simulateurs et jeux codés Orvex.</translation>
    </message>
    <message>
        <source>Adaptive Audio</source>
        <translation>Audio adaptatif</translation>
    </message>
    <message>
        <source>Automated haptic experience for any movie, music and TV show, using audio processing.</source>
        <translation>Une expérience haptique créée automatiquement à partir du son, pour tous les films, musiques et séries.</translation>
    </message>
    <message>
        <source>Adaptive Gaming</source>
        <translation>Jeu adaptatif</translation>
    </message>
    <message>
        <source>Haptic experience using real-time events from game controller or keyboard.</source>
        <translation>Une expérience haptique qui suit en temps réel la manette de jeu ou le clavier.</translation>
    </message>
    <message>
        <source>Unknown Mode - Update Your App</source>
        <translation>Mode inconnu – mettez l’application à jour</translation>
    </message>
    <message>
        <source>Update your app to see the newest Quivera Modes.</source>
        <translation>Mettez l’application à jour pour voir les derniers modes Quivera.</translation>
    </message>
    <message>
        <source>Error with Quivera agent (%1) - try restarting the Quivera app</source>
        <translation>Erreur de l’agent Quivera (%1) – essayez de redémarrer l’application Quivera</translation>
    </message>
    <message>
        <source>Oops, something went wrong (%1) - try restarting the Quivera app or device</source>
        <translation>Un problème est survenu (%1) – essayez de redémarrer l’application Quivera ou l’appareil</translation>
    </message>
    <message>
        <source>No seat detected (%1) - connect your device or check your connections</source>
        <translation>Aucun siège détecté (%1) – branchez votre appareil ou vérifiez les connexions</translation>
    </message>
    <message>
        <source>Error with Adaptive Gaming (%1) - try restarting your PC or reinstalling the software</source>
        <translation>Erreur du jeu adaptatif (%1) – essayez de redémarrer le PC ou de réinstaller le logiciel</translation>
    </message>
    <message>
        <source>Error with Adaptive Gaming setup (%1) - try reinstalling the software</source>
        <translation>Erreur de configuration du jeu adaptatif (%1) – essayez de réinstaller le logiciel</translation>
    </message>
    <message>
        <source>Oops, something went wrong (%1) - try restarting your PC or reinstalling the software</source>
        <translation>Un problème est survenu (%1) – essayez de redémarrer le PC ou de réinstaller le logiciel</translation>
    </message>
    <message>
        <source>Quivera Mode selection failed (%1) - try restarting the Quivera app or device</source>
        <translation>Le mode Quivera n’a pas pu être choisi (%1) – essayez de redémarrer l’application Quivera ou l’appareil</translation>
    </message>
    <message>
        <source>Error with haptic device (%1) - try replugging your cables</source>
        <translation>Erreur de l’appareil haptique (%1) – essayez de rebrancher les câbles</translation>
    </message>
    <message>
        <source>N/A</source>
        <comment>update time</comment>
        <translation>inconnue</translation>
    </message>
    <message>
        <source>Please wait for mode change...</source>
        <translation>Changement de mode, veuillez patienter...</translation>
    </message>
    <message>
        <source>It is starting. Please wait a moment.</source>
        <translation>Le programme démarre. Veuillez patienter un instant.</translation>
    </message>
    <message>
        <source>Restart your PC. If this does not help, reinstall the Quivera software.</source>
        <translation>Redémarrez le PC. Si le problème persiste, réinstallez le logiciel Quivera.</translation>
    </message>
    <message>
        <source>It is not running. Restart the Quivera app or your PC.</source>
        <translation>Le programme est arrêté. Redémarrez l’application Quivera ou le PC.</translation>
    </message>
    <message>
        <source>Update your app to learn what this state means.</source>
        <translation>Mettez l’application à jour pour savoir ce que signifie cet état.</translation>
    </message>
</context>
<context>
    <name>MediaStatus</name>
    <message>
        <source>Configuring Audio Capture</source>
        <translation>Configuration de la capture audio</translation>
    </message>
    <message>
        <source>Audio Capture Configured</source>
        <translation>Capture audio configurée</translation>
    </message>
    <message>
        <source>Starting Audio Capture</source>
        <translation>Démarrage de la capture audio</translation>
    </message>
    <message>
        <source>Audio Capture Started</source>
        <translation>Capture audio démarrée</translation>
    </message>
    <message>
        <source>Stopping Audio Capture</source>
        <translation>Arrêt de la capture audio</translation>
    </message>
    <message>
        <source>Audio Capture Stopped</source>
        <translation>Capture audio arrêtée</translation>
    </message>
    <message>
        <source>Capturing Audio</source>
        <translation>Capture du son en cours</translation>
    </message>
    <message>
        <source>Silence Detected</source>
        <translation>Silence détecté</translation>
    </message>
    <message>
        <source>Audio Source Detected</source>
        <translation>Source audio détectée</translation>
    </message>
    <message>
        <source>Content Identification Lost</source>
        <translation>Contenu plus reconnu</translation>
    </message>
    <message>
        <source>Listening and Analyzing Audio</source>
        <translation>Écoute et analyse du son</translation>
    </message>
    <message>
        <source>Audio Feed Lost</source>
        <translation>Signal audio perdu</translation>
    </message>
    <message>
        <source>Audio Capture Error</source>
        <translation>Erreur de capture audio</translation>
    </message>
    <message>
        <source>Unknown Media State</source>
        <translation>État du média inconnu</translation>
    </message>
    <message>
        <source>Motion Code Found</source>
        <translation>Code de mouvement trouvé</translation>
    </message>
    <message>
        <source>Looking for Motion Code</source>
        <translation>Recherche du code de mouvement</translation>
    </message>
    <message>
        <source>Motion Code Available</source>
        <translation>Code de mouvement disponible</translation>
    </message>
    <message>
        <source>Motion Code not Available</source>
        <translation>Code de mouvement non disponible</translation>
    </message>
    <message>
        <source>Unknown Motion Code</source>
        <translation>Code de mouvement inconnu</translation>
    </message>
</context>
<context>
    <name>PageGenericInput</name>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>PageMain010DeviceList</name>
    <message>
        <source>ORVEX SYSTEMS</source>
        <translation>SYSTÈMES ORVEX</translation>
    </message>
    <message>
        <source>Quivera devices</source>
        <translation>Appareils Quivera</translation>
    </message>
    <message>
        <source>Network Setup Required</source>
        <translation>Réseau à configurer</translation>
    </message>
    <message>
        <source>System Update Required</source>
        <translation>Mise à jour du système requise</translation>
    </message>
    <message>
        <source>No Quivera device found.
Tap the &quot;Add Quivera Device&quot;
button below.</source>
        <translation>Aucun appareil Quivera trouvé.
Appuyez ci-dessous sur
«&#xa0;Ajouter un appareil Quivera&#xa0;».</translation>
    </message>
    <message>
        <source>Add Quivera Device from Network</source>
        <translation>Ajouter un appareil Quivera du réseau</translation>
    </message>
    <message>
        <source>Connect a Orvex device to your Wi-Fi</source>
        <translation>Connecter un appareil Orvex à votre Wi-Fi</translation>
    </message>
</context>
<context>
    <name>PageMain040DeviceInfo</name>
    <message>
        <source>About this device</source>
        <translation>À propos de cet appareil</translation>
    </message>
    <message>
        <source>System Update Required</source>
        <translation>Mise à jour du système requise</translation>
    </message>
    <message>
        <source>This device does not answer</source>
        <translation>Cet appareil ne répond pas</translation>
    </message>
    <message>
        <source>%1 requires a more recent software version for compatibility. The update should be done automatically but if it doesn&apos;t, please contact support.</source>
        <translation>%1 nécessite une version plus récente du logiciel. La mise à jour devrait se faire automatiquement&#xa0;; sinon, veuillez contacter l’assistance.</translation>
    </message>
    <message>
        <source>Check that it is switched on and connected to your network. The page fills again as soon as the device answers.</source>
        <translation>Vérifiez qu’il est allumé et connecté à votre réseau. La page se remplira dès que l’appareil répondra.</translation>
    </message>
    <message>
        <source>The device answers slowly. Check its network connection if this takes longer.</source>
        <translation>L’appareil répond lentement. Vérifiez sa connexion réseau si cela se prolonge.</translation>
    </message>
    <message>
        <source>Reading the settings of the device...</source>
        <translation>Lecture des réglages de l’appareil...</translation>
    </message>
</context>
<context>
    <name>PageMain050NetworkStatus</name>
    <message>
        <source>NETWORK STATUS</source>
        <translation>ÉTAT DU RÉSEAU</translation>
    </message>
    <message>
        <source>The network status is not known yet. Waiting for the device to report it...</source>
        <translation>L’état du réseau n’est pas encore connu. En attente d’une réponse de l’appareil...</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Connected to the network</source>
        <translation>Connecté au réseau</translation>
    </message>
    <message>
        <source>Not connected to a network</source>
        <translation>Non connecté à un réseau</translation>
    </message>
    <message>
        <source>The access point of the device is on: it waits to be set up</source>
        <translation>Le point d’accès de l’appareil est activé&#xa0;: l’appareil attend d’être configuré</translation>
    </message>
    <message>
        <source>Wi-Fi Network</source>
        <translation>Réseau Wi-Fi</translation>
    </message>
    <message>
        <source>Set Up Wi-Fi</source>
        <translation>Configurer le Wi-Fi</translation>
    </message>
    <message>
        <source>Reset Network Settings</source>
        <translation>Réinitialiser le réseau</translation>
    </message>
</context>
<context>
    <name>PageMain070DeviceAbout</name>
    <message>
        <source>Device</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>Produit</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Fabricant</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>Identifiant de l’appareil</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Logiciel</translation>
    </message>
    <message>
        <source>Device Software Version</source>
        <translation>Version du logiciel de l’appareil</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Network Address</source>
        <translation>Adresse réseau</translation>
    </message>
    <message>
        <source>%1 (Local)</source>
        <translation>%1 (local)</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>ABOUT THIS DEVICE</source>
        <translation>À PROPOS DE CET APPAREIL</translation>
    </message>
    <message>
        <source>Change device name</source>
        <translation>Changer le nom de l’appareil</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>Chiffré</translation>
    </message>
    <message>
        <source>Not encrypted</source>
        <translation>Non chiffré</translation>
    </message>
</context>
<context>
    <name>PageMain076DetailedStatus</name>
    <message>
        <source>DETAILED STATUS</source>
        <translation>ÉTAT DÉTAILLÉ</translation>
    </message>
    <message>
        <source>Full Status</source>
        <translation>État complet</translation>
    </message>
    <message>
        <source>Faults Only</source>
        <translation>Défauts seulement</translation>
    </message>
    <message>
        <source>Faults With Siblings</source>
        <translation>Défauts et éléments voisins</translation>
    </message>
    <message>
        <source>Topology Outline</source>
        <translation>Topologie, vue d’ensemble</translation>
    </message>
    <message>
        <source>Topology Details</source>
        <translation>Topologie détaillée</translation>
    </message>
    <message>
        <source>What is shown</source>
        <translation>Éléments affichés</translation>
    </message>
    <message>
        <source>The device reports nothing here. Choose another view above.</source>
        <translation>L’appareil ne signale rien ici. Choisissez une autre vue ci-dessus.</translation>
    </message>
    <message>
        <source>The device answers slowly. Check its network connection if this takes longer.</source>
        <translation>L’appareil répond lentement. Vérifiez sa connexion réseau si cela se prolonge.</translation>
    </message>
    <message>
        <source>Reading the status of the modules...</source>
        <translation>Lecture de l’état des modules...</translation>
    </message>
    <message>
        <source>No module reports a fault.</source>
        <translation>Aucun module ne signale de défaut.</translation>
    </message>
</context>
<context>
    <name>PageMain080MediaList</name>
    <message>
        <source>CODED TITLES</source>
        <translation>TITRES CODÉS</translation>
    </message>
    <message>
        <source>Search for a title</source>
        <translation>Rechercher un titre</translation>
    </message>
    <message>
        <source>Titles found: %1</source>
        <translation>Titres trouvés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Titles: %1</source>
        <translation>Titres&#xa0;: %1</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Released</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Coded</source>
        <translation>Codé le</translation>
    </message>
    <message>
        <source>No coded titles yet</source>
        <translation>Pas encore de titres codés</translation>
    </message>
    <message>
        <source>No title matches your search</source>
        <translation>Aucun titre ne correspond à votre recherche</translation>
    </message>
    <message>
        <source>The device answers slowly. Check its network connection if this takes longer.</source>
        <translation>L’appareil répond lentement. Vérifiez sa connexion réseau si cela se prolonge.</translation>
    </message>
    <message>
        <source>Reading the list of titles...</source>
        <translation>Lecture de la liste des titres...</translation>
    </message>
    <message>
        <source>The device loads its titles from the internet. Check that it is online, then come back in a few minutes.</source>
        <translation>L’appareil télécharge ses titres depuis Internet. Vérifiez qu’il est en ligne, puis revenez dans quelques minutes.</translation>
    </message>
    <message>
        <source>Check the spelling, or search for a part of the title.</source>
        <translation>Vérifiez l’orthographe ou cherchez une partie du titre.</translation>
    </message>
</context>
<context>
    <name>PageSetup010WaitForDevice</name>
    <message>
        <source>Open the Wi-Fi settings of this computer.</source>
        <translation>Ouvrez les paramètres Wi-Fi de cet ordinateur.</translation>
    </message>
    <message>
        <source>Join the network whose name begins with &quot;%1&quot;.</source>
        <translation>Rejoignez le réseau dont le nom commence par «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Enter the password &quot;%1&quot;.</source>
        <translation>Saisissez le mot de passe «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Return to this application.</source>
        <translation>Revenez à cette application.</translation>
    </message>
    <message>
        <source>Switch on your Quivera device, then connect this computer to it:</source>
        <translation>Allumez votre appareil Quivera, puis connectez-y cet ordinateur&#xa0;:</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Network Name</source>
        <translation>Nom du réseau</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Searching for
Quivera device...</source>
        <translation>Recherche de
l’appareil Quivera...</translation>
    </message>
</context>
<context>
    <name>PageWiFiList</name>
    <message>
        <source>Select the Wi-Fi network for your Quivera device.</source>
        <translation>Choisissez le réseau Wi-Fi de votre appareil Quivera.</translation>
    </message>
    <message>
        <source>Wi-Fi networks</source>
        <translation>Réseaux Wi-Fi</translation>
    </message>
    <message>
        <source>No Wi-Fi network found yet. Make sure that your router is switched on and near the device.</source>
        <translation>Aucun réseau Wi-Fi trouvé pour l’instant. Vérifiez que votre routeur est allumé et proche de l’appareil.</translation>
    </message>
</context>
<context>
    <name>PageWiFiPassword</name>
    <message>
        <source>Wi-Fi Network</source>
        <translation>Réseau Wi-Fi</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Leave the password empty if the network is open.</source>
        <translation>Laissez le mot de passe vide si le réseau est ouvert.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
</context>
<context>
    <name>SeatInfo</name>
    <message>
        <source>System OK</source>
        <translation>Système en ordre</translation>
    </message>
    <message>
        <source>Fault in System</source>
        <translation>Défaut du système</translation>
    </message>
    <message>
        <source>System in Transition</source>
        <translation>Système en transition</translation>
    </message>
    <message>
        <source>No Power or Actuator Disconnected</source>
        <translation>Pas de courant ou actionneur débranché</translation>
    </message>
    <message>
        <source>No Communication with System</source>
        <translation>Pas de communication avec le système</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>État&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>Style</name>
    <message>
        <source>Inactive</source>
        <translation>Inactif</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Défaut</translation>
    </message>
    <message>
        <source>In transition</source>
        <translation>En transition</translation>
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
        <translation>Réglages de l’audio adaptatif</translation>
    </message>
    <message>
        <source>Audio Source Level:</source>
        <translation>Niveau de la source audio&#xa0;:</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>Ignore Central Audio (Voice)</source>
        <translation>Ignorer le canal central (voix)</translation>
    </message>
</context>
<context>
    <name>WidgetAdaptiveGamingCard</name>
    <message>
        <source>Adaptive Gaming Configuration</source>
        <translation>Réglages du jeu adaptatif</translation>
    </message>
    <message>
        <source>Selected Profile:</source>
        <translation>Profil choisi&#xa0;:</translation>
    </message>
    <message>
        <source>No Profile selected</source>
        <translation>Aucun profil choisi</translation>
    </message>
    <message>
        <source>Open Adaptive Gaming Configurator</source>
        <translation>Ouvrir Adaptive Gaming Configurator</translation>
    </message>
    <message>
        <source>Open Orvex Adaptive Gaming Configurator on your PC.</source>
        <translation>Ouvrez Orvex Adaptive Gaming Configurator sur votre PC.</translation>
    </message>
</context>
<context>
    <name>WidgetAudioSource</name>
    <message>
        <source>Audio Source:</source>
        <translation>Source audio&#xa0;:</translation>
    </message>
    <message>
        <source>Audio Source: None</source>
        <translation>Source audio&#xa0;: aucune</translation>
    </message>
    <message>
        <source>Connect a sound source to the device, or a microphone or sound card to the PC.</source>
        <translation>Branchez une source audio à l’appareil, ou un micro ou une carte son au PC.</translation>
    </message>
</context>
<context>
    <name>WidgetBusy</name>
    <message>
        <source>Please wait</source>
        <translation>Veuillez patienter</translation>
    </message>
</context>
<context>
    <name>WidgetCodedGamingCard</name>
    <message>
        <source>ORVEX Coded Gaming Configuration</source>
        <translation>Réglages des jeux codés ORVEX</translation>
    </message>
    <message>
        <source>Open Game Center</source>
        <translation>Ouvrir Game Center</translation>
    </message>
    <message>
        <source>Open Orvex Game Center on your PC.</source>
        <translation>Ouvrez Orvex Game Center sur votre PC.</translation>
    </message>
</context>
<context>
    <name>WidgetCodedVideoCard</name>
    <message>
        <source>ORVEX Coded Video Configuration</source>
        <translation>Réglages de la vidéo codée ORVEX</translation>
    </message>
    <message>
        <source>Automatic Input Level Control</source>
        <translation>Niveau d’entrée automatique</translation>
    </message>
    <message>
        <source>Always on for a source that is an output.</source>
        <translation>Toujours activé pour une source qui est une sortie.</translation>
    </message>
    <message>
        <source>Haptic Delay Calibration:</source>
        <translation>Réglage du délai haptique&#xa0;:</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Moves the haptic effects later or earlier than the picture</source>
        <translation>Retarde ou avance les effets haptiques par rapport à l’image</translation>
    </message>
    <message>
        <source>Recognition Tolerance:</source>
        <translation>Tolérance de reconnaissance&#xa0;:</translation>
    </message>
    <message>
        <source>%1 sec</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>How long the haptic effects go on when the sound is not recognised</source>
        <translation>Durée pendant laquelle les effets haptiques continuent quand le son n’est pas reconnu</translation>
    </message>
    <message>
        <source>List of ORVEX Coded Titles</source>
        <translation>Liste des titres codés ORVEX</translation>
    </message>
</context>
<context>
    <name>WidgetCompanion</name>
    <message>
        <source>It is not installed on this PC.</source>
        <translation>Il n’est pas installé sur ce PC.</translation>
    </message>
    <message>
        <source>The program did not start. Try again, or install it anew.</source>
        <translation>Le programme n’a pas démarré. Réessayez ou réinstallez-le.</translation>
    </message>
</context>
<context>
    <name>WidgetContentCard</name>
    <message>
        <source>Content</source>
        <translation>Contenus</translation>
    </message>
    <message>
        <source>Last Updated: %1</source>
        <translation>Dernière mise à jour&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>WidgetDetailRow</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>WidgetHapticCard</name>
    <message>
        <source>Haptic Output</source>
        <translation>Sortie haptique</translation>
    </message>
    <message>
        <source>Haptic Seats</source>
        <translation>Sièges haptiques</translation>
    </message>
    <message>
        <source>No Seat Detected</source>
        <translation>Aucun siège détecté</translation>
    </message>
    <message>
        <source>Check that the seat has power and that its cable is plugged in.</source>
        <translation>Vérifiez que le siège est alimenté et que son câble est branché.</translation>
    </message>
    <message>
        <source>Open Control Panel</source>
        <translation>Ouvrir Control Panel</translation>
    </message>
    <message>
        <source>Open Orvex Control Panel on your PC.</source>
        <translation>Ouvrez Orvex Control Panel sur votre PC.</translation>
    </message>
</context>
<context>
    <name>WidgetInputPass</name>
    <message>
        <source>Hide the password</source>
        <translation>Masquer le mot de passe</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Afficher le mot de passe</translation>
    </message>
</context>
<context>
    <name>WidgetLabeledText</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation>Copier&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>WidgetMediaCard</name>
    <message>
        <source>Now Playing:</source>
        <translation>Lecture en cours&#xa0;:</translation>
    </message>
    <message>
        <source>Nothing is recognised. Play a coded title with sound on the chosen audio source.</source>
        <translation>Rien n’est reconnu. Lancez un titre codé, avec le son, sur la source audio choisie.</translation>
    </message>
    <message>
        <source>%1 of %2 played</source>
        <translation>%1 lues sur %2</translation>
    </message>
</context>
<context>
    <name>WidgetModeCard</name>
    <message>
        <source>Quivera Mode</source>
        <translation>Mode Quivera</translation>
    </message>
    <message>
        <source>Please wait for mode change...</source>
        <translation>Changement de mode, veuillez patienter...</translation>
    </message>
    <message>
        <source>The mode is now %1.</source>
        <translation>Le mode est maintenant %1.</translation>
    </message>
</context>
<context>
    <name>WidgetNetworkCard</name>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Network status</source>
        <translation>État du réseau</translation>
    </message>
    <message>
        <source>Shows the network status and its settings</source>
        <translation>Affiche l’état et les paramètres du réseau</translation>
    </message>
    <message>
        <source>Device Online</source>
        <translation>Appareil en ligne</translation>
    </message>
    <message>
        <source>Device Offline</source>
        <translation>Appareil hors ligne</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Wi-Fi Network</source>
        <translation>Réseau Wi-Fi</translation>
    </message>
</context>
<context>
    <name>WidgetNetworkInterface</name>
    <message>
        <source>IP Address</source>
        <translation>Adresse IP</translation>
    </message>
    <message>
        <source>Netmask</source>
        <translation>Masque de réseau</translation>
    </message>
    <message>
        <source>Broadcast Address</source>
        <translation>Adresse de diffusion</translation>
    </message>
    <message>
        <source>Hardware Address</source>
        <translation>Adresse matérielle</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Active</translation>
    </message>
    <message>
        <source>Not active</source>
        <translation>Non active</translation>
    </message>
</context>
<context>
    <name>WidgetPageTitle</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>WidgetProductCard</name>
    <message>
        <source>This App</source>
        <translation>Cette application</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>App Version</source>
        <translation>Version de l’application</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Droits d’auteur</translation>
    </message>
    <message>
        <source>© %1</source>
        <translation>© %1</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>Parts of others in this app, and their licences</source>
        <translation>Composants de tiers dans cette application et leurs licences</translation>
    </message>
</context>
<context>
    <name>WidgetRefusal</name>
    <message>
        <source>The device did not take over this change. Please try again.</source>
        <translation>L’appareil n’a pas pris en compte cette modification. Veuillez réessayer.</translation>
    </message>
</context>
<context>
    <name>WidgetSearchField</name>
    <message>
        <source>Clear the search</source>
        <translation>Effacer la recherche</translation>
    </message>
</context>
<context>
    <name>WidgetSeat</name>
    <message>
        <source>Seat %1</source>
        <translation>Siège %1</translation>
    </message>
    <message>
        <source>Seat</source>
        <translation>Siège</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muet</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>Mouvement</translation>
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
        <translation>Lier le mouvement et la vibration</translation>
    </message>
</context>
<context>
    <name>WidgetSeatHealth</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Shows the detailed status</source>
        <translation>Affiche l’état détaillé</translation>
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
        <translation>Santé du logiciel</translation>
    </message>
</context>
<context>
    <name>WidgetSortButton</name>
    <message>
        <source>Sorts by this column</source>
        <translation>Trie selon cette colonne</translation>
    </message>
    <message>
        <source>Sorted, descending</source>
        <translation>Tri décroissant</translation>
    </message>
    <message>
        <source>Sorted, ascending</source>
        <translation>Tri croissant</translation>
    </message>
</context>
<context>
    <name>WindowMain</name>
    <message>
        <source>CHANGE DEVICE NAME</source>
        <translation>CHANGER LE NOM DE L’APPAREIL</translation>
    </message>
    <message>
        <source>Enter new name</source>
        <translation>Saisissez le nouveau nom</translation>
    </message>
</context>
<context>
    <name>WindowMainReset</name>
    <message>
        <source>NETWORK RESET</source>
        <translation>RÉINITIALISATION DU RÉSEAU</translation>
    </message>
    <message>
        <source>This will remove all personalized network settings, including Wi-Fi networks. Device will need to be setup again from the home screen.</source>
        <translation>Tous les paramètres réseau personnalisés seront supprimés, y compris les réseaux Wi-Fi. Il faudra configurer à nouveau l’appareil depuis l’écran d’accueil.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Resetting...</source>
        <translation>Réinitialisation...</translation>
    </message>
    <message>
        <source>Your Quivera device
network settings
are reset.</source>
        <translation>Les paramètres réseau
de votre appareil Quivera
sont réinitialisés.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>WindowMainWiFi</name>
    <message>
        <source>NETWORK SETUP</source>
        <translation>CONFIGURATION DU RÉSEAU</translation>
    </message>
    <message>
        <source>Quivera device is
searching for Wi-Fi</source>
        <translation>L’appareil Quivera
recherche les réseaux Wi-Fi</translation>
    </message>
    <message>
        <source>Waiting for your Quivera device to appear on selected network</source>
        <translation>En attente de votre appareil Quivera sur le réseau choisi</translation>
    </message>
    <message>
        <source>Please connect this device to the same network that you selected for your Quivera device</source>
        <translation>Veuillez connecter cet ordinateur au réseau que vous avez choisi pour votre appareil Quivera</translation>
    </message>
    <message>
        <source>Quivera device is already connected to selected network.
Tap the &apos;Back&apos; button above and select another network.</source>
        <translation>L’appareil Quivera est déjà connecté au réseau choisi.
Appuyez ci-dessus sur «&#xa0;Retour&#xa0;» et choisissez un autre réseau.</translation>
    </message>
    <message>
        <source>Quivera device cannot connect to selected network.
Tap the &apos;Back&apos; button above and try selecting the network again.</source>
        <translation>L’appareil Quivera ne peut pas se connecter au réseau choisi.
Appuyez ci-dessus sur «&#xa0;Retour&#xa0;» et choisissez à nouveau le réseau.</translation>
    </message>
    <message>
        <source>Your Quivera device
successfully connected
to selected network.</source>
        <translation>Votre appareil Quivera
est maintenant connecté
au réseau choisi.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>WindowSetup</name>
    <message>
        <source>Add Quivera Device</source>
        <translation>Ajouter un appareil Quivera</translation>
    </message>
    <message>
        <source>NETWORK SETUP</source>
        <translation>CONFIGURATION DU RÉSEAU</translation>
    </message>
    <message>
        <source>Quivera device is
searching for Wi-Fi...</source>
        <translation>L’appareil Quivera
recherche les réseaux Wi-Fi...</translation>
    </message>
    <message>
        <source>Waiting for
Quivera device
to connect to
your network...</source>
        <translation>En attente
de la connexion
de l’appareil Quivera
à votre réseau...</translation>
    </message>
    <message>
        <source>Quivera device cannot connect to your network.
Tap the &apos;Back&apos; button above and try selecting the network again.</source>
        <translation>L’appareil Quivera ne peut pas se connecter à votre réseau.
Appuyez ci-dessus sur «&#xa0;Retour&#xa0;» et choisissez à nouveau le réseau.</translation>
    </message>
    <message>
        <source>Your Quivera device
successfully connected
to your network.</source>
        <translation>Votre appareil Quivera
est maintenant connecté
à votre réseau.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Please connect this computer to the same network as well.</source>
        <translation>Connectez aussi cet ordinateur au même réseau.</translation>
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
