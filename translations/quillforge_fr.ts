<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>APIKeyStore</name>
    <message>
        <source>Your key is saved. %1 sets %2 from a command or another variable, so that line was left as it was; your key is on a new line after it, which is the one new terminal windows use.</source>
        <translation>Votre clé est enregistrée. %1 définit %2 à partir d’une commande ou d’une autre variable&#xa0;: cette ligne a donc été laissée telle quelle. Votre clé se trouve sur une nouvelle ligne juste après, celle qu’utilisent les nouvelles fenêtres de terminal.</translation>
    </message>
</context>
<context>
    <name>BoundedLog</name>
    <message>
        <source>Earlier output was cut here; the whole log is in the log file.</source>
        <translation>La sortie précédente a été coupée ici&#xa0;; le journal complet se trouve dans le fichier journal.</translation>
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
        <translation>Assistant de programmation IA d’Anthropic. Fonctionne dans votre terminal pour vous aider à écrire, déboguer et comprendre du code.</translation>
    </message>
    <message>
        <source>Requires an Anthropic account (free tier available)</source>
        <translation>Nécessite un compte Anthropic (offre gratuite disponible)</translation>
    </message>
    <message>
        <source>Free tier available, Pro plan for more usage</source>
        <translation>Offre gratuite disponible, forfait Pro pour un usage plus intensif</translation>
    </message>
    <message>
        <source>Sign in with your Anthropic account on first run.</source>
        <translation>Connectez-vous avec votre compte Anthropic au premier lancement.</translation>
    </message>
    <message>
        <source>Remove Claude Code and its configuration</source>
        <translation>Supprimer Claude Code et sa configuration</translation>
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
        <translation>L’IA Gemini de Google dans votre terminal. Idéal pour générer du code et répondre aux questions techniques.</translation>
    </message>
    <message>
        <source>Requires a Google account (you probably have one!)</source>
        <translation>Nécessite un compte Google (vous en avez sans doute déjà un&#xa0;!)</translation>
    </message>
    <message>
        <source>Free tier with generous limits</source>
        <translation>Offre gratuite aux limites généreuses</translation>
    </message>
    <message>
        <source>Sign in with your Google account on first run.</source>
        <translation>Connectez-vous avec votre compte Google au premier lancement.</translation>
    </message>
    <message>
        <source>Uninstall Gemini CLI via npm</source>
        <translation>Désinstaller Gemini CLI via npm</translation>
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
        <translation>Le modèle d’OpenAI spécialisé dans le code. Performant pour compléter et générer du code.</translation>
    </message>
    <message>
        <source>Requires a paid ChatGPT plan or an OpenAI API key</source>
        <translation>Nécessite un forfait ChatGPT payant ou une clé API OpenAI</translation>
    </message>
    <message>
        <source>Included with paid ChatGPT plans, or pay-as-you-go with an API key</source>
        <translation>Inclus dans les forfaits ChatGPT payants, ou paiement à l’usage avec une clé API</translation>
    </message>
    <message>
        <source>Sign in with ChatGPT on first run, or use an API key.</source>
        <translation>Connectez-vous avec ChatGPT au premier lancement, ou utilisez une clé API.</translation>
    </message>
    <message>
        <source>Uninstall Codex via npm</source>
        <translation>Désinstaller Codex via npm</translation>
    </message>
    <message>
        <source>Works directly in your project folder</source>
        <translation>Travaille directement dans votre dossier de projet</translation>
    </message>
    <message>
        <source>Can read, edit, and create files</source>
        <translation>Peut lire, modifier et créer des fichiers</translation>
    </message>
    <message>
        <source>Runs commands and tests for you</source>
        <translation>Exécute des commandes et des tests pour vous</translation>
    </message>
    <message>
        <source>Understands your entire codebase</source>
        <translation>Comprend l’ensemble de votre code</translation>
    </message>
    <message>
        <source>Powered by Google&apos;s Gemini models</source>
        <translation>Basé sur les modèles Gemini de Google</translation>
    </message>
    <message>
        <source>Great for code generation</source>
        <translation>Idéal pour générer du code</translation>
    </message>
    <message>
        <source>Helpful for technical explanations</source>
        <translation>Utile pour les explications techniques</translation>
    </message>
    <message>
        <source>Integrates with Google services</source>
        <translation>S’intègre aux services Google</translation>
    </message>
    <message>
        <source>Built on OpenAI&apos;s GPT models</source>
        <translation>Basé sur les modèles GPT d’OpenAI</translation>
    </message>
    <message>
        <source>Strong at code completion</source>
        <translation>Performant pour la complétion de code</translation>
    </message>
    <message>
        <source>Wide language support</source>
        <translation>Prend en charge de nombreux langages</translation>
    </message>
    <message>
        <source>Great for quick code generation</source>
        <translation>Idéal pour générer rapidement du code</translation>
    </message>
    <message>
        <source>On first launch, your browser will open to authenticate.</source>
        <translation>Au premier lancement, votre navigateur s’ouvrira pour vous authentifier.</translation>
    </message>
    <message>
        <source>Create an Anthropic account</source>
        <translation>Créer un compte Anthropic</translation>
    </message>
    <message>
        <source>Visit %1 and sign up with your email or Google account.</source>
        <translation>Rendez-vous sur %1 et inscrivez-vous avec votre adresse e-mail ou votre compte Google.</translation>
    </message>
    <message>
        <source>Choose a plan</source>
        <translation>Choisir un forfait</translation>
    </message>
    <message>
        <source>Start with the free tier or upgrade to Pro for more usage.</source>
        <translation>Commencez avec l’offre gratuite ou passez à Pro pour un usage plus intensif.</translation>
    </message>
    <message>
        <source>Install Claude Code</source>
        <translation>Installer Claude Code</translation>
    </message>
    <message>
        <source>Sign in from Terminal</source>
        <translation>Se connecter depuis Terminal</translation>
    </message>
    <message>
        <source>Use your Google account</source>
        <translation>Utiliser votre compte Google</translation>
    </message>
    <message>
        <source>If you have Gmail, you already have an account!</source>
        <translation>Si vous avez Gmail, vous avez déjà un compte&#xa0;!</translation>
    </message>
    <message>
        <source>Install Gemini CLI</source>
        <translation>Installer Gemini CLI</translation>
    </message>
    <message>
        <source>Sign in with Google</source>
        <translation>Se connecter avec Google</translation>
    </message>
    <message>
        <source>Use your ChatGPT plan</source>
        <translation>Utiliser votre forfait ChatGPT</translation>
    </message>
    <message>
        <source>Codex comes with paid ChatGPT plans such as Plus and Pro. Sign up at %1.</source>
        <translation>Codex est inclus dans les forfaits ChatGPT payants comme Plus et Pro. Inscrivez-vous sur %1.</translation>
    </message>
    <message>
        <source>Or use an API key</source>
        <translation>Ou utiliser une clé API</translation>
    </message>
    <message>
        <source>Without a plan, create an API key with a payment method at %1. This takes a little more setup.</source>
        <translation>Sans forfait, créez une clé API avec un moyen de paiement sur %1. La configuration est un peu plus longue.</translation>
    </message>
    <message>
        <source>Install Codex</source>
        <translation>Installer Codex</translation>
    </message>
    <message>
        <source>On first launch, choose &quot;Sign in with ChatGPT&quot;; your browser will open to authenticate.</source>
        <translation>Au premier lancement, choisissez «&#xa0;Sign in with ChatGPT&#xa0;»&#xa0;; votre navigateur s’ouvrira pour vous authentifier.</translation>
    </message>
    <message>
        <source>Start interactive session</source>
        <translation>Démarrer une session interactive</translation>
    </message>
    <message>
        <source>Show all options</source>
        <translation>Afficher toutes les options</translation>
    </message>
    <message>
        <source>Quick task mode</source>
        <translation>Mode tâche rapide</translation>
    </message>
    <message>
        <source>Initialize project settings</source>
        <translation>Initialiser les réglages du projet</translation>
    </message>
    <message>
        <source>Quick question</source>
        <translation>Question rapide</translation>
    </message>
    <message>
        <source>Quick task</source>
        <translation>Tâche rapide</translation>
    </message>
    <message>
        <source>%1 needs Node.js %2 or newer.</source>
        <translation>%1 nécessite Node.js %2 ou une version ultérieure.</translation>
    </message>
    <message>
        <source>We&apos;ll install the CLI tool on your computer.</source>
        <translation>Nous allons installer l’outil CLI sur votre ordinateur.</translation>
    </message>
    <message>
        <source>We&apos;ll install the CLI tool on your Mac.</source>
        <translation>Nous allons installer l’outil CLI sur votre Mac.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Sets up Claude Code, Gemini CLI or Codex on this computer. Without options it opens its window; a second launch brings the open window to the front.</source>
        <translation>Configure Claude Code, Gemini CLI ou Codex sur cet ordinateur. Sans option, ouvre sa fenêtre&#xa0;; un second lancement ramène la fenêtre ouverte au premier plan.</translation>
    </message>
    <message>
        <source>Run &quot;%1 --help&quot; to see the options.</source>
        <translation>Exécutez «&#xa0;%1 --help&#xa0;» pour voir les options.</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;: Quillforge takes no files.</source>
        <translation>Argument inattendu «&#xa0;%1&#xa0;»&#xa0;: Quillforge n’accepte aucun fichier.</translation>
    </message>
</context>
<context>
    <name>Diagnosis</name>
    <message>
        <source>Your computer could not reach the internet. Check that you are online, then try again.</source>
        <translation>Votre ordinateur n’a pas pu accéder à Internet. Vérifiez que vous êtes connecté, puis réessayez.</translation>
    </message>
    <message>
        <source>The server could not be reached. Check that you are online, then try again.</source>
        <translation>Le serveur est injoignable. Vérifiez que vous êtes connecté, puis réessayez.</translation>
    </message>
    <message>
        <source>The connection timed out. Your internet may be slow or down: try again in a moment.</source>
        <translation>Le délai de connexion a expiré. Votre connexion Internet est peut-être lente ou coupée&#xa0;: réessayez dans un instant.</translation>
    </message>
    <message>
        <source>No secure connection to the server could be made. A proxy or security software on this network may be in the way: try another network, or ask whoever runs this one.</source>
        <translation>Impossible d’établir une connexion sécurisée avec le serveur. Un proxy ou un logiciel de sécurité sur ce réseau bloque peut-être la connexion&#xa0;: essayez un autre réseau ou adressez-vous à la personne qui gère celui-ci.</translation>
    </message>
    <message>
        <source>Your user may not change a folder the installation needs. The log names it: make sure it belongs to you, then try again.</source>
        <translation>Votre utilisateur n’a pas le droit de modifier un dossier nécessaire à l’installation. Le journal indique lequel&#xa0;: assurez-vous qu’il vous appartient, puis réessayez.</translation>
    </message>
    <message>
        <source>Your disk is full. Free up some space, then try again.</source>
        <translation>Votre disque est plein. Libérez de l’espace, puis réessayez.</translation>
    </message>
    <message>
        <source>What was asked for is not on the server right now. Try again later.</source>
        <translation>L’élément demandé n’est pas disponible sur le serveur pour le moment. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Your Node.js is too old for this tool. Update Node.js (or remove the old one so a new one is installed), then try again.</source>
        <translation>Votre version de Node.js est trop ancienne pour cet outil. Mettez à jour Node.js (ou supprimez l’ancienne version pour qu’une nouvelle soit installée), puis réessayez.</translation>
    </message>
    <message>
        <source>The download was cut off before it was complete. Try again.</source>
        <translation>Le téléchargement a été interrompu avant la fin. Réessayez.</translation>
    </message>
    <message>
        <source>npm could not write to its folders, which usually happens after an earlier “sudo npm”. Try Again uses a private npm cache for Quillforge and installs %1 into your own ~/.local folder.</source>
        <translation>npm n’a pas pu écrire dans ses dossiers, ce qui arrive généralement après un «&#xa0;sudo npm&#xa0;» antérieur. «&#xa0;Réessayer&#xa0;» utilise un cache npm propre à Quillforge et installe %1 dans votre propre dossier ~/.local.</translation>
    </message>
    <message>
        <source>npm could not write to its folders, which usually happens after an earlier “sudo npm”. Try Again uses a private npm cache for Quillforge.</source>
        <translation>npm n’a pas pu écrire dans ses dossiers, ce qui arrive généralement après un «&#xa0;sudo npm&#xa0;» antérieur. «&#xa0;Réessayer&#xa0;» utilise un cache npm propre à Quillforge.</translation>
    </message>
    <message>
        <source>%1 was not found on the npm registry. Its maker may have moved it; the log has the details.</source>
        <translation>%1 est introuvable dans le registre npm. Son éditeur l’a peut-être déplacé&#xa0;; le journal contient les détails.</translation>
    </message>
    <message>
        <source>Something went wrong. The log has the details.</source>
        <translation>Un problème est survenu. Le journal contient les détails.</translation>
    </message>
    <message>
        <source>Something went wrong. The last message was: “%1”. The log has the details.</source>
        <translation>Un problème est survenu. Le dernier message était&#xa0;: «&#xa0;%1&#xa0;». Le journal contient les détails.</translation>
    </message>
</context>
<context>
    <name>InstallationError</name>
    <message>
        <source>Installation completed but the tool could not be verified. Please try again.</source>
        <translation>L’installation est terminée, mais l’outil n’a pas pu être vérifié. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>Failed to install Node.js. Please install it manually from %1</source>
        <translation>Impossible d’installer Node.js. Veuillez l’installer manuellement depuis %1</translation>
    </message>
    <message>
        <source>Uninstall completed but the tool is still detected. Manual removal may be required.</source>
        <translation>La désinstallation est terminée, mais l’outil est toujours détecté. Une suppression manuelle peut être nécessaire.</translation>
    </message>
    <message>
        <source>Automatic uninstall is not available. Please follow the manual instructions above.</source>
        <translation>La désinstallation automatique n’est pas disponible. Veuillez suivre les instructions manuelles ci-dessus.</translation>
    </message>
    <message>
        <source>The ~/Developer folder contains files. Please remove your projects first if you want to delete it.</source>
        <translation>Le dossier ~/Developer contient des fichiers. Supprimez d’abord vos projets si vous souhaitez le supprimer.</translation>
    </message>
    <message>
        <source>Git is required but not found. Please install it by running: %1</source>
        <translation>Git est nécessaire mais n’a pas été trouvé. Veuillez l’installer en exécutant&#xa0;: %1</translation>
    </message>
    <message>
        <source>Git is required but not found. Please install Xcode Command Line Tools by running: xcode-select --install</source>
        <translation>Git est nécessaire mais n’a pas été trouvé. Veuillez installer les Xcode Command Line Tools en exécutant&#xa0;: xcode-select --install</translation>
    </message>
</context>
<context>
    <name>InstallationView</name>
    <message>
        <source>Good to know</source>
        <translation>Bon à savoir</translation>
    </message>
</context>
<context>
    <name>NodeInstaller</name>
    <message>
        <source>The installation of Node.js through Homebrew</source>
        <translation>L’installation de Node.js via Homebrew</translation>
    </message>
    <message>
        <source>Node.js publishes no release for this computer&apos;s processor. Please install it manually from nodejs.org</source>
        <translation>Node.js ne publie aucune version pour le processeur de cet ordinateur. Veuillez l’installer manuellement depuis nodejs.org</translation>
    </message>
    <message>
        <source>Could not download the list of Node.js releases. %1</source>
        <translation>Impossible de télécharger la liste des versions de Node.js. %1</translation>
    </message>
    <message>
        <source>No long-term support release of Node.js for %1 was found at %2.</source>
        <translation>Aucune version de Node.js avec support à long terme (LTS) pour %1 n’a été trouvée sur %2.</translation>
    </message>
    <message>
        <source>Could not make a folder for the Node.js download: %1</source>
        <translation>Impossible de créer un dossier pour le téléchargement de Node.js&#xa0;: %1</translation>
    </message>
    <message>
        <source>The download of %1</source>
        <translation>Le téléchargement de %1</translation>
    </message>
    <message>
        <source>Could not download %1. %2</source>
        <translation>Impossible de télécharger %1. %2</translation>
    </message>
    <message>
        <source>Could not download the checksums of Node.js %1. %2</source>
        <translation>Impossible de télécharger les sommes de contrôle de Node.js %1. %2</translation>
    </message>
    <message>
        <source>The checksum list of Node.js %1 does not name %2, so nothing was installed.</source>
        <translation>La liste des sommes de contrôle de Node.js %1 ne mentionne pas %2&#xa0;: rien n’a donc été installé.</translation>
    </message>
    <message>
        <source>The Node.js download does not match its published checksum, so nothing was installed. Please try again.</source>
        <translation>Le téléchargement de Node.js ne correspond pas à sa somme de contrôle publiée&#xa0;: rien n’a donc été installé. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>Unpacking Node.js %1</source>
        <translation>La décompression de Node.js %1</translation>
    </message>
    <message>
        <source>Could not unpack Node.js %1: %2</source>
        <translation>Impossible de décompresser Node.js %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Node.js was installed, but no Node.js is found on the search path. %1</source>
        <translation>Node.js a été installé, mais aucun Node.js n’est trouvé dans le chemin de recherche. %1</translation>
    </message>
    <message>
        <source>Node.js was installed, but the Node.js found first is %1 in %2. %3</source>
        <translation>Node.js a été installé, mais le premier Node.js trouvé est la version %1 dans %2. %3</translation>
    </message>
    <message>
        <source>Node.js %1 was installed in %2, but Node.js %3 in %4 comes first on the search path. %5 Remove the older Node.js, or put %2 before %4 in your PATH.</source>
        <translation>Node.js %1 a été installé dans %2, mais Node.js %3 dans %4 le précède dans le chemin de recherche. %5 Supprimez l’ancien Node.js, ou placez %2 avant %4 dans votre PATH.</translation>
    </message>
</context>
<context>
    <name>ProfileWriter</name>
    <message>
        <source>it is not an ordinary file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>another change to it did not finish; try again</source>
        <translation>une autre modification de ce fichier ne s’est pas terminée&#xa0;; réessayez</translation>
    </message>
    <message>
        <source>Move it aside so an ordinary file can take its place, then try again.</source>
        <translation>Déplacez-le ailleurs pour qu’un fichier ordinaire puisse prendre sa place, puis réessayez.</translation>
    </message>
    <message>
        <source>Make sure the file belongs to you and may be changed, then try again.</source>
        <translation>Assurez-vous que le fichier vous appartient et qu’il peut être modifié, puis réessayez.</translation>
    </message>
    <message>
        <source>Your disk is full: free up some space, then try again.</source>
        <translation>Votre disque est plein&#xa0;: libérez de l’espace, puis réessayez.</translation>
    </message>
    <message>
        <source>The disk it is on cannot be changed right now.</source>
        <translation>Le disque sur lequel il se trouve ne peut pas être modifié pour le moment.</translation>
    </message>
    <message>
        <source>The file was left as it was; try again.</source>
        <translation>Le fichier n’a pas été modifié&#xa0;; réessayez.</translation>
    </message>
    <message>
        <source>Could not save the API key to %1</source>
        <translation>Impossible d’enregistrer la clé API dans %1</translation>
    </message>
    <message>
        <source>The API key is longer than %1 characters, much longer than any real key. Copy only the key and paste it again.</source>
        <translation>La clé API dépasse %1 caractères, bien plus que n’importe quelle vraie clé. Copiez uniquement la clé et collez-la à nouveau.</translation>
    </message>
    <message>
        <source>The API key contains a line break. Copy the key again and paste it as one line.</source>
        <translation>La clé API contient un saut de ligne. Copiez à nouveau la clé et collez-la sur une seule ligne.</translation>
    </message>
    <message>
        <source>The API key contains an invisible control character. Copy the key again and paste it.</source>
        <translation>La clé API contient un caractère de contrôle invisible. Copiez à nouveau la clé et collez-la.</translation>
    </message>
    <message>
        <source>The API key contains a space. Copy only the key and paste it again.</source>
        <translation>La clé API contient un espace. Copiez uniquement la clé et collez-la à nouveau.</translation>
    </message>
    <message>
        <source>Could not add ~/.local/bin to the search path in %1</source>
        <translation>Impossible d’ajouter ~/.local/bin au chemin de recherche dans %1</translation>
    </message>
</context>
<context>
    <name>SearchPathFix</name>
    <message>
        <source>A new terminal window will not find %1 yet: your shell does not read %2. Add this line to your shell&apos;s start-up file, then open a new window: %3</source>
        <translation>Une nouvelle fenêtre de terminal ne trouvera pas encore %1&#xa0;: votre shell ne lit pas %2. Ajoutez cette ligne au fichier de démarrage de votre shell, puis ouvrez une nouvelle fenêtre&#xa0;: %3</translation>
    </message>
</context>
<context>
    <name>ServiceError</name>
    <message>
        <source>The password dialog was cancelled, so %1 was not removed.</source>
        <translation>La fenêtre de mot de passe a été annulée&#xa0;: %1 n’a donc pas été supprimé.</translation>
    </message>
    <message>
        <source>The password dialog was cancelled, so %1 was not updated.</source>
        <translation>La fenêtre de mot de passe a été annulée&#xa0;: %1 n’a donc pas été mis à jour.</translation>
    </message>
</context>
<context>
    <name>SetupStepStatus</name>
    <message>
        <source>Pending</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>In progress...</source>
        <translation>En cours…</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Ignoré</translation>
    </message>
</context>
<context>
    <name>SetupStepType</name>
    <message>
        <source>Create ~/Developer folder</source>
        <translation>Créer le dossier ~/Developer</translation>
    </message>
    <message>
        <source>Check for Git</source>
        <translation>Vérifier Git</translation>
    </message>
    <message>
        <source>Install Node.js</source>
        <translation>Installer Node.js</translation>
    </message>
    <message>
        <source>Install tool</source>
        <translation>Installer l’outil</translation>
    </message>
</context>
<context>
    <name>ShellError</name>
    <message>
        <source>1 minute</source>
        <translation>1 minute</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 minutes</translation>
    </message>
    <message>
        <source>1 second</source>
        <translation>1 seconde</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 secondes</translation>
    </message>
    <message>
        <source>[earlier output cut: the last %1 characters follow]</source>
        <translation>[sortie précédente coupée&#xa0;: voici les %1 derniers caractères]</translation>
    </message>
    <message>
        <source>The command did not finish within %1 and was stopped.</source>
        <translation>La commande ne s’est pas terminée en %1 et a été arrêtée.</translation>
    </message>
    <message>
        <source>The command wrote more than %1 MB of output and was stopped.</source>
        <translation>La commande a produit plus de %1 Mo de sortie et a été arrêtée.</translation>
    </message>
    <message>
        <source>%1 made no progress for %2 and was stopped.</source>
        <translation>%1&#xa0;: aucune progression pendant %2, l’opération a été arrêtée.</translation>
    </message>
    <message>
        <source>The command showed no progress for %1 and was stopped.</source>
        <translation>La commande n’a montré aucune progression pendant %1 et a été arrêtée.</translation>
    </message>
    <message>
        <source>The command was cancelled.</source>
        <translation>La commande a été annulée.</translation>
    </message>
    <message>
        <source>Command failed with exit code %1: %2</source>
        <translation>La commande a échoué avec le code de sortie %1 : %2</translation>
    </message>
    <message>
        <source>Process error: %1</source>
        <translation>Erreur de processus : %1</translation>
    </message>
</context>
<context>
    <name>StagedInstall</name>
    <message>
        <source>a file is where a folder belongs</source>
        <translation>un fichier se trouve là où devrait être un dossier</translation>
    </message>
    <message>
        <source>a folder is where a file belongs</source>
        <translation>un dossier se trouve là où devrait être un fichier</translation>
    </message>
    <message>
        <source>Could not make the folder %1: %2</source>
        <translation>Impossible de créer le dossier %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Could not prepare %1 for the installation: %2</source>
        <translation>Impossible de préparer %1 pour l’installation&#xa0;: %2</translation>
    </message>
    <message>
        <source>Could not install %1: %2</source>
        <translation>Impossible d’installer %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>SupportTools</name>
    <message>
        <source>Only needed for Gemini or Codex</source>
        <translation>Nécessaire uniquement pour Gemini ou Codex</translation>
    </message>
    <message>
        <source>Developer Folder</source>
        <translation>Dossier Developer</translation>
    </message>
    <message>
        <source>Where your projects live</source>
        <translation>L’emplacement de vos projets</translation>
    </message>
    <message>
        <source>This Node.js (%1) was installed by another program. Remove it the way it was installed.</source>
        <translation>Ce Node.js (%1) a été installé par un autre programme. Supprimez-le de la même manière qu’il a été installé.</translation>
    </message>
    <message>
        <source>The removal of %1</source>
        <translation>La suppression de %1</translation>
    </message>
    <message>
        <source>%1 is still installed at %2: its removal did not finish. The output above says why.</source>
        <translation>%1 est toujours installé dans %2&#xa0;: sa suppression n’a pas abouti. La sortie ci-dessus en indique la raison.</translation>
    </message>
</context>
<context>
    <name>SystemDetector</name>
    <message>
        <source>%1 not installed</source>
        <translation>%1 non installé</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Non installé</translation>
    </message>
    <message>
        <source>%1 (needs %2 or newer)</source>
        <translation>%1 (version %2 ou ultérieure requise)</translation>
    </message>
    <message>
        <source>%1 – no longer receives security fixes</source>
        <translation>%1 – ne reçoit plus de correctifs de sécurité</translation>
    </message>
    <message>
        <source>%1 MB available</source>
        <translation>%1 Mo disponibles</translation>
    </message>
    <message>
        <source>%1 MB free, %2 MB needed</source>
        <translation>%1 Mo libres, %2 Mo nécessaires</translation>
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
        <translation>1 Go d’espace disque</translation>
    </message>
    <message>
        <source>Git</source>
        <translation>Git</translation>
    </message>
    <message>
        <source>Node.js is a JavaScript runtime that some AI tools use to run. It&apos;s a standard development tool used by millions of developers.</source>
        <translation>Node.js est un environnement d’exécution JavaScript dont certains outils d’IA ont besoin pour fonctionner. C’est un outil de développement standard, utilisé par des millions de développeurs.</translation>
    </message>
    <message>
        <source>Git keeps track of the changes in your projects. The AI tools use it to see and undo what they change.</source>
        <translation>Git garde une trace des modifications de vos projets. Les outils d’IA s’en servent pour voir et annuler ce qu’ils modifient.</translation>
    </message>
    <message>
        <source>Free up space by emptying Trash or removing unused apps</source>
        <translation>Libérez de l’espace en vidant la Corbeille ou en supprimant des apps inutilisées</translation>
    </message>
    <message>
        <source>64-bit Linux</source>
        <translation>Linux 64 bits</translation>
    </message>
    <message>
        <source>Your computer needs to be running a 64-bit Linux system. Works on both Intel/AMD and ARM processors.</source>
        <translation>Votre ordinateur doit fonctionner sous un système Linux 64 bits. Compatible avec les processeurs Intel/AMD et ARM.</translation>
    </message>
    <message>
        <source>Install the 64-bit edition of your Linux distribution</source>
        <translation>Installez l’édition 64 bits de votre distribution Linux</translation>
    </message>
    <message>
        <source>The AI assistant and its dependencies need about 1GB of free space on your computer. This is a one-time installation.</source>
        <translation>L’assistant IA et ses dépendances nécessitent environ 1 Go d’espace libre sur votre ordinateur. Cette installation n’a lieu qu’une seule fois.</translation>
    </message>
    <message>
        <source>Install manually: download it from %1 (or use your system&apos;s package manager)</source>
        <translation>Installation manuelle&#xa0;: téléchargez-le depuis %1 (ou utilisez le gestionnaire de paquets de votre système)</translation>
    </message>
    <message>
        <source>macOS 14 or later</source>
        <translation>macOS 14 ou version ultérieure</translation>
    </message>
    <message>
        <source>Your Mac needs to be running macOS 14 (Sonoma) or later. Works on both Intel and Apple Silicon.</source>
        <translation>Votre Mac doit fonctionner sous macOS 14 (Sonoma) ou une version ultérieure. Compatible avec les Mac Intel et Apple Silicon.</translation>
    </message>
    <message>
        <source>Update your Mac: Apple Menu → System Settings → General → Software Update</source>
        <translation>Mettez à jour votre Mac&#xa0;: menu Pomme → Réglages Système → Général → Mise à jour de logiciels</translation>
    </message>
    <message>
        <source>The AI assistant and its dependencies need about 1GB of free space on your Mac. This is a one-time installation.</source>
        <translation>L’assistant IA et ses dépendances nécessitent environ 1 Go d’espace libre sur votre Mac. Cette installation n’a lieu qu’une seule fois.</translation>
    </message>
    <message>
        <source>Install manually: brew install node (or download from %1)</source>
        <translation>Installation manuelle&#xa0;: brew install node (ou téléchargez-le depuis %1)</translation>
    </message>
</context>
<context>
    <name>SystemTool</name>
    <message>
        <source>Open your file manager to manage this folder</source>
        <translation>Ouvrez votre gestionnaire de fichiers pour gérer ce dossier</translation>
    </message>
    <message>
        <source>Git &amp; Build Tools</source>
        <translation>Git et outils de compilation</translation>
    </message>
    <message>
        <source>Provides Git and build tools</source>
        <translation>Fournit Git et les outils de compilation</translation>
    </message>
    <message>
        <source>Use your system&apos;s package manager to remove Git</source>
        <translation>Utilisez le gestionnaire de paquets de votre système pour supprimer Git</translation>
    </message>
    <message>
        <source>Open Finder to manage this folder</source>
        <translation>Ouvrez le Finder pour gérer ce dossier</translation>
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
        <translation>Impossible d’afficher le dossier</translation>
    </message>
    <message>
        <source>No file manager answered. Your projects folder is here:</source>
        <translation>Aucun gestionnaire de fichiers n’a répondu. Votre dossier de projets se trouve ici&#xa0;:</translation>
    </message>
    <message>
        <source>The installer could not be started</source>
        <translation>Impossible de lancer le programme d’installation</translation>
    </message>
    <message>
        <source>Open a terminal yourself and type this line:</source>
        <translation>Ouvrez vous-même un terminal et tapez cette ligne&#xa0;:</translation>
    </message>
</context>
<context>
    <name>TerminalLaunchedView</name>
    <message>
        <source>%1 launched in a new terminal window</source>
        <translation>%1 a été lancé dans une nouvelle fenêtre de terminal</translation>
    </message>
    <message>
        <source>Switch to the terminal window to start using %1</source>
        <translation>Passez à la fenêtre de terminal pour commencer à utiliser %1</translation>
    </message>
    <message>
        <source>%1 launched in Terminal</source>
        <translation>%1 a été lancé dans Terminal</translation>
    </message>
    <message>
        <source>Switch to Terminal.app to start using %1</source>
        <translation>Passez à Terminal pour commencer à utiliser %1</translation>
    </message>
</context>
<context>
    <name>TerminalLauncher</name>
    <message>
        <source>Quillforge is not allowed to control Terminal</source>
        <translation>Quillforge n’est pas autorisé à contrôler Terminal</translation>
    </message>
    <message>
        <source>To let it open Terminal for you, turn on Terminal under Quillforge in System Settings &gt; Privacy &amp; Security &gt; Automation. Or open Terminal yourself and type this line:</source>
        <translation>Pour que Quillforge puisse ouvrir Terminal pour vous, activez Terminal sous Quillforge dans Réglages Système &gt; Confidentialité et sécurité &gt; Automatisation. Ou ouvrez vous-même Terminal et tapez cette ligne&#xa0;:</translation>
    </message>
</context>
<context>
    <name>ToolInstaller</name>
    <message>
        <source>The installation was stopped. Node.js and %1, installed before that, stay.</source>
        <translation>L’installation a été arrêtée. Node.js et %1, installés auparavant, sont conservés.</translation>
    </message>
    <message>
        <source>The installation was stopped. %1, installed before that, stays.</source>
        <translation>L’installation a été arrêtée. %1, installé auparavant, est conservé.</translation>
    </message>
    <message>
        <source>The installation was stopped. Node.js, installed before that, stays.</source>
        <translation>L’installation a été arrêtée. Node.js, installé auparavant, est conservé.</translation>
    </message>
    <message>
        <source>The installation was stopped. Nothing was changed.</source>
        <translation>L’installation a été arrêtée. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>An older Node.js (%1 in %2) is found before the one just installed (%3). %4 works with it; to use the new one, remove the older Node.js.</source>
        <translation>Un Node.js plus ancien (%1 dans %2) est trouvé avant celui qui vient d’être installé (%3). %4 fonctionne avec lui&#xa0;; pour utiliser le nouveau, supprimez l’ancien Node.js.</translation>
    </message>
    <message>
        <source>npm is set to refuse install scripts it was not told to allow (strict-allow-scripts), so parts of %1 may be missing. If it does not start, run &quot;npm config delete strict-allow-scripts&quot; in a terminal window and install it again.</source>
        <translation>npm est configuré pour refuser les scripts d’installation qu’il n’a pas été autorisé à exécuter (strict-allow-scripts)&#xa0;: des parties de %1 peuvent donc manquer. S’il ne démarre pas, exécutez «&#xa0;npm config delete strict-allow-scripts&#xa0;» dans une fenêtre de terminal et réinstallez-le.</translation>
    </message>
    <message>
        <source>The installation of %1</source>
        <translation>L’installation de %1</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Créé</translation>
    </message>
    <message>
        <source>Already exists</source>
        <translation>Existe déjà</translation>
    </message>
    <message>
        <source>Could not create</source>
        <translation>Création impossible</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>Verification failed</source>
        <translation>Échec de la vérification</translation>
    </message>
</context>
<context>
    <name>ToolRemover</name>
    <message>
        <source>The removal was stopped, and %1 is still found. Uninstall again to remove what is left of it.</source>
        <translation>La suppression a été arrêtée et %1 est toujours présent. Désinstallez-le à nouveau pour supprimer ce qu’il en reste.</translation>
    </message>
    <message>
        <source>The removal was stopped, but %1 was already removed.</source>
        <translation>La suppression a été arrêtée, mais %1 avait déjà été supprimé.</translation>
    </message>
    <message>
        <source>The removal of %1</source>
        <translation>La suppression de %1</translation>
    </message>
</context>
<context>
    <name>ToolUpdater</name>
    <message>
        <source>The update was stopped, and %1 no longer starts. Install it again from the dashboard.</source>
        <translation>La mise à jour a été arrêtée et %1 ne démarre plus. Réinstallez-le depuis l’écran d’accueil.</translation>
    </message>
    <message>
        <source>The update was stopped, but %1 %2 was already in place and starts.</source>
        <translation>La mise à jour a été arrêtée, mais %1 %2 était déjà en place et démarre.</translation>
    </message>
    <message>
        <source>The update was stopped. Node.js, installed before that, stays.</source>
        <translation>La mise à jour a été arrêtée. Node.js, installé auparavant, est conservé.</translation>
    </message>
    <message>
        <source>The update was stopped. Nothing was changed.</source>
        <translation>La mise à jour a été arrêtée. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>%1 is not installed, so there is nothing to update.</source>
        <translation>%1 n’est pas installé&#xa0;: il n’y a donc rien à mettre à jour.</translation>
    </message>
    <message>
        <source>%1 in %2 was not installed with npm, so Quillforge cannot update it. Update it the way it was installed.</source>
        <translation>%1 dans %2 n’a pas été installé avec npm&#xa0;: Quillforge ne peut donc pas le mettre à jour. Mettez-le à jour de la même manière qu’il a été installé.</translation>
    </message>
    <message>
        <source>%1 does not start, so it cannot be updated. Install it again from the dashboard.</source>
        <translation>%1 ne démarre pas et ne peut donc pas être mis à jour. Réinstallez-le depuis l’écran d’accueil.</translation>
    </message>
    <message>
        <source>The newest version of %1 could not be found out. Check that you are online, then try again.</source>
        <translation>Impossible de déterminer la dernière version de %1. Vérifiez que vous êtes connecté, puis réessayez.</translation>
    </message>
    <message>
        <source>%1 %2 needs Node.js %3 or newer, and no Node.js was found.</source>
        <translation>%1 %2 nécessite Node.js %3 ou une version ultérieure, et aucun Node.js n’a été trouvé.</translation>
    </message>
    <message>
        <source>The update of %1</source>
        <translation>La mise à jour de %1</translation>
    </message>
    <message>
        <source>The update of %1 finished, but %1 does not start now. Install it again from the dashboard.</source>
        <translation>La mise à jour de %1 est terminée, mais %1 ne démarre plus. Réinstallez-le depuis l’écran d’accueil.</translation>
    </message>
    <message>
        <source>The update of %1 finished, but %1 still reports version %2, which still works.</source>
        <translation>La mise à jour de %1 est terminée, mais %1 indique toujours la version %2, qui fonctionne encore.</translation>
    </message>
    <message>
        <source>%1 was not updated. %2 %1 %3 still works.</source>
        <translation>%1 n’a pas été mis à jour. %2 %1 %3 fonctionne toujours.</translation>
    </message>
    <message>
        <source>%1 was not updated. %2 %1 %3 no longer starts: install it again from the dashboard.</source>
        <translation>%1 n’a pas été mis à jour. %2 %1 %3 ne démarre plus&#xa0;: réinstallez-le depuis l’écran d’accueil.</translation>
    </message>
    <message>
        <source>Node.js was installed, but no Node.js is found on the search path, so %1 was not updated.</source>
        <translation>Node.js a été installé, mais aucun Node.js n’est trouvé dans le chemin de recherche&#xa0;: %1 n’a donc pas été mis à jour.</translation>
    </message>
    <message>
        <source>Node.js was installed, but the Node.js found first is still %1 in %2, which is too old for the update of %3. Remove the older Node.js, then try again.</source>
        <translation>Node.js a été installé, mais le premier Node.js trouvé est toujours la version %1 dans %2, trop ancienne pour la mise à jour de %3. Supprimez l’ancien Node.js, puis réessayez.</translation>
    </message>
    <message>
        <source>%1 %2 needs Node.js %3 or newer; this computer has %4.</source>
        <translation>%1 %2 nécessite Node.js %3 ou une version ultérieure&#xa0;; cet ordinateur dispose de la version %4.</translation>
    </message>
    <message>
        <source>%1 %2 needs Node.js %3 or newer; this Mac has %4.</source>
        <translation>%1 %2 nécessite Node.js %3 ou une version ultérieure&#xa0;; ce Mac dispose de la version %4.</translation>
    </message>
</context>
<context>
    <name>qf::AIToolCard</name>
    <message>
        <source>Installed</source>
        <translation>Installé</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Update %1</source>
        <translation>Mettre à jour %1</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Ouvrir %1</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>Installer %1</translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation>Mise à jour disponible&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Non installé</translation>
    </message>
</context>
<context>
    <name>qf::APIKeyView</name>
    <message>
        <source>Set Up API Key</source>
        <translation>Configurer la clé API</translation>
    </message>
    <message>
        <source>Skip for Now</source>
        <translation>Ignorer pour l’instant</translation>
    </message>
    <message>
        <source>Save &amp; Continue</source>
        <translation>Enregistrer et continuer</translation>
    </message>
    <message>
        <source>Get your API key to start using %1</source>
        <translation>Obtenez votre clé API pour commencer à utiliser %1</translation>
    </message>
    <message>
        <source>Step 1: Get your API key</source>
        <translation>Étape 1&#xa0;: obtenir votre clé API</translation>
    </message>
    <message>
        <source>Click the button below to open %1&apos;s console where you can create or copy your API key.</source>
        <translation>Cliquez sur le bouton ci-dessous pour ouvrir la console %1, où vous pourrez créer ou copier votre clé API.</translation>
    </message>
    <message>
        <source>Open %1 Console</source>
        <translation>Ouvrir la console %1</translation>
    </message>
    <message>
        <source>Step 2: Paste your API key</source>
        <translation>Étape 2&#xa0;: coller votre clé API</translation>
    </message>
    <message>
        <source>Paste your API key here</source>
        <translation>Collez votre clé API ici</translation>
    </message>
    <message>
        <source>API key</source>
        <translation>Clé API</translation>
    </message>
    <message>
        <source>This will be saved to your shell profile (%1) as %2</source>
        <translation>Elle sera enregistrée dans votre profil de shell (%1) sous le nom %2</translation>
    </message>
    <message>
        <source>Hide key</source>
        <translation>Masquer la clé</translation>
    </message>
    <message>
        <source>Show key</source>
        <translation>Afficher la clé</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Enregistrement</translation>
    </message>
</context>
<context>
    <name>qf::AboutDialog</name>
    <message>
        <source>About Quillforge</source>
        <translation>À propos de Quillforge</translation>
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
        <translation>Installe un assistant de programmation IA sur votre ordinateur, sans aucune expérience du terminal.</translation>
    </message>
    <message>
        <source>Open the Quillforge website</source>
        <translation>Ouvrir le site web de Quillforge</translation>
    </message>
    <message>
        <source>Copy Version Details</source>
        <translation>Copier les détails de version</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Released under the MIT licence. Built with Qt %1, with icons from Phosphor (also MIT).</source>
        <translation>Publié sous licence MIT. Conçu avec Qt %1, avec des icônes de Phosphor (également sous licence MIT).</translation>
    </message>
</context>
<context>
    <name>qf::AccountSetupStepRow</name>
    <message>
        <source>Step %1: %2</source>
        <translation>Étape %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>qf::AccountSetupView</name>
    <message>
        <source>Account</source>
        <translation>Compte</translation>
    </message>
    <message>
        <source>Create Account</source>
        <translation>Créer un compte</translation>
    </message>
    <message>
        <source>I Have an Account</source>
        <translation>J’ai un compte</translation>
    </message>
    <message>
        <source>Before you install %1</source>
        <translation>Avant d’installer %1</translation>
    </message>
</context>
<context>
    <name>qf::CommandRow</name>
    <message>
        <source>Copy %1</source>
        <translation>Copier %1</translation>
    </message>
</context>
<context>
    <name>qf::CommonCommandsCard</name>
    <message>
        <source>Common Commands</source>
        <translation>Commandes courantes</translation>
    </message>
</context>
<context>
    <name>qf::CompletionView</name>
    <message>
        <source>Ready to use</source>
        <translation>Prêt à l’emploi</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Open in Terminal</source>
        <translation>Ouvrir dans Terminal</translation>
    </message>
    <message>
        <source>You&apos;re All Set!</source>
        <translation>Tout est prêt&#xa0;!</translation>
    </message>
    <message>
        <source>%1 is installed and ready to use</source>
        <translation>%1 est installé et prêt à l’emploi</translation>
    </message>
    <message>
        <source>Quick Start</source>
        <translation>Démarrage rapide</translation>
    </message>
    <message>
        <source>Open Terminal and try:</source>
        <translation>Ouvrez Terminal et essayez&#xa0;:</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>Copier %1</translation>
    </message>
    <message>
        <source>Your API key is saved: new terminal windows give it to %1 as %2.</source>
        <translation>Votre clé API est enregistrée&#xa0;: les nouvelles fenêtres de terminal la transmettent à %1 sous le nom %2.</translation>
    </message>
    <message>
        <source>Change API Key</source>
        <translation>Modifier la clé API</translation>
    </message>
    <message>
        <source>Use an API Key Instead</source>
        <translation>Utiliser plutôt une clé API</translation>
    </message>
</context>
<context>
    <name>qf::DashboardCard</name>
    <message>
        <source>Remove %1</source>
        <translation>Supprimer %1</translation>
    </message>
</context>
<context>
    <name>qf::FirstProjectTipsCard</name>
    <message>
        <source>Your First Project</source>
        <translation>Votre premier projet</translation>
    </message>
    <message>
        <source>Create a project folder</source>
        <translation>Créer un dossier de projet</translation>
    </message>
    <message>
        <source>Initialize git (optional but recommended)</source>
        <translation>Initialiser git (facultatif mais recommandé)</translation>
    </message>
    <message>
        <source>Start your AI assistant</source>
        <translation>Lancer votre assistant IA</translation>
    </message>
    <message>
        <source>Try asking: &quot;Help me build a simple todo list app&quot;</source>
        <translation>Essayez par exemple&#xa0;: «&#xa0;Aide-moi à créer une application simple de liste de tâches&#xa0;»</translation>
    </message>
</context>
<context>
    <name>qf::FirstTimeWelcomeCard</name>
    <message>
        <source>Welcome to Quillforge!</source>
        <translation>Bienvenue dans Quillforge&#xa0;!</translation>
    </message>
    <message>
        <source>Let&apos;s get you started with AI-powered coding</source>
        <translation>Lancez-vous dans la programmation assistée par IA</translation>
    </message>
    <message>
        <source>Set up your dev environment</source>
        <translation>Préparer votre environnement de développement</translation>
    </message>
    <message>
        <source>Install %1 and create a project folder</source>
        <translation>Installer %1 et créer un dossier de projet</translation>
    </message>
    <message>
        <source>Install an AI assistant</source>
        <translation>Installer un assistant IA</translation>
    </message>
    <message>
        <source>Choose Claude Code, Gemini CLI, or Codex</source>
        <translation>Choisir Claude Code, Gemini CLI ou Codex</translation>
    </message>
    <message>
        <source>Start building</source>
        <translation>Commencer à créer</translation>
    </message>
    <message>
        <source>Describe what you want in plain English</source>
        <translation>Décrivez ce que vous voulez avec vos propres mots</translation>
    </message>
    <message>
        <source>**%1** is ready: press **Open** on its card to start it.</source>
        <translation>**%1** est prêt&#xa0;: cliquez sur **Ouvrir** sur sa carte pour le lancer.</translation>
    </message>
    <message>
        <source>New to this? **%1** is already set up, so start with **Claude Code**.</source>
        <translation>Vous débutez&#xa0;? **%1** est déjà configuré&#xa0;: commencez donc par **Claude Code**.</translation>
    </message>
    <message>
        <source>New to this? Start with **%1**, then try **Claude Code**.</source>
        <translation>Vous débutez&#xa0;? Commencez par **%1**, puis essayez **Claude Code**.</translation>
    </message>
</context>
<context>
    <name>qf::FlowScreen</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>qf::HomeView</name>
    <message>
        <source>Your AI Coding Assistants</source>
        <translation>Vos assistants de programmation IA</translation>
    </message>
    <message>
        <source>About Quillforge</source>
        <translation>À propos de Quillforge</translation>
    </message>
    <message>
        <source>Quillforge</source>
        <translation>Quillforge</translation>
    </message>
    <message>
        <source>Checking your setup...</source>
        <translation>Vérification de votre configuration…</translation>
    </message>
    <message>
        <source>Development Environment</source>
        <translation>Environnement de développement</translation>
    </message>
    <message>
        <source>AI Assistants</source>
        <translation>Assistants IA</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Rechercher des mises à jour</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>Everything is up to date.</source>
        <translation>Tout est à jour.</translation>
    </message>
    <message>
        <source>Could not check for updates. Check that you are online.</source>
        <translation>Impossible de rechercher des mises à jour. Vérifiez que vous êtes connecté.</translation>
    </message>
</context>
<context>
    <name>qf::InstallationController</name>
    <message>
        <source>Stopped</source>
        <translation>Arrêté</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
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
        <translation>Préparation de votre environnement de développement…</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Installation Failed</source>
        <translation>Échec de l’installation</translation>
    </message>
    <message>
        <source>Show Log File</source>
        <translation>Afficher le fichier journal</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Installation Complete!</source>
        <translation>Installation terminée&#xa0;!</translation>
    </message>
    <message>
        <source>Setting up %1</source>
        <translation>Configuration de %1</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Développé</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Réduit</translation>
    </message>
    <message>
        <source>Installation Stopped</source>
        <translation>Installation arrêtée</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>The log file could not be shown</source>
        <translation>Impossible d’afficher le fichier journal</translation>
    </message>
    <message>
        <source>No file manager answered. The log file is here:</source>
        <translation>Aucun gestionnaire de fichiers n’a répondu. Le fichier journal se trouve ici&#xa0;:</translation>
    </message>
</context>
<context>
    <name>qf::MainWindow</name>
    <message>
        <source>About Quillforge</source>
        <translation>À propos de Quillforge</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
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
        <translation>Bienvenue dans Quillforge</translation>
    </message>
    <message>
        <source>Get started with AI-powered coding in minutes</source>
        <translation>Programmez avec l’IA en quelques minutes</translation>
    </message>
    <message>
        <source>AI Coding Assistants</source>
        <translation>Assistants de programmation IA</translation>
    </message>
    <message>
        <source>Install Claude Code, Gemini CLI, or Codex with one click</source>
        <translation>Installez Claude Code, Gemini CLI ou Codex en un clic</translation>
    </message>
    <message>
        <source>Automatic Setup</source>
        <translation>Configuration automatique</translation>
    </message>
    <message>
        <source>We handle the dev environment so you can focus on building</source>
        <translation>Nous préparons l’environnement de développement pour que vous puissiez vous concentrer sur vos créations</translation>
    </message>
    <message>
        <source>Beginner Friendly</source>
        <translation>Adapté aux débutants</translation>
    </message>
    <message>
        <source>No experience needed - just describe what you want to build</source>
        <translation>Aucune expérience requise&#xa0;: décrivez simplement ce que vous voulez créer</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Commencer</translation>
    </message>
</context>
<context>
    <name>qf::RemovalSheet</name>
    <message>
        <source>Uninstall %1</source>
        <translation>Désinstaller %1</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Désinstaller</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uninstall Complete</source>
        <translation>Désinstallation terminée</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>Désinstaller %1&#xa0;?</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Affichés</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Masqués</translation>
    </message>
</context>
<context>
    <name>qf::RequirementRow</name>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Will be installed for you</source>
        <translation>Sera installé pour vous</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>Espace insuffisant</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Non installé</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>Non pris en charge</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>What is this?</source>
        <translation>Qu’est-ce que c’est&#xa0;?</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>Installer %1</translation>
    </message>
    <message>
        <source>Quillforge installs it for you as part of the setup.</source>
        <translation>Quillforge l’installe pour vous pendant la configuration.</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Développé</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Réduit</translation>
    </message>
</context>
<context>
    <name>qf::StepRow</name>
    <message>
        <source>Copy %1</source>
        <translation>Copier %1</translation>
    </message>
</context>
<context>
    <name>qf::SystemCheckView</name>
    <message>
        <source>System Check</source>
        <translation>Vérification du système</translation>
    </message>
    <message>
        <source>Checking requirements for %1</source>
        <translation>Vérification des prérequis pour %1</translation>
    </message>
    <message>
        <source>Checking system requirements...</source>
        <translation>Vérification des prérequis système…</translation>
    </message>
    <message>
        <source>You&apos;re ready to use it in Terminal.</source>
        <translation>Vous pouvez l’utiliser dès maintenant dans Terminal.</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Vérifier à nouveau</translation>
    </message>
    <message>
        <source>The installer could not be started</source>
        <translation>Impossible de lancer le programme d’installation</translation>
    </message>
    <message>
        <source>Open a terminal yourself and type this line:</source>
        <translation>Ouvrez vous-même un terminal et tapez cette ligne&#xa0;:</translation>
    </message>
    <message>
        <source>%1 is already installed!</source>
        <translation>%1 est déjà installé&#xa0;!</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Outil</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>Version&#xa0;: %1</translation>
    </message>
    <message>
        <source>Open Terminal</source>
        <translation>Ouvrir Terminal</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Requirements Not Met</source>
        <translation>Prérequis non remplis</translation>
    </message>
    <message>
        <source>Install is not available until this is fixed: %1.</source>
        <translation>L’installation n’est pas possible tant que ce problème n’est pas résolu&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>qf::SystemToolCard</name>
    <message>
        <source>Optional</source>
        <translation>Facultatif</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Non installé</translation>
    </message>
    <message>
        <source>Installed for you with Gemini CLI or Codex</source>
        <translation>Installé pour vous avec Gemini CLI ou Codex</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>Installé</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>an action and the item it acts on</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
</context>
<context>
    <name>qf::SystemToolUninstallSheet</name>
    <message>
        <source>This will remove %1 from your system.</source>
        <translation>Cette action supprimera %1 de votre système.</translation>
    </message>
</context>
<context>
    <name>qf::TerminalLaunchedView</name>
    <message>
        <source>Open Terminal Again</source>
        <translation>Rouvrir Terminal</translation>
    </message>
    <message>
        <source>Quick Tips</source>
        <translation>Astuces rapides</translation>
    </message>
    <message>
        <source>Start %1 in a terminal</source>
        <translation>Lancer %1 dans un terminal</translation>
    </message>
</context>
<context>
    <name>qf::TerminalScreenView</name>
    <message>
        <source>Back to Home</source>
        <translation>Retour à l’accueil</translation>
    </message>
    <message>
        <source>No tool selected</source>
        <translation>Aucun outil sélectionné</translation>
    </message>
</context>
<context>
    <name>qf::ToolCard</name>
    <message>
        <source>by %1</source>
        <translation>par %1</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>En savoir plus</translation>
    </message>
    <message>
        <source>Learn more about %1</source>
        <translation>En savoir plus sur %1</translation>
    </message>
</context>
<context>
    <name>qf::UpdateSheet</name>
    <message>
        <source>Update %1</source>
        <translation>Mettre à jour %1</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Install Node.js and Update</source>
        <translation>Installer Node.js et mettre à jour</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Update %1?</source>
        <translation>Mettre à jour %1&#xa0;?</translation>
    </message>
    <message>
        <source>%1 goes from version %2 to %3. You stay signed in, and your settings stay as they are.</source>
        <translation>%1 passe de la version %2 à la version %3. Vous restez connecté et vos réglages restent inchangés.</translation>
    </message>
    <message>
        <source>%1 is updated to version %2. You stay signed in, and your settings stay as they are.</source>
        <translation>%1 est mis à jour vers la version %2. Vous restez connecté et vos réglages restent inchangés.</translation>
    </message>
    <message>
        <source>Updating %1...</source>
        <translation>Mise à jour de %1…</translation>
    </message>
    <message>
        <source>This usually takes less than a minute.</source>
        <translation>Cela prend généralement moins d’une minute.</translation>
    </message>
    <message>
        <source>Update Complete</source>
        <translation>Mise à jour terminée</translation>
    </message>
    <message>
        <source>%1 %2 is installed and starts as before.</source>
        <translation>%1 %2 est installé et démarre comme avant.</translation>
    </message>
    <message>
        <source>A Newer Node.js Is Needed</source>
        <translation>Une version plus récente de Node.js est nécessaire</translation>
    </message>
    <message>
        <source>Update Stopped</source>
        <translation>Mise à jour arrêtée</translation>
    </message>
    <message>
        <source>Update Failed</source>
        <translation>Échec de la mise à jour</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Affichés</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Masqués</translation>
    </message>
</context>
<context>
    <name>qf::WelcomeView</name>
    <message>
        <source>Choose a Tool</source>
        <translation>Choisir un outil</translation>
    </message>
    <message>
        <source>Quillforge</source>
        <translation>Quillforge</translation>
    </message>
    <message>
        <source>Set up AI coding assistants the easy way</source>
        <translation>Configurez des assistants de programmation IA en toute simplicité</translation>
    </message>
    <message>
        <source>Choose a tool to install:</source>
        <translation>Choisissez un outil à installer&#xa0;:</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
</context>
<context>
    <name>qf::WhatIsAICodingCard</name>
    <message>
        <source>New to AI Coding?</source>
        <translation>Vous découvrez la programmation avec l’IA&#xa0;?</translation>
    </message>
    <message>
        <source>AI coding assistants are tools that help you write, understand, and debug code using artificial intelligence.</source>
        <translation>Les assistants de programmation IA sont des outils qui vous aident à écrire, comprendre et déboguer du code grâce à l’intelligence artificielle.</translation>
    </message>
    <message>
        <source>Conversational</source>
        <translation>Conversationnel</translation>
    </message>
    <message>
        <source>Describe what you want in plain English and the AI writes the code</source>
        <translation>Décrivez ce que vous voulez avec vos propres mots et l’IA écrit le code</translation>
    </message>
    <message>
        <source>Code Understanding</source>
        <translation>Compréhension du code</translation>
    </message>
    <message>
        <source>Ask questions about any codebase and get clear explanations</source>
        <translation>Posez des questions sur n’importe quel code et obtenez des explications claires</translation>
    </message>
    <message>
        <source>Debugging Help</source>
        <translation>Aide au débogage</translation>
    </message>
    <message>
        <source>Paste error messages and get solutions, not just explanations</source>
        <translation>Collez les messages d’erreur et obtenez des solutions, pas seulement des explications</translation>
    </message>
    <message>
        <source>Learning Partner</source>
        <translation>Partenaire d’apprentissage</translation>
    </message>
    <message>
        <source>Perfect for learning new languages or frameworks at your own pace</source>
        <translation>Idéal pour apprendre de nouveaux langages ou frameworks à votre rythme</translation>
    </message>
    <message>
        <source>No prior coding experience? That&apos;s okay! AI assistants can help you learn as you build.</source>
        <translation>Aucune expérience en programmation&#xa0;? Aucun problème&#xa0;! Les assistants IA vous aident à apprendre tout en créant.</translation>
    </message>
</context>
<context>
    <name>qf::ui::ActivityIndicator</name>
    <message>
        <source>In progress</source>
        <translation>En cours</translation>
    </message>
</context>
<context>
    <name>qf::ui::CopiedToast</name>
    <message>
        <source>Copied to clipboard</source>
        <translation>Copié dans le presse-papiers</translation>
    </message>
</context>
<context>
    <name>qf::ui::CopyButton</name>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy Log</source>
        <translation>Copier le journal</translation>
    </message>
    <message>
        <source>Copy the whole log</source>
        <translation>Copier tout le journal</translation>
    </message>
</context>
<context>
    <name>qf::ui::DisclosureCard</name>
    <message>
        <source>Expanded</source>
        <translation>Développé</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Réduit</translation>
    </message>
</context>
<context>
    <name>qf::ui::LogView</name>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
</context>
<context>
    <name>qf::ui::TerminalFallbackRow</name>
    <message>
        <source>No terminal window could be opened</source>
        <translation>Impossible d’ouvrir une fenêtre de terminal</translation>
    </message>
    <message>
        <source>Open a terminal yourself and type this line:</source>
        <translation>Ouvrez vous-même un terminal et tapez cette ligne&#xa0;:</translation>
    </message>
    <message>
        <source>Copy the line to type</source>
        <translation>Copier la ligne à taper</translation>
    </message>
</context>
</TS>
