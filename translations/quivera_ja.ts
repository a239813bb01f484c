<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ButtonDevice</name>
    <message>
        <source>%1 (Local)</source>
        <translation>%1（ローカル）</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>ButtonNetwork</name>
    <message>
        <source>Connected</source>
        <translation>接続済み</translation>
    </message>
</context>
<context>
    <name>ContentUpdateState</name>
    <message>
        <source>Unknown state</source>
        <translation>不明な状態</translation>
    </message>
    <message>
        <source>Checking for new content</source>
        <translation>新しいコンテンツを確認中</translation>
    </message>
    <message>
        <source>Error checking for new content</source>
        <translation>新しいコンテンツを確認できません</translation>
    </message>
    <message>
        <source>Downloading content</source>
        <translation>コンテンツをダウンロード中</translation>
    </message>
    <message>
        <source>Error downloading content</source>
        <translation>コンテンツをダウンロードできません</translation>
    </message>
    <message>
        <source>Server content not ready</source>
        <translation>サーバーのコンテンツが準備中</translation>
    </message>
    <message>
        <source>Content install pending</source>
        <translation>コンテンツのインストール待ち</translation>
    </message>
    <message>
        <source>Installing content</source>
        <translation>コンテンツをインストール中</translation>
    </message>
    <message>
        <source>Error installing content</source>
        <translation>コンテンツをインストールできません</translation>
    </message>
    <message>
        <source>Code: %1</source>
        <translation>コード：%1</translation>
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
        <translation>エラーが発生しました。アプリを終了します。</translation>
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
        <translation>Orvexコード対応ビデオ</translation>
    </message>
    <message>
        <source>Premium haptic experience for Orvex coded movies and TV shows, using audio synchronization.</source>
        <translation>Orvexコード対応の映画やテレビ番組を、音声に同期した最高品質のハプティクスで楽しめます。</translation>
    </message>
    <message>
        <source>Orvex Coded Gaming</source>
        <translation>Orvexコード対応ゲーム</translation>
    </message>
    <message>
        <source>Premium haptic experience for Orvex coded apps, simulators and games.</source>
        <translation>Orvexコード対応のアプリ、シミュレーター、ゲームを、最高品質のハプティクスで楽しめます。</translation>
    </message>
    <message>
        <source>Adaptive Audio</source>
        <translation>アダプティブオーディオ</translation>
    </message>
    <message>
        <source>Automated haptic experience for any movie, music and TV show, using audio processing.</source>
        <translation>音声を解析し、あらゆる映画、音楽、テレビ番組に合わせてハプティクスを自動で作り出します。</translation>
    </message>
    <message>
        <source>Adaptive Gaming</source>
        <translation>アダプティブゲーム</translation>
    </message>
    <message>
        <source>Haptic experience using real-time events from game controller or keyboard.</source>
        <translation>ゲームコントローラーやキーボードの操作にリアルタイムで応えるハプティクスを楽しめます。</translation>
    </message>
    <message>
        <source>Unknown Mode - Update Your App</source>
        <translation>不明なモード – アプリを更新してください</translation>
    </message>
    <message>
        <source>Update your app to see the newest Quivera Modes.</source>
        <translation>最新のQuiveraモードを表示するには、アプリを更新してください。</translation>
    </message>
    <message>
        <source>Error with Quivera agent (%1) - try restarting the Quivera app</source>
        <translation>Quiveraエージェントのエラー（%1） – Quiveraアプリを再起動してください</translation>
    </message>
    <message>
        <source>Oops, something went wrong (%1) - try restarting the Quivera app or device</source>
        <translation>問題が発生しました（%1） – Quiveraアプリまたは機器を再起動してください</translation>
    </message>
    <message>
        <source>No seat detected (%1) - connect your device or check your connections</source>
        <translation>シートが見つかりません（%1） – 機器を接続するか、接続を確認してください</translation>
    </message>
    <message>
        <source>Error with Adaptive Gaming (%1) - try restarting your PC or reinstalling the software</source>
        <translation>アダプティブゲームのエラー（%1） – PCを再起動するか、ソフトウェアを再インストールしてください</translation>
    </message>
    <message>
        <source>Error with Adaptive Gaming setup (%1) - try reinstalling the software</source>
        <translation>アダプティブゲームの設定エラー（%1） – ソフトウェアを再インストールしてください</translation>
    </message>
    <message>
        <source>Oops, something went wrong (%1) - try restarting your PC or reinstalling the software</source>
        <translation>問題が発生しました（%1） – PCを再起動するか、ソフトウェアを再インストールしてください</translation>
    </message>
    <message>
        <source>Quivera Mode selection failed (%1) - try restarting the Quivera app or device</source>
        <translation>Quiveraモードを選択できませんでした（%1） – Quiveraアプリまたは機器を再起動してください</translation>
    </message>
    <message>
        <source>Error with haptic device (%1) - try replugging your cables</source>
        <translation>ハプティクス機器のエラー（%1） – ケーブルを接続し直してください</translation>
    </message>
    <message>
        <source>N/A</source>
        <comment>update time</comment>
        <translation>なし</translation>
    </message>
    <message>
        <source>Please wait for mode change...</source>
        <translation>モードを切り替えています...</translation>
    </message>
    <message>
        <source>It is starting. Please wait a moment.</source>
        <translation>起動しています。しばらくお待ちください。</translation>
    </message>
    <message>
        <source>Restart your PC. If this does not help, reinstall the Quivera software.</source>
        <translation>PCを再起動してください。それでも直らない場合は、Quiveraソフトウェアを再インストールしてください。</translation>
    </message>
    <message>
        <source>It is not running. Restart the Quivera app or your PC.</source>
        <translation>動作していません。QuiveraアプリまたはPCを再起動してください。</translation>
    </message>
    <message>
        <source>Update your app to learn what this state means.</source>
        <translation>この状態の意味を確認するには、アプリを更新してください。</translation>
    </message>
</context>
<context>
    <name>MediaStatus</name>
    <message>
        <source>Configuring Audio Capture</source>
        <translation>音声の取り込みを設定中</translation>
    </message>
    <message>
        <source>Audio Capture Configured</source>
        <translation>音声の取り込みの設定完了</translation>
    </message>
    <message>
        <source>Starting Audio Capture</source>
        <translation>音声の取り込みを開始中</translation>
    </message>
    <message>
        <source>Audio Capture Started</source>
        <translation>音声の取り込みを開始</translation>
    </message>
    <message>
        <source>Stopping Audio Capture</source>
        <translation>音声の取り込みを停止中</translation>
    </message>
    <message>
        <source>Audio Capture Stopped</source>
        <translation>音声の取り込みを停止</translation>
    </message>
    <message>
        <source>Capturing Audio</source>
        <translation>音声を取り込み中</translation>
    </message>
    <message>
        <source>Silence Detected</source>
        <translation>無音を検出</translation>
    </message>
    <message>
        <source>Audio Source Detected</source>
        <translation>音源を検出</translation>
    </message>
    <message>
        <source>Content Identification Lost</source>
        <translation>コンテンツの認識が途絶</translation>
    </message>
    <message>
        <source>Listening and Analyzing Audio</source>
        <translation>音声を聞き取って解析中</translation>
    </message>
    <message>
        <source>Audio Feed Lost</source>
        <translation>音声信号が途絶</translation>
    </message>
    <message>
        <source>Audio Capture Error</source>
        <translation>音声の取り込みエラー</translation>
    </message>
    <message>
        <source>Unknown Media State</source>
        <translation>不明なメディアの状態</translation>
    </message>
    <message>
        <source>Motion Code Found</source>
        <translation>モーションコードを検出</translation>
    </message>
    <message>
        <source>Looking for Motion Code</source>
        <translation>モーションコードを検索中</translation>
    </message>
    <message>
        <source>Motion Code Available</source>
        <translation>モーションコードあり</translation>
    </message>
    <message>
        <source>Motion Code not Available</source>
        <translation>モーションコードなし</translation>
    </message>
    <message>
        <source>Unknown Motion Code</source>
        <translation>不明なモーションコード</translation>
    </message>
</context>
<context>
    <name>PageGenericInput</name>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>PageMain010DeviceList</name>
    <message>
        <source>ORVEX SYSTEMS</source>
        <translation>ORVEXシステム</translation>
    </message>
    <message>
        <source>Quivera devices</source>
        <translation>Quivera機器</translation>
    </message>
    <message>
        <source>Network Setup Required</source>
        <translation>ネットワークの設定が必要</translation>
    </message>
    <message>
        <source>System Update Required</source>
        <translation>システムの更新が必要</translation>
    </message>
    <message>
        <source>No Quivera device found.
Tap the &quot;Add Quivera Device&quot;
button below.</source>
        <translation>Quivera機器が見つかりません。
下の「Quivera機器を追加」を
押してください。</translation>
    </message>
    <message>
        <source>Add Quivera Device from Network</source>
        <translation>ネットワークからQuivera機器を追加</translation>
    </message>
    <message>
        <source>Connect a Orvex device to your Wi-Fi</source>
        <translation>Orvex機器をWi-Fiに接続</translation>
    </message>
</context>
<context>
    <name>PageMain040DeviceInfo</name>
    <message>
        <source>About this device</source>
        <translation>この機器について</translation>
    </message>
    <message>
        <source>System Update Required</source>
        <translation>システムの更新が必要</translation>
    </message>
    <message>
        <source>This device does not answer</source>
        <translation>この機器から応答がありません</translation>
    </message>
    <message>
        <source>%1 requires a more recent software version for compatibility. The update should be done automatically but if it doesn&apos;t, please contact support.</source>
        <translation>%1には、より新しいソフトウェアが必要です。更新は自動で行われますが、行われない場合はサポートにお問い合わせください。</translation>
    </message>
    <message>
        <source>Check that it is switched on and connected to your network. The page fills again as soon as the device answers.</source>
        <translation>電源が入っていて、ネットワークに接続されていることを確認してください。機器が応答すると、ページの表示が戻ります。</translation>
    </message>
    <message>
        <source>The device answers slowly. Check its network connection if this takes longer.</source>
        <translation>機器の応答に時間がかかっています。続く場合は、機器のネットワーク接続を確認してください。</translation>
    </message>
    <message>
        <source>Reading the settings of the device...</source>
        <translation>機器の設定を読み込んでいます...</translation>
    </message>
</context>
<context>
    <name>PageMain050NetworkStatus</name>
    <message>
        <source>NETWORK STATUS</source>
        <translation>ネットワークの状態</translation>
    </message>
    <message>
        <source>The network status is not known yet. Waiting for the device to report it...</source>
        <translation>ネットワークの状態はまだ不明です。機器からの通知を待っています...</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Connected to the network</source>
        <translation>ネットワークに接続済み</translation>
    </message>
    <message>
        <source>Not connected to a network</source>
        <translation>ネットワークに未接続</translation>
    </message>
    <message>
        <source>The access point of the device is on: it waits to be set up</source>
        <translation>機器のアクセスポイントがオンになっています：設定待ちです</translation>
    </message>
    <message>
        <source>Wi-Fi Network</source>
        <translation>Wi-Fiネットワーク</translation>
    </message>
    <message>
        <source>Set Up Wi-Fi</source>
        <translation>Wi-Fiを設定</translation>
    </message>
    <message>
        <source>Reset Network Settings</source>
        <translation>ネットワーク設定をリセット</translation>
    </message>
</context>
<context>
    <name>PageMain070DeviceAbout</name>
    <message>
        <source>Device</source>
        <translation>機器</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>製品</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>メーカー</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>機器ID</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>ソフトウェア</translation>
    </message>
    <message>
        <source>Device Software Version</source>
        <translation>機器のソフトウェアのバージョン</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Network Address</source>
        <translation>ネットワークアドレス</translation>
    </message>
    <message>
        <source>%1 (Local)</source>
        <translation>%1（ローカル）</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>ABOUT THIS DEVICE</source>
        <translation>この機器について</translation>
    </message>
    <message>
        <source>Change device name</source>
        <translation>機器の名前を変更</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>暗号化あり</translation>
    </message>
    <message>
        <source>Not encrypted</source>
        <translation>暗号化なし</translation>
    </message>
</context>
<context>
    <name>PageMain076DetailedStatus</name>
    <message>
        <source>DETAILED STATUS</source>
        <translation>詳細な状態</translation>
    </message>
    <message>
        <source>Full Status</source>
        <translation>すべての状態</translation>
    </message>
    <message>
        <source>Faults Only</source>
        <translation>異常のみ</translation>
    </message>
    <message>
        <source>Faults With Siblings</source>
        <translation>異常と隣接項目</translation>
    </message>
    <message>
        <source>Topology Outline</source>
        <translation>構成の概要</translation>
    </message>
    <message>
        <source>Topology Details</source>
        <translation>構成の詳細</translation>
    </message>
    <message>
        <source>What is shown</source>
        <translation>表示する内容</translation>
    </message>
    <message>
        <source>The device reports nothing here. Choose another view above.</source>
        <translation>この表示では、機器からの報告がありません。上で別の表示を選んでください。</translation>
    </message>
    <message>
        <source>The device answers slowly. Check its network connection if this takes longer.</source>
        <translation>機器の応答に時間がかかっています。続く場合は、機器のネットワーク接続を確認してください。</translation>
    </message>
    <message>
        <source>Reading the status of the modules...</source>
        <translation>モジュールの状態を読み込んでいます...</translation>
    </message>
    <message>
        <source>No module reports a fault.</source>
        <translation>異常を報告しているモジュールはありません。</translation>
    </message>
</context>
<context>
    <name>PageMain080MediaList</name>
    <message>
        <source>CODED TITLES</source>
        <translation>コード対応タイトル</translation>
    </message>
    <message>
        <source>Search for a title</source>
        <translation>タイトルを検索</translation>
    </message>
    <message>
        <source>Titles found: %1</source>
        <translation>見つかったタイトル：%1</translation>
    </message>
    <message>
        <source>Titles: %1</source>
        <translation>タイトル：%1</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Released</source>
        <translation>公開日</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Coded</source>
        <translation>コード化</translation>
    </message>
    <message>
        <source>No coded titles yet</source>
        <translation>コード対応タイトルはまだありません</translation>
    </message>
    <message>
        <source>No title matches your search</source>
        <translation>該当するタイトルがありません</translation>
    </message>
    <message>
        <source>The device answers slowly. Check its network connection if this takes longer.</source>
        <translation>機器の応答に時間がかかっています。続く場合は、機器のネットワーク接続を確認してください。</translation>
    </message>
    <message>
        <source>Reading the list of titles...</source>
        <translation>タイトルの一覧を読み込んでいます...</translation>
    </message>
    <message>
        <source>The device loads its titles from the internet. Check that it is online, then come back in a few minutes.</source>
        <translation>機器はタイトルをインターネットから読み込みます。オンラインであることを確認し、数分後にもう一度お試しください。</translation>
    </message>
    <message>
        <source>Check the spelling, or search for a part of the title.</source>
        <translation>つづりを確認するか、タイトルの一部で検索してください。</translation>
    </message>
</context>
<context>
    <name>PageSetup010WaitForDevice</name>
    <message>
        <source>Open the Wi-Fi settings of this computer.</source>
        <translation>このコンピューターのWi-Fi設定を開きます。</translation>
    </message>
    <message>
        <source>Join the network whose name begins with &quot;%1&quot;.</source>
        <translation>名前が「%1」で始まるネットワークに接続します。</translation>
    </message>
    <message>
        <source>Enter the password &quot;%1&quot;.</source>
        <translation>パスワード「%1」を入力します。</translation>
    </message>
    <message>
        <source>Return to this application.</source>
        <translation>このアプリに戻ります。</translation>
    </message>
    <message>
        <source>Switch on your Quivera device, then connect this computer to it:</source>
        <translation>Quivera機器の電源を入れて、このコンピューターを接続してください：</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Network Name</source>
        <translation>ネットワーク名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Searching for
Quivera device...</source>
        <translation>Quivera機器を
検索しています...</translation>
    </message>
</context>
<context>
    <name>PageWiFiList</name>
    <message>
        <source>Select the Wi-Fi network for your Quivera device.</source>
        <translation>Quivera機器で使うWi-Fiネットワークを選んでください。</translation>
    </message>
    <message>
        <source>Wi-Fi networks</source>
        <translation>Wi-Fiネットワーク</translation>
    </message>
    <message>
        <source>No Wi-Fi network found yet. Make sure that your router is switched on and near the device.</source>
        <translation>Wi-Fiネットワークがまだ見つかりません。ルーターの電源が入っていて、機器の近くにあることを確認してください。</translation>
    </message>
</context>
<context>
    <name>PageWiFiPassword</name>
    <message>
        <source>Wi-Fi Network</source>
        <translation>Wi-Fiネットワーク</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Leave the password empty if the network is open.</source>
        <translation>パスワードのないネットワークの場合は、空のままにしてください。</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
</context>
<context>
    <name>SeatInfo</name>
    <message>
        <source>System OK</source>
        <translation>システム正常</translation>
    </message>
    <message>
        <source>Fault in System</source>
        <translation>システムに異常あり</translation>
    </message>
    <message>
        <source>System in Transition</source>
        <translation>システム移行中</translation>
    </message>
    <message>
        <source>No Power or Actuator Disconnected</source>
        <translation>電源が入っていないか、アクチュエーターが未接続</translation>
    </message>
    <message>
        <source>No Communication with System</source>
        <translation>システムと通信できません</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>状態：%1</translation>
    </message>
</context>
<context>
    <name>Style</name>
    <message>
        <source>Inactive</source>
        <translation>停止中</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>異常</translation>
    </message>
    <message>
        <source>In transition</source>
        <translation>移行中</translation>
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
        <translation>アダプティブオーディオの設定</translation>
    </message>
    <message>
        <source>Audio Source Level:</source>
        <translation>音源のレベル：</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>Ignore Central Audio (Voice)</source>
        <translation>センター音声（声）を無視</translation>
    </message>
</context>
<context>
    <name>WidgetAdaptiveGamingCard</name>
    <message>
        <source>Adaptive Gaming Configuration</source>
        <translation>アダプティブゲームの設定</translation>
    </message>
    <message>
        <source>Selected Profile:</source>
        <translation>選択中のプロファイル：</translation>
    </message>
    <message>
        <source>No Profile selected</source>
        <translation>プロファイル未選択</translation>
    </message>
    <message>
        <source>Open Adaptive Gaming Configurator</source>
        <translation>Adaptive Gaming Configuratorを開く</translation>
    </message>
    <message>
        <source>Open Orvex Adaptive Gaming Configurator on your PC.</source>
        <translation>PCでOrvex Adaptive Gaming Configuratorを開いてください。</translation>
    </message>
</context>
<context>
    <name>WidgetAudioSource</name>
    <message>
        <source>Audio Source:</source>
        <translation>音源：</translation>
    </message>
    <message>
        <source>Audio Source: None</source>
        <translation>音源：なし</translation>
    </message>
    <message>
        <source>Connect a sound source to the device, or a microphone or sound card to the PC.</source>
        <translation>機器に音源を接続するか、PCにマイクまたはサウンドカードを接続してください。</translation>
    </message>
</context>
<context>
    <name>WidgetBusy</name>
    <message>
        <source>Please wait</source>
        <translation>お待ちください</translation>
    </message>
</context>
<context>
    <name>WidgetCodedGamingCard</name>
    <message>
        <source>ORVEX Coded Gaming Configuration</source>
        <translation>ORVEXコード対応ゲームの設定</translation>
    </message>
    <message>
        <source>Open Game Center</source>
        <translation>Game Centerを開く</translation>
    </message>
    <message>
        <source>Open Orvex Game Center on your PC.</source>
        <translation>PCでOrvex Game Centerを開いてください。</translation>
    </message>
</context>
<context>
    <name>WidgetCodedVideoCard</name>
    <message>
        <source>ORVEX Coded Video Configuration</source>
        <translation>ORVEXコード対応ビデオの設定</translation>
    </message>
    <message>
        <source>Automatic Input Level Control</source>
        <translation>入力レベルの自動調整</translation>
    </message>
    <message>
        <source>Always on for a source that is an output.</source>
        <translation>出力を音源にしている場合は、常にオンです。</translation>
    </message>
    <message>
        <source>Haptic Delay Calibration:</source>
        <translation>ハプティクスの遅延調整：</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Moves the haptic effects later or earlier than the picture</source>
        <translation>映像に対してハプティクスのタイミングを前後にずらします</translation>
    </message>
    <message>
        <source>Recognition Tolerance:</source>
        <translation>認識の許容時間：</translation>
    </message>
    <message>
        <source>%1 sec</source>
        <translation>%1秒</translation>
    </message>
    <message>
        <source>How long the haptic effects go on when the sound is not recognised</source>
        <translation>音声を認識できないときにハプティクスを続ける時間</translation>
    </message>
    <message>
        <source>List of ORVEX Coded Titles</source>
        <translation>ORVEXコード対応タイトル一覧</translation>
    </message>
</context>
<context>
    <name>WidgetCompanion</name>
    <message>
        <source>It is not installed on this PC.</source>
        <translation>このPCにインストールされていません。</translation>
    </message>
    <message>
        <source>The program did not start. Try again, or install it anew.</source>
        <translation>プログラムを起動できませんでした。もう一度試すか、インストールし直してください。</translation>
    </message>
</context>
<context>
    <name>WidgetContentCard</name>
    <message>
        <source>Content</source>
        <translation>コンテンツ</translation>
    </message>
    <message>
        <source>Last Updated: %1</source>
        <translation>最終更新：%1</translation>
    </message>
</context>
<context>
    <name>WidgetDetailRow</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>WidgetHapticCard</name>
    <message>
        <source>Haptic Output</source>
        <translation>ハプティクス出力</translation>
    </message>
    <message>
        <source>Haptic Seats</source>
        <translation>ハプティクスシート</translation>
    </message>
    <message>
        <source>No Seat Detected</source>
        <translation>シートが見つかりません</translation>
    </message>
    <message>
        <source>Check that the seat has power and that its cable is plugged in.</source>
        <translation>シートの電源が入っていて、ケーブルが差し込まれていることを確認してください。</translation>
    </message>
    <message>
        <source>Open Control Panel</source>
        <translation>Control Panelを開く</translation>
    </message>
    <message>
        <source>Open Orvex Control Panel on your PC.</source>
        <translation>PCでOrvex Control Panelを開いてください。</translation>
    </message>
</context>
<context>
    <name>WidgetInputPass</name>
    <message>
        <source>Hide the password</source>
        <translation>パスワードを隠す</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>パスワードを表示</translation>
    </message>
</context>
<context>
    <name>WidgetLabeledText</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation>コピー：%1</translation>
    </message>
</context>
<context>
    <name>WidgetMediaCard</name>
    <message>
        <source>Now Playing:</source>
        <translation>再生中：</translation>
    </message>
    <message>
        <source>Nothing is recognised. Play a coded title with sound on the chosen audio source.</source>
        <translation>何も認識されていません。選択中の音源で、コード対応タイトルを音声付きで再生してください。</translation>
    </message>
    <message>
        <source>%1 of %2 played</source>
        <translation>%2のうち%1を再生</translation>
    </message>
</context>
<context>
    <name>WidgetModeCard</name>
    <message>
        <source>Quivera Mode</source>
        <translation>Quiveraモード</translation>
    </message>
    <message>
        <source>Please wait for mode change...</source>
        <translation>モードを切り替えています...</translation>
    </message>
    <message>
        <source>The mode is now %1.</source>
        <translation>モードが「%1」になりました。</translation>
    </message>
</context>
<context>
    <name>WidgetNetworkCard</name>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Network status</source>
        <translation>ネットワークの状態</translation>
    </message>
    <message>
        <source>Shows the network status and its settings</source>
        <translation>ネットワークの状態と設定を表示します</translation>
    </message>
    <message>
        <source>Device Online</source>
        <translation>機器はオンライン</translation>
    </message>
    <message>
        <source>Device Offline</source>
        <translation>機器はオフライン</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Wi-Fi Network</source>
        <translation>Wi-Fiネットワーク</translation>
    </message>
</context>
<context>
    <name>WidgetNetworkInterface</name>
    <message>
        <source>IP Address</source>
        <translation>IPアドレス</translation>
    </message>
    <message>
        <source>Netmask</source>
        <translation>ネットマスク</translation>
    </message>
    <message>
        <source>Broadcast Address</source>
        <translation>ブロードキャストアドレス</translation>
    </message>
    <message>
        <source>Hardware Address</source>
        <translation>ハードウェアアドレス</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Not active</source>
        <translation>無効</translation>
    </message>
</context>
<context>
    <name>WidgetPageTitle</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>WidgetProductCard</name>
    <message>
        <source>This App</source>
        <translation>このアプリ</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>App Version</source>
        <translation>アプリのバージョン</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>著作権</translation>
    </message>
    <message>
        <source>© %1</source>
        <translation>© %1</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>ライセンス</translation>
    </message>
    <message>
        <source>Parts of others in this app, and their licences</source>
        <translation>このアプリに含まれる第三者のソフトウェアとそのライセンス</translation>
    </message>
</context>
<context>
    <name>WidgetRefusal</name>
    <message>
        <source>The device did not take over this change. Please try again.</source>
        <translation>機器にこの変更が反映されませんでした。もう一度お試しください。</translation>
    </message>
</context>
<context>
    <name>WidgetSearchField</name>
    <message>
        <source>Clear the search</source>
        <translation>検索を消去</translation>
    </message>
</context>
<context>
    <name>WidgetSeat</name>
    <message>
        <source>Seat %1</source>
        <translation>シート%1</translation>
    </message>
    <message>
        <source>Seat</source>
        <translation>シート</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>ミュート</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>モーション</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>Vibration</source>
        <translation>振動</translation>
    </message>
    <message>
        <source>Keep motion and vibration together</source>
        <translation>モーションと振動を連動</translation>
    </message>
</context>
<context>
    <name>WidgetSeatHealth</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Shows the detailed status</source>
        <translation>詳細な状態を表示します</translation>
    </message>
</context>
<context>
    <name>WidgetSettingSlider</name>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>WidgetSoftwareCard</name>
    <message>
        <source>Software Health</source>
        <translation>ソフトウェアの状態</translation>
    </message>
</context>
<context>
    <name>WidgetSortButton</name>
    <message>
        <source>Sorts by this column</source>
        <translation>この列で並べ替えます</translation>
    </message>
    <message>
        <source>Sorted, descending</source>
        <translation>降順に並べ替え済み</translation>
    </message>
    <message>
        <source>Sorted, ascending</source>
        <translation>昇順に並べ替え済み</translation>
    </message>
</context>
<context>
    <name>WindowMain</name>
    <message>
        <source>CHANGE DEVICE NAME</source>
        <translation>機器の名前を変更</translation>
    </message>
    <message>
        <source>Enter new name</source>
        <translation>新しい名前を入力</translation>
    </message>
</context>
<context>
    <name>WindowMainReset</name>
    <message>
        <source>NETWORK RESET</source>
        <translation>ネットワークのリセット</translation>
    </message>
    <message>
        <source>This will remove all personalized network settings, including Wi-Fi networks. Device will need to be setup again from the home screen.</source>
        <translation>Wi-Fiネットワークを含む、個別のネットワーク設定がすべて削除されます。その後、ホーム画面から機器を設定し直す必要があります。</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Resetting...</source>
        <translation>リセットしています...</translation>
    </message>
    <message>
        <source>Your Quivera device
network settings
are reset.</source>
        <translation>Quivera機器の
ネットワーク設定を
リセットしました。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>WindowMainWiFi</name>
    <message>
        <source>NETWORK SETUP</source>
        <translation>ネットワークの設定</translation>
    </message>
    <message>
        <source>Quivera device is
searching for Wi-Fi</source>
        <translation>Quivera機器が
Wi-Fiを検索しています</translation>
    </message>
    <message>
        <source>Waiting for your Quivera device to appear on selected network</source>
        <translation>選択したネットワークにQuivera機器が現れるのを待⁠っ⁠て⁠い⁠ま⁠す</translation>
    </message>
    <message>
        <source>Please connect this device to the same network that you selected for your Quivera device</source>
        <translation>このコンピューターを、Quivera機器用に選択したネットワークに接続してください</translation>
    </message>
    <message>
        <source>Quivera device is already connected to selected network.
Tap the &apos;Back&apos; button above and select another network.</source>
        <translation>Quivera機器は、選択したネットワークにすでに接⁠続⁠さ⁠れ⁠て⁠い⁠ま⁠す。
上の「戻る」を押して、別のネットワークを選んでく⁠だ⁠さ⁠い。</translation>
    </message>
    <message>
        <source>Quivera device cannot connect to selected network.
Tap the &apos;Back&apos; button above and try selecting the network again.</source>
        <translation>Quivera機器が、選択したネットワークに接続できません。
上の「戻る」を押して、ネットワークを選び直してく⁠だ⁠さ⁠い。</translation>
    </message>
    <message>
        <source>Your Quivera device
successfully connected
to selected network.</source>
        <translation>Quivera機器が
選択したネットワークに
接続されました。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>WindowSetup</name>
    <message>
        <source>Add Quivera Device</source>
        <translation>Quivera機器を追加</translation>
    </message>
    <message>
        <source>NETWORK SETUP</source>
        <translation>ネットワークの設定</translation>
    </message>
    <message>
        <source>Quivera device is
searching for Wi-Fi...</source>
        <translation>Quivera機器が
Wi-Fiを検索しています...</translation>
    </message>
    <message>
        <source>Waiting for
Quivera device
to connect to
your network...</source>
        <translation>Quivera機器が
ネットワークに
接続されるのを
待っています...</translation>
    </message>
    <message>
        <source>Quivera device cannot connect to your network.
Tap the &apos;Back&apos; button above and try selecting the network again.</source>
        <translation>Quivera機器が、ネットワークに接続できません。
上の「戻る」を押して、ネットワークを選び直してく⁠だ⁠さ⁠い。</translation>
    </message>
    <message>
        <source>Your Quivera device
successfully connected
to your network.</source>
        <translation>Quivera機器が
ネットワークに
接続されました。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Please connect this computer to the same network as well.</source>
        <translation>このコンピューターも同じネットワークに接続してください。</translation>
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
