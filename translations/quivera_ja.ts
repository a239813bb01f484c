<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ButtonDevice</name>
    <message>
        <source>%1 (Local)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ButtonNetwork</name>
    <message>
        <source>Connected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ContentUpdateState</name>
    <message>
        <source>Unknown state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking for new content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error checking for new content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error downloading content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server content not ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Content install pending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installing content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error installing content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CrashHandlerImpl</name>
    <message>
        <source>Orvex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An error has occured. The application must exit.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeviceInfoProxy</name>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orvex Coded Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Premium haptic experience for Orvex coded movies and TV shows, using audio synchronization.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orvex Coded Gaming</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Premium haptic experience for Orvex coded apps, simulators and games.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adaptive Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automated haptic experience for any movie, music and TV show, using audio processing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adaptive Gaming</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Haptic experience using real-time events from game controller or keyboard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown Mode - Update Your App</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update your app to see the newest Quivera Modes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error with Quivera agent (%1) - try restarting the Quivera app</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Oops, something went wrong (%1) - try restarting the Quivera app or device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No seat detected (%1) - connect your device or check your connections</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error with Adaptive Gaming (%1) - try restarting your PC or reinstalling the software</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error with Adaptive Gaming setup (%1) - try reinstalling the software</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Oops, something went wrong (%1) - try restarting your PC or reinstalling the software</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quivera Mode selection failed (%1) - try restarting the Quivera app or device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error with haptic device (%1) - try replugging your cables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>N/A</source>
        <comment>update time</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please wait for mode change...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is starting. Please wait a moment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restart your PC. If this does not help, reinstall the Quivera software.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is not running. Restart the Quivera app or your PC.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update your app to learn what this state means.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MediaStatus</name>
    <message>
        <source>Configuring Audio Capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio Capture Configured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starting Audio Capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio Capture Started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopping Audio Capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio Capture Stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capturing Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Silence Detected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio Source Detected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Content Identification Lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Listening and Analyzing Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio Feed Lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio Capture Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown Media State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motion Code Found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for Motion Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motion Code Available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motion Code not Available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown Motion Code</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageGenericInput</name>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageMain010DeviceList</name>
    <message>
        <source>ORVEX SYSTEMS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quivera devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network Setup Required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System Update Required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Quivera device found.
Tap the &quot;Add Quivera Device&quot;
button below.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Quivera Device from Network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect a Orvex device to your Wi-Fi</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageMain040DeviceInfo</name>
    <message>
        <source>About this device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System Update Required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This device does not answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 requires a more recent software version for compatibility. The update should be done automatically but if it doesn&apos;t, please contact support.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check that it is switched on and connected to your network. The page fills again as soon as the device answers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device answers slowly. Check its network connection if this takes longer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the settings of the device...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageMain050NetworkStatus</name>
    <message>
        <source>NETWORK STATUS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network status is not valid. Waiting for the device to report it...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected to the network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not connected to a network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The access point of the device is on: it waits to be set up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wi-Fi Network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Up Wi-Fi</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset Network Settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageMain070DeviceAbout</name>
    <message>
        <source>Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Software</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device Software Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>App Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (Local)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ABOUT THIS DEVICE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change device name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not encrypted</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageMain076DetailedStatus</name>
    <message>
        <source>DETAILED STATUS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Faults Only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Faults With Siblings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Topology Outline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Topology Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device reports nothing here. Choose another view above.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device answers slowly. Check its network connection if this takes longer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the status of the modules...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageMain080MediaList</name>
    <message>
        <source>CODED TITLES</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search for a title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Titles found: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Titles: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Released</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Coded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No coded titles yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No title matches your search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device answers slowly. Check its network connection if this takes longer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the list of titles...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device loads its titles from the internet. Check that it is online, then come back in a few minutes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the spelling, or search for a part of the title.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageSetup010WaitForDevice</name>
    <message>
        <source>Open the Wi-Fi settings of this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join the network whose name begins with &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the password &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Return to this application.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch on your Quivera device, then connect this computer to it:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searching for
Quivera device...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageWiFiList</name>
    <message>
        <source>Select the Wi-Fi network for your Quivera device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wi-Fi networks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Wi-Fi network found yet. Make sure that your router is switched on and near the device.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageWiFiPassword</name>
    <message>
        <source>Wi-Fi Network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave the password empty if the network is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SeatInfo</name>
    <message>
        <source>System OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fault in System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System in Transition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Power or Actuator Disconnected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Communication with System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Style</name>
    <message>
        <source>Inactive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In transition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetAdaptiveAudioCard</name>
    <message>
        <source>Adaptive Audio Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio Source Level:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignore Central Audio (Voice)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetAdaptiveGamingCard</name>
    <message>
        <source>Adaptive Gaming Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected Profile:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Profile selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Adaptive Gaming Configurator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Orvex Adaptive Gaming Configurator on your PC.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetAudioSource</name>
    <message>
        <source>Audio Source:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio Source: None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect a sound source to the device, or a microphone or sound card to the PC.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetBusy</name>
    <message>
        <source>Please wait</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetCodedGamingCard</name>
    <message>
        <source>ORVEX Coded Gaming Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Game Center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Orvex Game Center on your PC.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetCodedVideoCard</name>
    <message>
        <source>ORVEX Coded Video Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic Input Level Control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Always on for a source that is an output.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Haptic Delay Calibration:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moves the haptic effects later or earlier than the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recognition Tolerance:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long the haptic effects go on when the sound is not recognised</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List of ORVEX Coded Titles</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetCompanion</name>
    <message>
        <source>It is not installed on this PC.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program did not start. Try again, or install it anew.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetContentCard</name>
    <message>
        <source>Content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last Updated: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetDetailRow</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetHapticCard</name>
    <message>
        <source>Haptic Output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Haptic Seats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Seat Detected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check that the seat has power and that its cable is plugged in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Control Panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Orvex Control Panel on your PC.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetInputPass</name>
    <message>
        <source>Hide the password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetLabeledText</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetMediaCard</name>
    <message>
        <source>Now Playing:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is recognised. Play a coded title with sound on the chosen audio source.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 played</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetModeCard</name>
    <message>
        <source>Quivera Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please wait for mode change...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mode is now %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetNetworkCard</name>
    <message>
        <source>Network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the network status and its settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device Online</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device Offline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wi-Fi Network</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetNetworkInterface</name>
    <message>
        <source>IP Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Netmask</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Broadcast Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hardware Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not active</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetPageTitle</name>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetRefusal</name>
    <message>
        <source>The device did not take over this change. Please try again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetSearchField</name>
    <message>
        <source>Clear the search</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetSeat</name>
    <message>
        <source>Seat %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep motion and vibration together</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetSeatHealth</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the detailed status</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetSettingSlider</name>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetSoftwareCard</name>
    <message>
        <source>Software Health</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetSortButton</name>
    <message>
        <source>Sorts by this column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorted, descending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorted, ascending</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WindowMain</name>
    <message>
        <source>CHANGE DEVICE NAME</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter new name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WindowMainReset</name>
    <message>
        <source>NETWORK RESET</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This will remove all personalized network settings, including Wi-Fi networks. Device will need to be setup again from the home screen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resetting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your Quivera device
network settings
are reset.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WindowMainWiFi</name>
    <message>
        <source>NETWORK SETUP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quivera device is
searching for Wi-Fi</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for your Quivera device to appear on selected network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please connect this device to the same network that you selected for your Quivera device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quivera device is already connected to selected network.
Tap the &apos;Back&apos; button above and select another network.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quivera device cannot connect to selected network.
Tap the &apos;Back&apos; button above and try selecting the network again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your Quivera device
successfully connected
to selected network.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WindowSetup</name>
    <message>
        <source>Add Quivera Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NETWORK SETUP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quivera device is
searching for Wi-Fi...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for
Quivera device
to connect to
your network...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quivera device cannot connect to your network.
Tap the &apos;Back&apos; button above and try selecting the network again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your Quivera device
successfully connected
to your network.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WindowSplashForm.ui</name>
    <message>
        <source>Orvex Quivera</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Orvex Quivera</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
