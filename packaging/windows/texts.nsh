; The installer's own texts, in the languages of the program; the first language is taken where none fits.
!macro quiveraLanguages
    !insertmacro MUI_LANGUAGE "English"
    !insertmacro MUI_LANGUAGE "German"
    !insertmacro MUI_LANGUAGE "Spanish"
    !insertmacro MUI_LANGUAGE "French"
    !insertmacro MUI_LANGUAGE "Japanese"
!macroend

!macro quiveraText name english german spanish french japanese
    LangString ${name} 1033 "${english}"
    LangString ${name} 1031 "${german}"
    LangString ${name} 1034 "${spanish}"
    LangString ${name} 1036 "${french}"
    LangString ${name} 1041 "${japanese}"
!macroend

!insertmacro quiveraText nameProgram "${QUIVERA_NAME}" "${QUIVERA_NAME}" "${QUIVERA_NAME}" "${QUIVERA_NAME}" \
    "${QUIVERA_NAME}"
!insertmacro quiveraText aboutProgram "The program itself, for all users of this computer." \
    "Das Programm selbst, für alle Benutzer dieses Computers." \
    "El propio programa, para todos los usuarios de este equipo." \
    "Le programme lui-même, pour tous les utilisateurs de cet ordinateur." \
    "プログラム本体です。このコンピューターのすべてのユーザーが使えます。"
!insertmacro quiveraText nameSimulator "Simulated units" "Simulierte Geräte" "Unidades simuladas" \
    "Unités simulées" "シミュレートされたユニット"
!insertmacro quiveraText aboutSimulator "kelm-simulator, to try the program without a unit." \
    "kelm-simulator, um das Programm ohne Gerät auszuprobieren." \
    "kelm-simulator, para probar el programa sin una unidad." \
    "kelm-simulator, pour essayer le programme sans unité." \
    "ユニットがなくてもプログラムを試せる kelm-simulator です。"
!insertmacro quiveraText nameFirewall "Firewall rule" "Firewallregel" "Regla de firewall" "Règle de pare-feu" \
    "ファイアウォールの規則"
!insertmacro quiveraText aboutFirewall \
    "Lets units on the same network answer when the program looks for them. Without it Windows may keep them from \
    being found." \
    "Lässt Geräte im selben Netzwerk antworten, wenn das Programm sie sucht. Ohne sie kann Windows verhindern, dass \
    sie gefunden werden." \
    "Permite que las unidades de la misma red respondan cuando el programa las busca. Sin ella, Windows puede impedir \
    que se encuentren." \
    "Laisse les unités du même réseau répondre quand le programme les cherche. Sans elle, Windows peut empêcher de les \
    trouver." \
    "プログラムが同じネットワーク上のユニットを探すとき、その応答を受け取れるようにします。ないと、Windows \
    がユニットの検出を妨げることがあります。"
!insertmacro quiveraText nameData "Logs and crash reports" "Protokolle und Absturzberichte" \
    "Registros e informes de fallos" "Journaux et rapports de plantage" "ログとクラッシュ レポート"
!insertmacro quiveraText aboutData "What the program has written for the user who uninstalls it." \
    "Was das Programm für den Benutzer geschrieben hat, der es deinstalliert." \
    "Lo que el programa ha escrito para el usuario que lo desinstala." \
    "Ce que le programme a écrit pour l’utilisateur qui le désinstalle." \
    "アンインストールするユーザーのためにプログラムが書き込んだものです。"
!insertmacro quiveraText textProgramRuns "${QUIVERA_NAME} is running. OK closes it." \
    "${QUIVERA_NAME} läuft noch. Mit OK wird es geschlossen." \
    "${QUIVERA_NAME} se está ejecutando. Aceptar lo cierra." \
    "${QUIVERA_NAME} est en cours d’exécution. OK le ferme." \
    "${QUIVERA_NAME} が実行中です。OK を押すと終了します。"
!insertmacro quiveraText textProgramStays "${QUIVERA_NAME} could not be closed. Close it and try again." \
    "${QUIVERA_NAME} konnte nicht geschlossen werden. Schließen Sie es und versuchen Sie es erneut." \
    "No se pudo cerrar ${QUIVERA_NAME}. Ciérrelo e inténtelo de nuevo." \
    "${QUIVERA_NAME} n’a pas pu être fermé. Fermez-le et réessayez." \
    "${QUIVERA_NAME} を終了できませんでした。終了してからもう一度お試しください。"
!insertmacro quiveraText textFirewallFailed \
    "The firewall rule could not be added. If units are not found, allow ${QUIVERA_NAME} in the firewall's settings." \
    "Die Firewallregel konnte nicht angelegt werden. Werden Geräte nicht gefunden, lassen Sie ${QUIVERA_NAME} in den \
    Einstellungen der Firewall zu." \
    "No se pudo añadir la regla de firewall. Si no se encuentran unidades, permita ${QUIVERA_NAME} en la configuración \
    del firewall." \
    "La règle de pare-feu n’a pas pu être ajoutée. Si des unités ne sont pas trouvées, autorisez ${QUIVERA_NAME} dans \
    les paramètres du pare-feu." \
    "ファイアウォールの規則を追加できませんでした。ユニットが見つからないときは、ファイアウォールの設定で \
    ${QUIVERA_NAME} を許可してください。"
!insertmacro quiveraText textWindowsTooOld "${QUIVERA_NAME} needs Windows 10 or later." \
    "${QUIVERA_NAME} benötigt Windows 10 oder neuer." "${QUIVERA_NAME} necesita Windows 10 o posterior." \
    "${QUIVERA_NAME} nécessite Windows 10 ou une version ultérieure." \
    "${QUIVERA_NAME} には Windows 10 以降が必要です。"
