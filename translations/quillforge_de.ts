<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>APIKeyStore</name>
    <message>
        <source>Your key is saved. %1 sets %2 from a command or another variable, so that line was left as it was; your key is on a new line after it, which is the one new terminal windows use.</source>
        <translation>Ihr Schlüssel ist gespeichert. %1 setzt %2 über einen Befehl oder eine andere Variable, deshalb wurde diese Zeile nicht verändert. Ihr Schlüssel steht in einer neuen Zeile darunter; diese verwenden neue Terminalfenster.</translation>
    </message>
</context>
<context>
    <name>BoundedLog</name>
    <message>
        <source>Earlier output was cut here; the whole log is in the log file.</source>
        <translation>Frühere Ausgaben wurden hier gekürzt; das vollständige Protokoll steht in der Protokolldatei.</translation>
    </message>
</context>
<context>
    <name>CLITool</name>
    <message>
        <source>Claude Code</source>
        <translation>Claude Code</translation>
    </message>
    <message>
        <source>Anthropic</source>
        <translation>Anthropic</translation>
    </message>
    <message>
        <source>AI coding assistant from Anthropic. Works in your terminal to help write, debug, and understand code.</source>
        <translation>KI-Programmierassistent von Anthropic. Arbeitet in Ihrem Terminal und hilft beim Schreiben, Debuggen und Verstehen von Code.</translation>
    </message>
    <message>
        <source>Requires an Anthropic account (free tier available)</source>
        <translation>Erfordert ein Anthropic-Konto (kostenloser Tarif verfügbar)</translation>
    </message>
    <message>
        <source>Free tier available, Pro plan for more usage</source>
        <translation>Kostenloser Tarif verfügbar, Pro-Tarif für mehr Nutzung</translation>
    </message>
    <message>
        <source>Sign in with your Anthropic account on first run.</source>
        <translation>Beim ersten Start mit Ihrem Anthropic-Konto anmelden.</translation>
    </message>
    <message>
        <source>Remove Claude Code and its configuration</source>
        <translation>Claude Code und seine Konfiguration entfernen</translation>
    </message>
    <message>
        <source>Gemini CLI</source>
        <translation>Gemini CLI</translation>
    </message>
    <message>
        <source>Google</source>
        <translation>Google</translation>
    </message>
    <message>
        <source>Google&apos;s Gemini AI in your terminal. Great for code generation and technical questions.</source>
        <translation>Googles Gemini-KI in Ihrem Terminal. Ideal zum Generieren von Code und für technische Fragen.</translation>
    </message>
    <message>
        <source>Requires a Google account (you probably have one!)</source>
        <translation>Erfordert ein Google-Konto (das Sie wahrscheinlich schon haben!)</translation>
    </message>
    <message>
        <source>Free tier with generous limits</source>
        <translation>Kostenloser Tarif mit großzügigen Limits</translation>
    </message>
    <message>
        <source>Sign in with your Google account on first run.</source>
        <translation>Beim ersten Start mit Ihrem Google-Konto anmelden.</translation>
    </message>
    <message>
        <source>Uninstall Gemini CLI via npm</source>
        <translation>Gemini CLI über npm deinstallieren</translation>
    </message>
    <message>
        <source>Codex</source>
        <translation>Codex</translation>
    </message>
    <message>
        <source>OpenAI</source>
        <translation>OpenAI</translation>
    </message>
    <message>
        <source>OpenAI&apos;s code-focused model. Powerful for code completion and generation.</source>
        <translation>Das auf Code spezialisierte Modell von OpenAI. Stark beim Vervollständigen und Generieren von Code.</translation>
    </message>
    <message>
        <source>Requires a paid ChatGPT plan or an OpenAI API key</source>
        <translation>Erfordert einen kostenpflichtigen ChatGPT-Tarif oder einen OpenAI-API-Schlüssel</translation>
    </message>
    <message>
        <source>Included with paid ChatGPT plans, or pay-as-you-go with an API key</source>
        <translation>In kostenpflichtigen ChatGPT-Tarifen enthalten oder nutzungsbasiert mit einem API-Schlüssel</translation>
    </message>
    <message>
        <source>Sign in with ChatGPT on first run, or use an API key.</source>
        <translation>Beim ersten Start mit ChatGPT anmelden oder einen API-Schlüssel verwenden.</translation>
    </message>
    <message>
        <source>Uninstall Codex via npm</source>
        <translation>Codex über npm deinstallieren</translation>
    </message>
    <message>
        <source>Works directly in your project folder</source>
        <translation>Arbeitet direkt in Ihrem Projektordner</translation>
    </message>
    <message>
        <source>Can read, edit, and create files</source>
        <translation>Kann Dateien lesen, bearbeiten und erstellen</translation>
    </message>
    <message>
        <source>Runs commands and tests for you</source>
        <translation>Führt Befehle und Tests für Sie aus</translation>
    </message>
    <message>
        <source>Understands your entire codebase</source>
        <translation>Versteht Ihre gesamte Codebasis</translation>
    </message>
    <message>
        <source>Powered by Google&apos;s Gemini models</source>
        <translation>Basiert auf den Gemini-Modellen von Google</translation>
    </message>
    <message>
        <source>Great for code generation</source>
        <translation>Ideal zum Generieren von Code</translation>
    </message>
    <message>
        <source>Helpful for technical explanations</source>
        <translation>Hilfreich bei technischen Erklärungen</translation>
    </message>
    <message>
        <source>Integrates with Google services</source>
        <translation>Arbeitet mit Google-Diensten zusammen</translation>
    </message>
    <message>
        <source>Built on OpenAI&apos;s GPT models</source>
        <translation>Basiert auf den GPT-Modellen von OpenAI</translation>
    </message>
    <message>
        <source>Strong at code completion</source>
        <translation>Stark beim Vervollständigen von Code</translation>
    </message>
    <message>
        <source>Wide language support</source>
        <translation>Unterstützt viele Programmiersprachen</translation>
    </message>
    <message>
        <source>Great for quick code generation</source>
        <translation>Ideal, um schnell Code zu generieren</translation>
    </message>
    <message>
        <source>On first launch, your browser will open to authenticate.</source>
        <translation>Beim ersten Start öffnet sich Ihr Browser zur Anmeldung.</translation>
    </message>
    <message>
        <source>Create an Anthropic account</source>
        <translation>Anthropic-Konto erstellen</translation>
    </message>
    <message>
        <source>Visit %1 and sign up with your email or Google account.</source>
        <translation>Besuchen Sie %1 und registrieren Sie sich mit Ihrer E-Mail-Adresse oder Ihrem Google-Konto.</translation>
    </message>
    <message>
        <source>Choose a plan</source>
        <translation>Tarif auswählen</translation>
    </message>
    <message>
        <source>Start with the free tier or upgrade to Pro for more usage.</source>
        <translation>Beginnen Sie mit dem kostenlosen Tarif oder wechseln Sie für mehr Nutzung zu Pro.</translation>
    </message>
    <message>
        <source>Install Claude Code</source>
        <translation>Claude Code installieren</translation>
    </message>
    <message>
        <source>Sign in from Terminal</source>
        <translation>Im Terminal anmelden</translation>
    </message>
    <message>
        <source>Use your Google account</source>
        <translation>Google-Konto verwenden</translation>
    </message>
    <message>
        <source>If you have Gmail, you already have an account!</source>
        <translation>Wenn Sie Gmail nutzen, haben Sie bereits ein Konto!</translation>
    </message>
    <message>
        <source>Install Gemini CLI</source>
        <translation>Gemini CLI installieren</translation>
    </message>
    <message>
        <source>Sign in with Google</source>
        <translation>Mit Google anmelden</translation>
    </message>
    <message>
        <source>Use your ChatGPT plan</source>
        <translation>ChatGPT-Tarif verwenden</translation>
    </message>
    <message>
        <source>Codex comes with paid ChatGPT plans such as Plus and Pro. Sign up at %1.</source>
        <translation>Codex ist in kostenpflichtigen ChatGPT-Tarifen wie Plus und Pro enthalten. Registrieren Sie sich unter %1.</translation>
    </message>
    <message>
        <source>Or use an API key</source>
        <translation>Oder einen API-Schlüssel verwenden</translation>
    </message>
    <message>
        <source>Without a plan, create an API key with a payment method at %1. This takes a little more setup.</source>
        <translation>Ohne Tarif erstellen Sie unter %1 einen API-Schlüssel mit einer Zahlungsmethode. Das erfordert etwas mehr Einrichtung.</translation>
    </message>
    <message>
        <source>Install Codex</source>
        <translation>Codex installieren</translation>
    </message>
    <message>
        <source>On first launch, choose &quot;Sign in with ChatGPT&quot;; your browser will open to authenticate.</source>
        <translation>Wählen Sie beim ersten Start „Sign in with ChatGPT“; Ihr Browser öffnet sich dann zur Anmeldung.</translation>
    </message>
    <message>
        <source>Start interactive session</source>
        <translation>Interaktive Sitzung starten</translation>
    </message>
    <message>
        <source>Show all options</source>
        <translation>Alle Optionen anzeigen</translation>
    </message>
    <message>
        <source>Quick task mode</source>
        <translation>Modus für schnelle Aufgaben</translation>
    </message>
    <message>
        <source>Initialize project settings</source>
        <translation>Projekteinstellungen anlegen</translation>
    </message>
    <message>
        <source>Quick question</source>
        <translation>Schnelle Frage</translation>
    </message>
    <message>
        <source>Quick task</source>
        <translation>Schnelle Aufgabe</translation>
    </message>
    <message>
        <source>%1 needs Node.js %2 or newer.</source>
        <translation>%1 benötigt Node.js %2 oder neuer.</translation>
    </message>
    <message>
        <source>We&apos;ll install the CLI tool on your computer.</source>
        <translation>Wir installieren das CLI-Tool auf Ihrem Computer.</translation>
    </message>
    <message>
        <source>We&apos;ll install the CLI tool on your Mac.</source>
        <translation>Wir installieren das CLI-Tool auf Ihrem Mac.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Sets up Claude Code, Gemini CLI or Codex on this computer. Without options it opens its window; a second launch brings the open window to the front.</source>
        <translation>Richtet Claude Code, Gemini CLI oder Codex auf diesem Computer ein. Ohne Optionen öffnet sich das Fenster; ein zweiter Start holt das geöffnete Fenster nach vorne.</translation>
    </message>
    <message>
        <source>Run &quot;%1 --help&quot; to see the options.</source>
        <translation>Führen Sie „%1 --help“ aus, um die Optionen zu sehen.</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;: Quillforge takes no files.</source>
        <translation>Unerwartetes Argument „%1“: Quillforge öffnet keine Dateien.</translation>
    </message>
</context>
<context>
    <name>Diagnosis</name>
    <message>
        <source>Your computer could not reach the internet. Check that you are online, then try again.</source>
        <translation>Ihr Computer konnte keine Verbindung zum Internet herstellen. Prüfen Sie, ob Sie online sind, und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>The server could not be reached. Check that you are online, then try again.</source>
        <translation>Der Server war nicht erreichbar. Prüfen Sie, ob Sie online sind, und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>The connection timed out. Your internet may be slow or down: try again in a moment.</source>
        <translation>Zeitüberschreitung bei der Verbindung. Ihre Internetverbindung ist möglicherweise langsam oder unterbrochen: Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>No secure connection to the server could be made. A proxy or security software on this network may be in the way: try another network, or ask whoever runs this one.</source>
        <translation>Es konnte keine sichere Verbindung zum Server hergestellt werden. Ein Proxy oder eine Sicherheitssoftware in diesem Netzwerk ist möglicherweise im Weg: Versuchen Sie ein anderes Netzwerk oder fragen Sie die Person, die dieses Netzwerk betreut.</translation>
    </message>
    <message>
        <source>Your user may not change a folder the installation needs. The log names it: make sure it belongs to you, then try again.</source>
        <translation>Ihr Benutzer darf einen Ordner, den die Installation braucht, nicht ändern. Das Protokoll nennt den Ordner: Stellen Sie sicher, dass er Ihnen gehört, und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>Your disk is full. Free up some space, then try again.</source>
        <translation>Ihre Festplatte ist voll. Geben Sie etwas Speicherplatz frei und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>What was asked for is not on the server right now. Try again later.</source>
        <translation>Das Angeforderte ist gerade nicht auf dem Server verfügbar. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Your Node.js is too old for this tool. Update Node.js (or remove the old one so a new one is installed), then try again.</source>
        <translation>Ihr Node.js ist zu alt für dieses Tool. Aktualisieren Sie Node.js (oder entfernen Sie die alte Version, damit eine neue installiert wird) und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>The download was cut off before it was complete. Try again.</source>
        <translation>Der Download wurde unterbrochen, bevor er vollständig war. Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>npm could not write to its folders, which usually happens after an earlier “sudo npm”. Try Again uses a private npm cache for Quillforge and installs %1 into your own ~/.local folder.</source>
        <translation>npm konnte nicht in seine Ordner schreiben. Das passiert meist nach einem früheren „sudo npm“. „Erneut versuchen“ verwendet einen eigenen npm-Cache für Quillforge und installiert %1 in Ihren eigenen Ordner ~/.local.</translation>
    </message>
    <message>
        <source>npm could not write to its folders, which usually happens after an earlier “sudo npm”. Try Again uses a private npm cache for Quillforge.</source>
        <translation>npm konnte nicht in seine Ordner schreiben. Das passiert meist nach einem früheren „sudo npm“. „Erneut versuchen“ verwendet einen eigenen npm-Cache für Quillforge.</translation>
    </message>
    <message>
        <source>%1 was not found on the npm registry. Its maker may have moved it; the log has the details.</source>
        <translation>%1 wurde in der npm-Registry nicht gefunden. Möglicherweise hat der Anbieter es verschoben; Details stehen im Protokoll.</translation>
    </message>
    <message>
        <source>Something went wrong. The log has the details.</source>
        <translation>Etwas ist schiefgegangen. Details stehen im Protokoll.</translation>
    </message>
    <message>
        <source>Something went wrong. The last message was: “%1”. The log has the details.</source>
        <translation>Etwas ist schiefgegangen. Die letzte Meldung war: „%1“. Details stehen im Protokoll.</translation>
    </message>
</context>
<context>
    <name>InstallationError</name>
    <message>
        <source>Installation completed but the tool could not be verified. Please try again.</source>
        <translation>Die Installation wurde abgeschlossen, aber das Tool konnte nicht überprüft werden. Bitte versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Failed to install Node.js. Please install it manually from %1</source>
        <translation>Node.js konnte nicht installiert werden. Bitte installieren Sie es manuell von %1</translation>
    </message>
    <message>
        <source>Uninstall completed but the tool is still detected. Manual removal may be required.</source>
        <translation>Die Deinstallation wurde abgeschlossen, aber das Tool wird noch erkannt. Möglicherweise muss es manuell entfernt werden.</translation>
    </message>
    <message>
        <source>Automatic uninstall is not available. Please follow the manual instructions above.</source>
        <translation>Eine automatische Deinstallation ist nicht verfügbar. Bitte folgen Sie der Anleitung oben.</translation>
    </message>
    <message>
        <source>The ~/Developer folder contains files. Please remove your projects first if you want to delete it.</source>
        <translation>Der Ordner ~/Developer enthält Dateien. Bitte entfernen Sie zuerst Ihre Projekte, wenn Sie ihn löschen möchten.</translation>
    </message>
    <message>
        <source>Git is required but not found. Please install it by running: %1</source>
        <translation>Git wird benötigt, wurde aber nicht gefunden. Bitte installieren Sie es mit diesem Befehl: %1</translation>
    </message>
    <message>
        <source>Git is required but not found. Please install Xcode Command Line Tools by running: xcode-select --install</source>
        <translation>Git wird benötigt, wurde aber nicht gefunden. Bitte installieren Sie die Xcode Command Line Tools mit diesem Befehl: xcode-select --install</translation>
    </message>
</context>
<context>
    <name>InstallationView</name>
    <message>
        <source>Good to know</source>
        <translation>Gut zu wissen</translation>
    </message>
</context>
<context>
    <name>NodeInstaller</name>
    <message>
        <source>The installation of Node.js through Homebrew</source>
        <translation>Die Installation von Node.js über Homebrew</translation>
    </message>
    <message>
        <source>Node.js publishes no release for this computer&apos;s processor. Please install it manually from nodejs.org</source>
        <translation>Für den Prozessor dieses Computers gibt es keine Node.js-Version. Bitte installieren Sie es manuell von nodejs.org</translation>
    </message>
    <message>
        <source>Could not download the list of Node.js releases. %1</source>
        <translation>Die Liste der Node.js-Versionen konnte nicht geladen werden. %1</translation>
    </message>
    <message>
        <source>No long-term support release of Node.js for %1 was found at %2.</source>
        <translation>Unter %2 wurde keine Node.js-Version mit Langzeitunterstützung (LTS) für %1 gefunden.</translation>
    </message>
    <message>
        <source>Could not make a folder for the Node.js download: %1</source>
        <translation>Für den Node.js-Download konnte kein Ordner erstellt werden: %1</translation>
    </message>
    <message>
        <source>The download of %1</source>
        <translation>Der Download von %1</translation>
    </message>
    <message>
        <source>Could not download %1. %2</source>
        <translation>%1 konnte nicht geladen werden. %2</translation>
    </message>
    <message>
        <source>Could not download the checksums of Node.js %1. %2</source>
        <translation>Die Prüfsummen von Node.js %1 konnten nicht geladen werden. %2</translation>
    </message>
    <message>
        <source>The checksum list of Node.js %1 does not name %2, so nothing was installed.</source>
        <translation>Die Prüfsummenliste von Node.js %1 enthält %2 nicht, daher wurde nichts installiert.</translation>
    </message>
    <message>
        <source>The Node.js download does not match its published checksum, so nothing was installed. Please try again.</source>
        <translation>Der Node.js-Download stimmt nicht mit seiner veröffentlichten Prüfsumme überein, daher wurde nichts installiert. Bitte versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Unpacking Node.js %1</source>
        <translation>Das Entpacken von Node.js %1</translation>
    </message>
    <message>
        <source>Could not unpack Node.js %1: %2</source>
        <translation>Node.js %1 konnte nicht entpackt werden: %2</translation>
    </message>
    <message>
        <source>Node.js was installed, but no Node.js is found on the search path. %1</source>
        <translation>Node.js wurde installiert, aber im Suchpfad wird kein Node.js gefunden. %1</translation>
    </message>
    <message>
        <source>Node.js was installed, but the Node.js found first is %1 in %2. %3</source>
        <translation>Node.js wurde installiert, aber zuerst wird Node.js %1 in %2 gefunden. %3</translation>
    </message>
    <message>
        <source>Node.js %1 was installed in %2, but Node.js %3 in %4 comes first on the search path. %5 Remove the older Node.js, or put %2 before %4 in your PATH.</source>
        <translation>Node.js %1 wurde in %2 installiert, aber Node.js %3 in %4 steht im Suchpfad weiter vorne. %5 Entfernen Sie das ältere Node.js oder setzen Sie in Ihrem PATH %2 vor %4.</translation>
    </message>
</context>
<context>
    <name>ProfileWriter</name>
    <message>
        <source>it is not an ordinary file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>another change to it did not finish; try again</source>
        <translation>eine andere Änderung daran wurde nicht abgeschlossen; versuchen Sie es erneut</translation>
    </message>
    <message>
        <source>Move it aside so an ordinary file can take its place, then try again.</source>
        <translation>Verschieben Sie es an einen anderen Ort, damit dort eine gewöhnliche Datei entstehen kann, und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>Make sure the file belongs to you and may be changed, then try again.</source>
        <translation>Stellen Sie sicher, dass die Datei Ihnen gehört und geändert werden darf, und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>Your disk is full: free up some space, then try again.</source>
        <translation>Ihre Festplatte ist voll: Geben Sie etwas Speicherplatz frei und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>The disk it is on cannot be changed right now.</source>
        <translation>Das Laufwerk, auf dem sie liegt, kann gerade nicht verändert werden.</translation>
    </message>
    <message>
        <source>The file was left as it was; try again.</source>
        <translation>Die Datei wurde nicht verändert; versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Could not save the API key to %1</source>
        <translation>Der API-Schlüssel konnte nicht in %1 gespeichert werden</translation>
    </message>
    <message>
        <source>The API key is longer than %1 characters, much longer than any real key. Copy only the key and paste it again.</source>
        <translation>Der API-Schlüssel ist länger als %1 Zeichen, viel länger als jeder echte Schlüssel. Kopieren Sie nur den Schlüssel und fügen Sie ihn erneut ein.</translation>
    </message>
    <message>
        <source>The API key contains a line break. Copy the key again and paste it as one line.</source>
        <translation>Der API-Schlüssel enthält einen Zeilenumbruch. Kopieren Sie den Schlüssel erneut und fügen Sie ihn als eine Zeile ein.</translation>
    </message>
    <message>
        <source>The API key contains an invisible control character. Copy the key again and paste it.</source>
        <translation>Der API-Schlüssel enthält ein unsichtbares Steuerzeichen. Kopieren Sie den Schlüssel erneut und fügen Sie ihn ein.</translation>
    </message>
    <message>
        <source>The API key contains a space. Copy only the key and paste it again.</source>
        <translation>Der API-Schlüssel enthält ein Leerzeichen. Kopieren Sie nur den Schlüssel und fügen Sie ihn erneut ein.</translation>
    </message>
    <message>
        <source>Could not add ~/.local/bin to the search path in %1</source>
        <translation>~/.local/bin konnte nicht zum Suchpfad in %1 hinzugefügt werden</translation>
    </message>
</context>
<context>
    <name>SearchPathFix</name>
    <message>
        <source>A new terminal window will not find %1 yet: your shell does not read %2. Add this line to your shell&apos;s start-up file, then open a new window: %3</source>
        <translation>Ein neues Terminalfenster findet %1 noch nicht: Ihre Shell liest %2 nicht. Fügen Sie diese Zeile zur Startdatei Ihrer Shell hinzu und öffnen Sie dann ein neues Fenster: %3</translation>
    </message>
</context>
<context>
    <name>ServiceError</name>
    <message>
        <source>The password dialog was cancelled, so %1 was not removed.</source>
        <translation>Der Passwortdialog wurde abgebrochen, daher wurde %1 nicht entfernt.</translation>
    </message>
    <message>
        <source>The password dialog was cancelled, so %1 was not updated.</source>
        <translation>Der Passwortdialog wurde abgebrochen, daher wurde %1 nicht aktualisiert.</translation>
    </message>
</context>
<context>
    <name>SetupStepStatus</name>
    <message>
        <source>Pending</source>
        <translation>Ausstehend</translation>
    </message>
    <message>
        <source>In progress...</source>
        <translation>Wird ausgeführt …</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Übersprungen</translation>
    </message>
</context>
<context>
    <name>SetupStepType</name>
    <message>
        <source>Create ~/Developer folder</source>
        <translation>Ordner ~/Developer erstellen</translation>
    </message>
    <message>
        <source>Check for Git</source>
        <translation>Git prüfen</translation>
    </message>
    <message>
        <source>Install Node.js</source>
        <translation>Node.js installieren</translation>
    </message>
    <message>
        <source>Install tool</source>
        <translation>Tool installieren</translation>
    </message>
</context>
<context>
    <name>ShellError</name>
    <message>
        <source>1 minute</source>
        <translation>1 Minute</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 Minuten</translation>
    </message>
    <message>
        <source>1 second</source>
        <translation>1 Sekunde</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 Sekunden</translation>
    </message>
    <message>
        <source>[earlier output cut: the last %1 characters follow]</source>
        <translation>[frühere Ausgabe gekürzt: es folgen die letzten %1 Zeichen]</translation>
    </message>
    <message>
        <source>The command did not finish within %1 and was stopped.</source>
        <translation>Der Befehl wurde nicht innerhalb von %1 beendet und wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The command wrote more than %1 MB of output and was stopped.</source>
        <translation>Der Befehl hat mehr als %1 MB ausgegeben und wurde abgebrochen.</translation>
    </message>
    <message>
        <source>%1 made no progress for %2 and was stopped.</source>
        <translation>%1 kam %2 lang nicht voran und wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The command showed no progress for %1 and was stopped.</source>
        <translation>Der Befehl kam %1 lang nicht voran und wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The command was cancelled.</source>
        <translation>Der Befehl wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Command failed with exit code %1: %2</source>
        <translation>Befehl mit Exit-Code %1 fehlgeschlagen: %2</translation>
    </message>
    <message>
        <source>Process error: %1</source>
        <translation>Prozessfehler: %1</translation>
    </message>
</context>
<context>
    <name>StagedInstall</name>
    <message>
        <source>a file is where a folder belongs</source>
        <translation>an der Stelle eines Ordners liegt eine Datei</translation>
    </message>
    <message>
        <source>a folder is where a file belongs</source>
        <translation>an der Stelle einer Datei liegt ein Ordner</translation>
    </message>
    <message>
        <source>Could not make the folder %1: %2</source>
        <translation>Der Ordner %1 konnte nicht erstellt werden: %2</translation>
    </message>
    <message>
        <source>Could not prepare %1 for the installation: %2</source>
        <translation>%1 konnte nicht für die Installation vorbereitet werden: %2</translation>
    </message>
    <message>
        <source>Could not install %1: %2</source>
        <translation>%1 konnte nicht installiert werden: %2</translation>
    </message>
</context>
<context>
    <name>SupportTools</name>
    <message>
        <source>Only needed for Gemini or Codex</source>
        <translation>Nur für Gemini oder Codex nötig</translation>
    </message>
    <message>
        <source>Developer Folder</source>
        <translation>Developer-Ordner</translation>
    </message>
    <message>
        <source>Where your projects live</source>
        <translation>Hier liegen Ihre Projekte</translation>
    </message>
    <message>
        <source>This Node.js (%1) was installed by another program. Remove it the way it was installed.</source>
        <translation>Dieses Node.js (%1) wurde von einem anderen Programm installiert. Entfernen Sie es auf dieselbe Weise, wie es installiert wurde.</translation>
    </message>
    <message>
        <source>The removal of %1</source>
        <translation>Das Entfernen von %1</translation>
    </message>
    <message>
        <source>%1 is still installed at %2: its removal did not finish. The output above says why.</source>
        <translation>%1 ist noch unter %2 installiert: Das Entfernen wurde nicht abgeschlossen. Die Ausgabe oben nennt den Grund.</translation>
    </message>
</context>
<context>
    <name>SystemDetector</name>
    <message>
        <source>%1 not installed</source>
        <translation>%1 nicht installiert</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Nicht installiert</translation>
    </message>
    <message>
        <source>%1 (needs %2 or newer)</source>
        <translation>%1 (benötigt %2 oder neuer)</translation>
    </message>
    <message>
        <source>%1 – no longer receives security fixes</source>
        <translation>%1 – erhält keine Sicherheitsupdates mehr</translation>
    </message>
    <message>
        <source>%1 MB available</source>
        <translation>%1 MB verfügbar</translation>
    </message>
    <message>
        <source>%1 MB free, %2 MB needed</source>
        <translation>%1 MB frei, %2 MB benötigt</translation>
    </message>
</context>
<context>
    <name>SystemRequirement</name>
    <message>
        <source>Node.js</source>
        <translation>Node.js</translation>
    </message>
    <message>
        <source>1GB disk space</source>
        <translation>1 GB Speicherplatz</translation>
    </message>
    <message>
        <source>Git</source>
        <translation>Git</translation>
    </message>
    <message>
        <source>Node.js is a JavaScript runtime that some AI tools use to run. It&apos;s a standard development tool used by millions of developers.</source>
        <translation>Node.js ist eine JavaScript-Laufzeitumgebung, mit der manche KI-Tools laufen. Es ist ein verbreitetes Entwicklungstool, das Millionen von Entwicklern nutzen.</translation>
    </message>
    <message>
        <source>Git keeps track of the changes in your projects. The AI tools use it to see and undo what they change.</source>
        <translation>Git verfolgt die Änderungen in Ihren Projekten. Die KI-Tools nutzen es, um ihre eigenen Änderungen zu sehen und rückgängig zu machen.</translation>
    </message>
    <message>
        <source>Free up space by emptying Trash or removing unused apps</source>
        <translation>Geben Sie Speicherplatz frei, indem Sie den Papierkorb leeren oder nicht benötigte Apps entfernen</translation>
    </message>
    <message>
        <source>64-bit Linux</source>
        <translation>64-Bit-Linux</translation>
    </message>
    <message>
        <source>Your computer needs to be running a 64-bit Linux system. Works on both Intel/AMD and ARM processors.</source>
        <translation>Auf Ihrem Computer muss ein 64-Bit-Linux-System laufen. Funktioniert mit Intel/AMD- und ARM-Prozessoren.</translation>
    </message>
    <message>
        <source>Install the 64-bit edition of your Linux distribution</source>
        <translation>Installieren Sie die 64-Bit-Version Ihrer Linux-Distribution</translation>
    </message>
    <message>
        <source>The AI assistant and its dependencies need about 1GB of free space on your computer. This is a one-time installation.</source>
        <translation>Der KI-Assistent und seine Abhängigkeiten benötigen etwa 1 GB freien Speicherplatz auf Ihrem Computer. Die Installation ist einmalig.</translation>
    </message>
    <message>
        <source>Install manually: download it from %1 (or use your system&apos;s package manager)</source>
        <translation>Manuell installieren: Laden Sie es von %1 herunter (oder verwenden Sie die Paketverwaltung Ihres Systems)</translation>
    </message>
    <message>
        <source>macOS 14 or later</source>
        <translation>macOS 14 oder neuer</translation>
    </message>
    <message>
        <source>Your Mac needs to be running macOS 14 (Sonoma) or later. Works on both Intel and Apple Silicon.</source>
        <translation>Auf Ihrem Mac muss macOS 14 (Sonoma) oder neuer laufen. Funktioniert mit Intel-Prozessoren und Apple Silicon.</translation>
    </message>
    <message>
        <source>Update your Mac: Apple Menu → System Settings → General → Software Update</source>
        <translation>Aktualisieren Sie Ihren Mac: Apple-Menü → Systemeinstellungen → Allgemein → Softwareupdate</translation>
    </message>
    <message>
        <source>The AI assistant and its dependencies need about 1GB of free space on your Mac. This is a one-time installation.</source>
        <translation>Der KI-Assistent und seine Abhängigkeiten benötigen etwa 1 GB freien Speicherplatz auf Ihrem Mac. Die Installation ist einmalig.</translation>
    </message>
    <message>
        <source>Install manually: brew install node (or download from %1)</source>
        <translation>Manuell installieren: brew install node (oder von %1 herunterladen)</translation>
    </message>
</context>
<context>
    <name>SystemTool</name>
    <message>
        <source>Open your file manager to manage this folder</source>
        <translation>Öffnen Sie Ihren Dateimanager, um diesen Ordner zu verwalten</translation>
    </message>
    <message>
        <source>Git &amp; Build Tools</source>
        <translation>Git &amp; Build-Tools</translation>
    </message>
    <message>
        <source>Provides Git and build tools</source>
        <translation>Stellt Git und Build-Tools bereit</translation>
    </message>
    <message>
        <source>Use your system&apos;s package manager to remove Git</source>
        <translation>Entfernen Sie Git über die Paketverwaltung Ihres Systems</translation>
    </message>
    <message>
        <source>Open Finder to manage this folder</source>
        <translation>Öffnen Sie den Finder, um diesen Ordner zu verwalten</translation>
    </message>
    <message>
        <source>Xcode CLI Tools</source>
        <translation>Xcode CLI Tools</translation>
    </message>
</context>
<context>
    <name>SystemToolAction</name>
    <message>
        <source>The folder could not be shown</source>
        <translation>Der Ordner konnte nicht angezeigt werden</translation>
    </message>
    <message>
        <source>No file manager answered. Your projects folder is here:</source>
        <translation>Kein Dateimanager hat reagiert. Ihr Projektordner befindet sich hier:</translation>
    </message>
    <message>
        <source>The installer could not be started</source>
        <translation>Das Installationsprogramm konnte nicht gestartet werden</translation>
    </message>
    <message>
        <source>Open a terminal yourself and type this line:</source>
        <translation>Öffnen Sie selbst ein Terminal und geben Sie diese Zeile ein:</translation>
    </message>
</context>
<context>
    <name>TerminalLaunchedView</name>
    <message>
        <source>%1 launched in a new terminal window</source>
        <translation>%1 wurde in einem neuen Terminalfenster gestartet</translation>
    </message>
    <message>
        <source>Switch to the terminal window to start using %1</source>
        <translation>Wechseln Sie zum Terminalfenster, um %1 zu verwenden</translation>
    </message>
    <message>
        <source>%1 launched in Terminal</source>
        <translation>%1 wurde im Terminal gestartet</translation>
    </message>
    <message>
        <source>Switch to Terminal.app to start using %1</source>
        <translation>Wechseln Sie zum Terminal, um %1 zu verwenden</translation>
    </message>
</context>
<context>
    <name>TerminalLauncher</name>
    <message>
        <source>Quillforge is not allowed to control Terminal</source>
        <translation>Quillforge darf das Terminal nicht steuern</translation>
    </message>
    <message>
        <source>To let it open Terminal for you, turn on Terminal under Quillforge in System Settings &gt; Privacy &amp; Security &gt; Automation. Or open Terminal yourself and type this line:</source>
        <translation>Damit Quillforge das Terminal für Sie öffnen kann, aktivieren Sie in Systemeinstellungen &gt; Datenschutz &amp; Sicherheit &gt; Automation unter Quillforge den Eintrag „Terminal“. Oder öffnen Sie das Terminal selbst und geben Sie diese Zeile ein:</translation>
    </message>
</context>
<context>
    <name>ToolInstaller</name>
    <message>
        <source>The installation was stopped. Node.js and %1, installed before that, stay.</source>
        <translation>Die Installation wurde abgebrochen. Node.js und %1 wurden davor installiert und bleiben erhalten.</translation>
    </message>
    <message>
        <source>The installation was stopped. %1, installed before that, stays.</source>
        <translation>Die Installation wurde abgebrochen. %1 wurde davor installiert und bleibt erhalten.</translation>
    </message>
    <message>
        <source>The installation was stopped. Node.js, installed before that, stays.</source>
        <translation>Die Installation wurde abgebrochen. Node.js wurde davor installiert und bleibt erhalten.</translation>
    </message>
    <message>
        <source>The installation was stopped. Nothing was changed.</source>
        <translation>Die Installation wurde abgebrochen. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>An older Node.js (%1 in %2) is found before the one just installed (%3). %4 works with it; to use the new one, remove the older Node.js.</source>
        <translation>Ein älteres Node.js (%1 in %2) wird vor dem gerade installierten (%3) gefunden. %4 funktioniert damit; um das neue zu verwenden, entfernen Sie das ältere Node.js.</translation>
    </message>
    <message>
        <source>npm is set to refuse install scripts it was not told to allow (strict-allow-scripts), so parts of %1 may be missing. If it does not start, run &quot;npm config delete strict-allow-scripts&quot; in a terminal window and install it again.</source>
        <translation>npm ist so eingestellt, dass es nicht ausdrücklich erlaubte Installationsskripte ablehnt (strict-allow-scripts), daher fehlen möglicherweise Teile von %1. Falls es nicht startet, führen Sie in einem Terminalfenster „npm config delete strict-allow-scripts“ aus und installieren Sie es erneut.</translation>
    </message>
    <message>
        <source>The installation of %1</source>
        <translation>Die Installation von %1</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Already exists</source>
        <translation>Bereits vorhanden</translation>
    </message>
    <message>
        <source>Could not create</source>
        <translation>Konnte nicht erstellt werden</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>Verification failed</source>
        <translation>Überprüfung fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>ToolRemover</name>
    <message>
        <source>The removal was stopped, and %1 is still found. Uninstall again to remove what is left of it.</source>
        <translation>Das Entfernen wurde abgebrochen und %1 wird noch gefunden. Deinstallieren Sie es erneut, um die Reste zu entfernen.</translation>
    </message>
    <message>
        <source>The removal was stopped, but %1 was already removed.</source>
        <translation>Das Entfernen wurde abgebrochen, aber %1 war bereits entfernt.</translation>
    </message>
    <message>
        <source>The removal of %1</source>
        <translation>Das Entfernen von %1</translation>
    </message>
</context>
<context>
    <name>ToolUpdater</name>
    <message>
        <source>The update was stopped, and %1 no longer starts. Install it again from the dashboard.</source>
        <translation>Das Update wurde abgebrochen und %1 startet nicht mehr. Installieren Sie es über die Übersicht erneut.</translation>
    </message>
    <message>
        <source>The update was stopped, but %1 %2 was already in place and starts.</source>
        <translation>Das Update wurde abgebrochen, aber %1 %2 war bereits installiert und startet.</translation>
    </message>
    <message>
        <source>The update was stopped. Node.js, installed before that, stays.</source>
        <translation>Das Update wurde abgebrochen. Node.js wurde davor installiert und bleibt erhalten.</translation>
    </message>
    <message>
        <source>The update was stopped. Nothing was changed.</source>
        <translation>Das Update wurde abgebrochen. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>%1 is not installed, so there is nothing to update.</source>
        <translation>%1 ist nicht installiert, daher gibt es nichts zu aktualisieren.</translation>
    </message>
    <message>
        <source>%1 in %2 was not installed with npm, so Quillforge cannot update it. Update it the way it was installed.</source>
        <translation>%1 in %2 wurde nicht mit npm installiert, daher kann Quillforge es nicht aktualisieren. Aktualisieren Sie es auf dieselbe Weise, wie es installiert wurde.</translation>
    </message>
    <message>
        <source>%1 does not start, so it cannot be updated. Install it again from the dashboard.</source>
        <translation>%1 startet nicht und kann daher nicht aktualisiert werden. Installieren Sie es über die Übersicht erneut.</translation>
    </message>
    <message>
        <source>The newest version of %1 could not be found out. Check that you are online, then try again.</source>
        <translation>Die neueste Version von %1 konnte nicht ermittelt werden. Prüfen Sie, ob Sie online sind, und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>%1 %2 needs Node.js %3 or newer, and no Node.js was found.</source>
        <translation>%1 %2 benötigt Node.js %3 oder neuer, aber es wurde kein Node.js gefunden.</translation>
    </message>
    <message>
        <source>The update of %1</source>
        <translation>Das Update von %1</translation>
    </message>
    <message>
        <source>The update of %1 finished, but %1 does not start now. Install it again from the dashboard.</source>
        <translation>Das Update von %1 ist abgeschlossen, aber %1 startet jetzt nicht. Installieren Sie es über die Übersicht erneut.</translation>
    </message>
    <message>
        <source>The update of %1 finished, but %1 still reports version %2, which still works.</source>
        <translation>Das Update von %1 ist abgeschlossen, aber %1 meldet noch Version %2, die weiterhin funktioniert.</translation>
    </message>
    <message>
        <source>%1 was not updated. %2 %1 %3 still works.</source>
        <translation>%1 wurde nicht aktualisiert. %2 %1 %3 funktioniert weiterhin.</translation>
    </message>
    <message>
        <source>%1 was not updated. %2 %1 %3 no longer starts: install it again from the dashboard.</source>
        <translation>%1 wurde nicht aktualisiert. %2 %1 %3 startet nicht mehr: Installieren Sie es über die Übersicht erneut.</translation>
    </message>
    <message>
        <source>Node.js was installed, but no Node.js is found on the search path, so %1 was not updated.</source>
        <translation>Node.js wurde installiert, aber im Suchpfad wird kein Node.js gefunden, daher wurde %1 nicht aktualisiert.</translation>
    </message>
    <message>
        <source>Node.js was installed, but the Node.js found first is still %1 in %2, which is too old for the update of %3. Remove the older Node.js, then try again.</source>
        <translation>Node.js wurde installiert, aber zuerst wird noch Node.js %1 in %2 gefunden, das für das Update von %3 zu alt ist. Entfernen Sie das ältere Node.js und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>%1 %2 needs Node.js %3 or newer; this computer has %4.</source>
        <translation>%1 %2 benötigt Node.js %3 oder neuer; auf diesem Computer ist %4 installiert.</translation>
    </message>
    <message>
        <source>%1 %2 needs Node.js %3 or newer; this Mac has %4.</source>
        <translation>%1 %2 benötigt Node.js %3 oder neuer; auf diesem Mac ist %4 installiert.</translation>
    </message>
</context>
<context>
    <name>qf::AIToolCard</name>
    <message>
        <source>Installed</source>
        <translation>Installiert</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Update %1</source>
        <translation>%1 aktualisieren</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 öffnen</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>%1 installieren</translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation>Update verfügbar: %1</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Nicht installiert</translation>
    </message>
</context>
<context>
    <name>qf::APIKeyView</name>
    <message>
        <source>Set Up API Key</source>
        <translation>API-Schlüssel einrichten</translation>
    </message>
    <message>
        <source>Skip for Now</source>
        <translation>Vorerst überspringen</translation>
    </message>
    <message>
        <source>Save &amp; Continue</source>
        <translation>Speichern und weiter</translation>
    </message>
    <message>
        <source>Get your API key to start using %1</source>
        <translation>Holen Sie sich Ihren API-Schlüssel, um %1 zu verwenden</translation>
    </message>
    <message>
        <source>Step 1: Get your API key</source>
        <translation>Schritt 1: API-Schlüssel holen</translation>
    </message>
    <message>
        <source>Click the button below to open %1&apos;s console where you can create or copy your API key.</source>
        <translation>Klicken Sie auf die Taste unten, um die Konsole von %1 zu öffnen. Dort können Sie Ihren API-Schlüssel erstellen oder kopieren.</translation>
    </message>
    <message>
        <source>Open %1 Console</source>
        <translation>%1-Konsole öffnen</translation>
    </message>
    <message>
        <source>Step 2: Paste your API key</source>
        <translation>Schritt 2: API-Schlüssel einfügen</translation>
    </message>
    <message>
        <source>Paste your API key here</source>
        <translation>API-Schlüssel hier einfügen</translation>
    </message>
    <message>
        <source>API key</source>
        <translation>API-Schlüssel</translation>
    </message>
    <message>
        <source>This will be saved to your shell profile (%1) as %2</source>
        <translation>Er wird in Ihrem Shell-Profil (%1) als %2 gespeichert</translation>
    </message>
    <message>
        <source>Hide key</source>
        <translation>Schlüssel ausblenden</translation>
    </message>
    <message>
        <source>Show key</source>
        <translation>Schlüssel einblenden</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Wird gespeichert</translation>
    </message>
</context>
<context>
    <name>qf::AboutDialog</name>
    <message>
        <source>About Quillforge</source>
        <translation>Über Quillforge</translation>
    </message>
    <message>
        <source>Quillforge</source>
        <translation>Quillforge</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Gets an AI coding assistant running on your computer, no terminal experience needed.</source>
        <translation>Bringt einen KI-Programmierassistenten auf Ihren Computer, ganz ohne Terminal-Erfahrung.</translation>
    </message>
    <message>
        <source>Open the Quillforge website</source>
        <translation>Quillforge-Website öffnen</translation>
    </message>
    <message>
        <source>Copy Version Details</source>
        <translation>Versionsdetails kopieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Released under the MIT licence. Built with Qt %1, with icons from Phosphor (also MIT).</source>
        <translation>Veröffentlicht unter der MIT-Lizenz. Erstellt mit Qt %1, mit Symbolen von Phosphor (ebenfalls MIT).</translation>
    </message>
</context>
<context>
    <name>qf::AccountSetupStepRow</name>
    <message>
        <source>Step %1: %2</source>
        <translation>Schritt %1: %2</translation>
    </message>
</context>
<context>
    <name>qf::AccountSetupView</name>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Create Account</source>
        <translation>Konto erstellen</translation>
    </message>
    <message>
        <source>I Have an Account</source>
        <translation>Ich habe ein Konto</translation>
    </message>
    <message>
        <source>Before you install %1</source>
        <translation>Bevor Sie %1 installieren</translation>
    </message>
</context>
<context>
    <name>qf::CommandRow</name>
    <message>
        <source>Copy %1</source>
        <translation>%1 kopieren</translation>
    </message>
</context>
<context>
    <name>qf::CommonCommandsCard</name>
    <message>
        <source>Common Commands</source>
        <translation>Häufige Befehle</translation>
    </message>
</context>
<context>
    <name>qf::CompletionView</name>
    <message>
        <source>Ready to use</source>
        <translation>Einsatzbereit</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Open in Terminal</source>
        <translation>Im Terminal öffnen</translation>
    </message>
    <message>
        <source>You&apos;re All Set!</source>
        <translation>Alles bereit!</translation>
    </message>
    <message>
        <source>%1 is installed and ready to use</source>
        <translation>%1 ist installiert und einsatzbereit</translation>
    </message>
    <message>
        <source>Quick Start</source>
        <translation>Schnellstart</translation>
    </message>
    <message>
        <source>Open Terminal and try:</source>
        <translation>Öffnen Sie das Terminal und probieren Sie:</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>%1 kopieren</translation>
    </message>
    <message>
        <source>Your API key is saved: new terminal windows give it to %1 as %2.</source>
        <translation>Ihr API-Schlüssel ist gespeichert: Neue Terminalfenster übergeben ihn als %2 an %1.</translation>
    </message>
    <message>
        <source>Change API Key</source>
        <translation>API-Schlüssel ändern</translation>
    </message>
    <message>
        <source>Use an API Key Instead</source>
        <translation>Stattdessen API-Schlüssel verwenden</translation>
    </message>
</context>
<context>
    <name>qf::DashboardCard</name>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
</context>
<context>
    <name>qf::FirstProjectTipsCard</name>
    <message>
        <source>Your First Project</source>
        <translation>Ihr erstes Projekt</translation>
    </message>
    <message>
        <source>Create a project folder</source>
        <translation>Projektordner erstellen</translation>
    </message>
    <message>
        <source>Initialize git (optional but recommended)</source>
        <translation>git initialisieren (optional, aber empfohlen)</translation>
    </message>
    <message>
        <source>Start your AI assistant</source>
        <translation>KI-Assistenten starten</translation>
    </message>
    <message>
        <source>Try asking: &quot;Help me build a simple todo list app&quot;</source>
        <translation>Fragen Sie zum Beispiel: „Hilf mir, eine einfache To-do-Listen-App zu bauen“</translation>
    </message>
</context>
<context>
    <name>qf::FirstTimeWelcomeCard</name>
    <message>
        <source>Welcome to Quillforge!</source>
        <translation>Willkommen bei Quillforge!</translation>
    </message>
    <message>
        <source>Let&apos;s get you started with AI-powered coding</source>
        <translation>Starten Sie mit KI-gestütztem Programmieren</translation>
    </message>
    <message>
        <source>Set up your dev environment</source>
        <translation>Entwicklungsumgebung einrichten</translation>
    </message>
    <message>
        <source>Install %1 and create a project folder</source>
        <translation>%1 installieren und einen Projektordner erstellen</translation>
    </message>
    <message>
        <source>Install an AI assistant</source>
        <translation>KI-Assistenten installieren</translation>
    </message>
    <message>
        <source>Choose Claude Code, Gemini CLI, or Codex</source>
        <translation>Claude Code, Gemini CLI oder Codex auswählen</translation>
    </message>
    <message>
        <source>Start building</source>
        <translation>Loslegen</translation>
    </message>
    <message>
        <source>Describe what you want in plain English</source>
        <translation>Beschreiben Sie in einfachen Worten, was Sie möchten</translation>
    </message>
    <message>
        <source>**%1** is ready: press **Open** on its card to start it.</source>
        <translation>**%1** ist bereit: Klicken Sie auf der Karte auf **Öffnen**, um es zu starten.</translation>
    </message>
    <message>
        <source>New to this? **%1** is already set up, so start with **Claude Code**.</source>
        <translation>Neu hier? **%1** ist bereits eingerichtet, beginnen Sie also mit **Claude Code**.</translation>
    </message>
    <message>
        <source>New to this? Start with **%1**, then try **Claude Code**.</source>
        <translation>Neu hier? Beginnen Sie mit **%1** und probieren Sie dann **Claude Code**.</translation>
    </message>
</context>
<context>
    <name>qf::FlowScreen</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>qf::HomeView</name>
    <message>
        <source>Your AI Coding Assistants</source>
        <translation>Ihre KI-Programmierassistenten</translation>
    </message>
    <message>
        <source>About Quillforge</source>
        <translation>Über Quillforge</translation>
    </message>
    <message>
        <source>Quillforge</source>
        <translation>Quillforge</translation>
    </message>
    <message>
        <source>Checking your setup...</source>
        <translation>Ihre Einrichtung wird geprüft …</translation>
    </message>
    <message>
        <source>Development Environment</source>
        <translation>Entwicklungsumgebung</translation>
    </message>
    <message>
        <source>AI Assistants</source>
        <translation>KI-Assistenten</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Suche nach Updates …</translation>
    </message>
    <message>
        <source>Everything is up to date.</source>
        <translation>Alles ist auf dem neuesten Stand.</translation>
    </message>
    <message>
        <source>Could not check for updates. Check that you are online.</source>
        <translation>Es konnte nicht nach Updates gesucht werden. Prüfen Sie, ob Sie online sind.</translation>
    </message>
</context>
<context>
    <name>qf::InstallationController</name>
    <message>
        <source>Stopped</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>qf::InstallationView</name>
    <message>
        <source>Installation</source>
        <translation>Installation</translation>
    </message>
    <message>
        <source>Preparing your development environment...</source>
        <translation>Ihre Entwicklungsumgebung wird vorbereitet …</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Installation Failed</source>
        <translation>Installation fehlgeschlagen</translation>
    </message>
    <message>
        <source>Show Log File</source>
        <translation>Protokolldatei anzeigen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Installation Complete!</source>
        <translation>Installation abgeschlossen!</translation>
    </message>
    <message>
        <source>Setting up %1</source>
        <translation>%1 wird eingerichtet</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Ausgeklappt</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Eingeklappt</translation>
    </message>
    <message>
        <source>Installation Stopped</source>
        <translation>Installation abgebrochen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>The log file could not be shown</source>
        <translation>Die Protokolldatei konnte nicht angezeigt werden</translation>
    </message>
    <message>
        <source>No file manager answered. The log file is here:</source>
        <translation>Kein Dateimanager hat reagiert. Die Protokolldatei befindet sich hier:</translation>
    </message>
</context>
<context>
    <name>qf::MainWindow</name>
    <message>
        <source>About Quillforge</source>
        <translation>Über Quillforge</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>qf::OnboardingView</name>
    <message>
        <source>Quillforge</source>
        <translation>Quillforge</translation>
    </message>
    <message>
        <source>Welcome to Quillforge</source>
        <translation>Willkommen bei Quillforge</translation>
    </message>
    <message>
        <source>Get started with AI-powered coding in minutes</source>
        <translation>In wenigen Minuten mit KI-gestütztem Programmieren loslegen</translation>
    </message>
    <message>
        <source>AI Coding Assistants</source>
        <translation>KI-Programmierassistenten</translation>
    </message>
    <message>
        <source>Install Claude Code, Gemini CLI, or Codex with one click</source>
        <translation>Claude Code, Gemini CLI oder Codex mit einem Klick installieren</translation>
    </message>
    <message>
        <source>Automatic Setup</source>
        <translation>Automatische Einrichtung</translation>
    </message>
    <message>
        <source>We handle the dev environment so you can focus on building</source>
        <translation>Wir kümmern uns um die Entwicklungsumgebung, damit Sie sich aufs Entwickeln konzentrieren können</translation>
    </message>
    <message>
        <source>Beginner Friendly</source>
        <translation>Einsteigerfreundlich</translation>
    </message>
    <message>
        <source>No experience needed - just describe what you want to build</source>
        <translation>Keine Erfahrung nötig – beschreiben Sie einfach, was Sie entwickeln möchten</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Los geht’s</translation>
    </message>
</context>
<context>
    <name>qf::RemovalSheet</name>
    <message>
        <source>Uninstall %1</source>
        <translation>%1 deinstallieren</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Deinstallieren</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uninstall Complete</source>
        <translation>Deinstallation abgeschlossen</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>%1 deinstallieren?</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Eingeblendet</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Ausgeblendet</translation>
    </message>
</context>
<context>
    <name>qf::RequirementRow</name>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Will be installed for you</source>
        <translation>Wird für Sie installiert</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>Nicht genug Speicherplatz</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Nicht installiert</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>Nicht unterstützt</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>What is this?</source>
        <translation>Was ist das?</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>%1 installieren</translation>
    </message>
    <message>
        <source>Quillforge installs it for you as part of the setup.</source>
        <translation>Quillforge installiert es im Rahmen der Einrichtung für Sie.</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Ausgeklappt</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Eingeklappt</translation>
    </message>
</context>
<context>
    <name>qf::StepRow</name>
    <message>
        <source>Copy %1</source>
        <translation>%1 kopieren</translation>
    </message>
</context>
<context>
    <name>qf::SystemCheckView</name>
    <message>
        <source>System Check</source>
        <translation>Systemprüfung</translation>
    </message>
    <message>
        <source>Checking requirements for %1</source>
        <translation>Voraussetzungen für %1 werden geprüft</translation>
    </message>
    <message>
        <source>Checking system requirements...</source>
        <translation>Systemvoraussetzungen werden geprüft …</translation>
    </message>
    <message>
        <source>You&apos;re ready to use it in Terminal.</source>
        <translation>Sie können es sofort im Terminal verwenden.</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Erneut prüfen</translation>
    </message>
    <message>
        <source>The installer could not be started</source>
        <translation>Das Installationsprogramm konnte nicht gestartet werden</translation>
    </message>
    <message>
        <source>Open a terminal yourself and type this line:</source>
        <translation>Öffnen Sie selbst ein Terminal und geben Sie diese Zeile ein:</translation>
    </message>
    <message>
        <source>%1 is already installed!</source>
        <translation>%1 ist bereits installiert!</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Tool</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>Version: %1</translation>
    </message>
    <message>
        <source>Open Terminal</source>
        <translation>Terminal öffnen</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>Requirements Not Met</source>
        <translation>Voraussetzungen nicht erfüllt</translation>
    </message>
    <message>
        <source>Install is not available until this is fixed: %1.</source>
        <translation>Die Installation ist erst möglich, wenn dies behoben ist: %1.</translation>
    </message>
</context>
<context>
    <name>qf::SystemToolCard</name>
    <message>
        <source>Optional</source>
        <translation>Optional</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Nicht installiert</translation>
    </message>
    <message>
        <source>Installed for you with Gemini CLI or Codex</source>
        <translation>Wird mit Gemini CLI oder Codex für Sie installiert</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>Installiert</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>an action and the item it acts on</comment>
        <translation>%2 %1</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Erstellen</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
</context>
<context>
    <name>qf::SystemToolUninstallSheet</name>
    <message>
        <source>This will remove %1 from your system.</source>
        <translation>Dadurch wird %1 von Ihrem System entfernt.</translation>
    </message>
</context>
<context>
    <name>qf::TerminalLaunchedView</name>
    <message>
        <source>Open Terminal Again</source>
        <translation>Terminal erneut öffnen</translation>
    </message>
    <message>
        <source>Quick Tips</source>
        <translation>Kurztipps</translation>
    </message>
    <message>
        <source>Start %1 in a terminal</source>
        <translation>%1 in einem Terminal starten</translation>
    </message>
</context>
<context>
    <name>qf::TerminalScreenView</name>
    <message>
        <source>Back to Home</source>
        <translation>Zurück zur Übersicht</translation>
    </message>
    <message>
        <source>No tool selected</source>
        <translation>Kein Tool ausgewählt</translation>
    </message>
</context>
<context>
    <name>qf::ToolCard</name>
    <message>
        <source>by %1</source>
        <translation>von %1</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Mehr erfahren</translation>
    </message>
    <message>
        <source>Learn more about %1</source>
        <translation>Mehr über %1 erfahren</translation>
    </message>
</context>
<context>
    <name>qf::UpdateSheet</name>
    <message>
        <source>Update %1</source>
        <translation>%1 aktualisieren</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Install Node.js and Update</source>
        <translation>Node.js installieren und aktualisieren</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Update %1?</source>
        <translation>%1 aktualisieren?</translation>
    </message>
    <message>
        <source>%1 goes from version %2 to %3. You stay signed in, and your settings stay as they are.</source>
        <translation>%1 wird von Version %2 auf %3 aktualisiert. Sie bleiben angemeldet und Ihre Einstellungen bleiben unverändert.</translation>
    </message>
    <message>
        <source>%1 is updated to version %2. You stay signed in, and your settings stay as they are.</source>
        <translation>%1 wird auf Version %2 aktualisiert. Sie bleiben angemeldet und Ihre Einstellungen bleiben unverändert.</translation>
    </message>
    <message>
        <source>Updating %1...</source>
        <translation>%1 wird aktualisiert …</translation>
    </message>
    <message>
        <source>This usually takes less than a minute.</source>
        <translation>Das dauert meist weniger als eine Minute.</translation>
    </message>
    <message>
        <source>Update Complete</source>
        <translation>Update abgeschlossen</translation>
    </message>
    <message>
        <source>%1 %2 is installed and starts as before.</source>
        <translation>%1 %2 ist installiert und startet wie zuvor.</translation>
    </message>
    <message>
        <source>A Newer Node.js Is Needed</source>
        <translation>Ein neueres Node.js wird benötigt</translation>
    </message>
    <message>
        <source>Update Stopped</source>
        <translation>Update abgebrochen</translation>
    </message>
    <message>
        <source>Update Failed</source>
        <translation>Update fehlgeschlagen</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Eingeblendet</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Ausgeblendet</translation>
    </message>
</context>
<context>
    <name>qf::WelcomeView</name>
    <message>
        <source>Choose a Tool</source>
        <translation>Tool auswählen</translation>
    </message>
    <message>
        <source>Quillforge</source>
        <translation>Quillforge</translation>
    </message>
    <message>
        <source>Set up AI coding assistants the easy way</source>
        <translation>KI-Programmierassistenten ganz einfach einrichten</translation>
    </message>
    <message>
        <source>Choose a tool to install:</source>
        <translation>Wählen Sie ein Tool zum Installieren:</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>qf::WhatIsAICodingCard</name>
    <message>
        <source>New to AI Coding?</source>
        <translation>Neu beim Programmieren mit KI?</translation>
    </message>
    <message>
        <source>AI coding assistants are tools that help you write, understand, and debug code using artificial intelligence.</source>
        <translation>KI-Programmierassistenten sind Tools, die Ihnen mithilfe künstlicher Intelligenz helfen, Code zu schreiben, zu verstehen und zu debuggen.</translation>
    </message>
    <message>
        <source>Conversational</source>
        <translation>Im Gespräch</translation>
    </message>
    <message>
        <source>Describe what you want in plain English and the AI writes the code</source>
        <translation>Beschreiben Sie in einfachen Worten, was Sie möchten, und die KI schreibt den Code</translation>
    </message>
    <message>
        <source>Code Understanding</source>
        <translation>Code verstehen</translation>
    </message>
    <message>
        <source>Ask questions about any codebase and get clear explanations</source>
        <translation>Stellen Sie Fragen zu beliebigem Code und erhalten Sie klare Erklärungen</translation>
    </message>
    <message>
        <source>Debugging Help</source>
        <translation>Hilfe bei der Fehlersuche</translation>
    </message>
    <message>
        <source>Paste error messages and get solutions, not just explanations</source>
        <translation>Fügen Sie Fehlermeldungen ein und erhalten Sie Lösungen, nicht nur Erklärungen</translation>
    </message>
    <message>
        <source>Learning Partner</source>
        <translation>Lernpartner</translation>
    </message>
    <message>
        <source>Perfect for learning new languages or frameworks at your own pace</source>
        <translation>Ideal, um in Ihrem eigenen Tempo neue Sprachen oder Frameworks zu lernen</translation>
    </message>
    <message>
        <source>No prior coding experience? That&apos;s okay! AI assistants can help you learn as you build.</source>
        <translation>Noch keine Programmiererfahrung? Kein Problem! KI-Assistenten helfen Ihnen, beim Entwickeln zu lernen.</translation>
    </message>
</context>
<context>
    <name>qf::ui::ActivityIndicator</name>
    <message>
        <source>In progress</source>
        <translation>Wird ausgeführt</translation>
    </message>
</context>
<context>
    <name>qf::ui::CopiedToast</name>
    <message>
        <source>Copied to clipboard</source>
        <translation>In die Zwischenablage kopiert</translation>
    </message>
</context>
<context>
    <name>qf::ui::CopyButton</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy Log</source>
        <translation>Protokoll kopieren</translation>
    </message>
    <message>
        <source>Copy the whole log</source>
        <translation>Das gesamte Protokoll kopieren</translation>
    </message>
</context>
<context>
    <name>qf::ui::DisclosureCard</name>
    <message>
        <source>Expanded</source>
        <translation>Ausgeklappt</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Eingeklappt</translation>
    </message>
</context>
<context>
    <name>qf::ui::LogView</name>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
</context>
<context>
    <name>qf::ui::TerminalFallbackRow</name>
    <message>
        <source>No terminal window could be opened</source>
        <translation>Es konnte kein Terminalfenster geöffnet werden</translation>
    </message>
    <message>
        <source>Open a terminal yourself and type this line:</source>
        <translation>Öffnen Sie selbst ein Terminal und geben Sie diese Zeile ein:</translation>
    </message>
    <message>
        <source>Copy the line to type</source>
        <translation>Die einzugebende Zeile kopieren</translation>
    </message>
</context>
</TS>
