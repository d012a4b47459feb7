<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>APIKeyStore</name>
    <message>
        <source>Your key is saved. %1 sets %2 from a command or another variable, so that line was left as it was; your key is on a new line after it, which is the one new terminal windows use.</source>
        <translation>Se ha guardado tu clave. %1 asigna %2 mediante un comando u otra variable, así que esa línea se ha dejado como estaba; tu clave está en una línea nueva justo después, que es la que usan las nuevas ventanas de terminal.</translation>
    </message>
</context>
<context>
    <name>BoundedLog</name>
    <message>
        <source>Earlier output was cut here; the whole log is in the log file.</source>
        <translation>La salida anterior se ha recortado aquí; el registro completo está en el archivo de registro.</translation>
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
        <translation>Asistente de programación con IA de Anthropic. Trabaja en tu terminal para ayudarte a escribir, depurar y entender código.</translation>
    </message>
    <message>
        <source>Requires an Anthropic account (free tier available)</source>
        <translation>Requiere una cuenta de Anthropic (hay un plan gratuito)</translation>
    </message>
    <message>
        <source>Free tier available, Pro plan for more usage</source>
        <translation>Plan gratuito disponible; plan Pro para un uso mayor</translation>
    </message>
    <message>
        <source>Sign in with your Anthropic account on first run.</source>
        <translation>Inicia sesión con tu cuenta de Anthropic la primera vez que lo abras.</translation>
    </message>
    <message>
        <source>Remove Claude Code and its configuration</source>
        <translation>Eliminar Claude Code y su configuración</translation>
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
        <translation>La IA Gemini de Google en tu terminal. Ideal para generar código y resolver dudas técnicas.</translation>
    </message>
    <message>
        <source>Requires a Google account (you probably have one!)</source>
        <translation>Requiere una cuenta de Google (¡seguramente ya tienes una!)</translation>
    </message>
    <message>
        <source>Free tier with generous limits</source>
        <translation>Plan gratuito con límites generosos</translation>
    </message>
    <message>
        <source>Sign in with your Google account on first run.</source>
        <translation>Inicia sesión con tu cuenta de Google la primera vez que lo abras.</translation>
    </message>
    <message>
        <source>Uninstall Gemini CLI via npm</source>
        <translation>Desinstalar Gemini CLI con npm</translation>
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
        <translation>El modelo de OpenAI especializado en código. Potente para completar y generar código.</translation>
    </message>
    <message>
        <source>Requires a paid ChatGPT plan or an OpenAI API key</source>
        <translation>Requiere un plan de pago de ChatGPT o una clave de API de OpenAI</translation>
    </message>
    <message>
        <source>Included with paid ChatGPT plans, or pay-as-you-go with an API key</source>
        <translation>Incluido en los planes de pago de ChatGPT, o paga por uso con una clave de API</translation>
    </message>
    <message>
        <source>Sign in with ChatGPT on first run, or use an API key.</source>
        <translation>Inicia sesión con ChatGPT la primera vez que lo abras, o usa una clave de API.</translation>
    </message>
    <message>
        <source>Uninstall Codex via npm</source>
        <translation>Desinstalar Codex con npm</translation>
    </message>
    <message>
        <source>Works directly in your project folder</source>
        <translation>Trabaja directamente en la carpeta de tu proyecto</translation>
    </message>
    <message>
        <source>Can read, edit, and create files</source>
        <translation>Puede leer, editar y crear archivos</translation>
    </message>
    <message>
        <source>Runs commands and tests for you</source>
        <translation>Ejecuta comandos y pruebas por ti</translation>
    </message>
    <message>
        <source>Understands your entire codebase</source>
        <translation>Entiende todo el código de tu proyecto</translation>
    </message>
    <message>
        <source>Powered by Google&apos;s Gemini models</source>
        <translation>Funciona con los modelos Gemini de Google</translation>
    </message>
    <message>
        <source>Great for code generation</source>
        <translation>Ideal para generar código</translation>
    </message>
    <message>
        <source>Helpful for technical explanations</source>
        <translation>Útil para explicaciones técnicas</translation>
    </message>
    <message>
        <source>Integrates with Google services</source>
        <translation>Se integra con los servicios de Google</translation>
    </message>
    <message>
        <source>Built on OpenAI&apos;s GPT models</source>
        <translation>Basado en los modelos GPT de OpenAI</translation>
    </message>
    <message>
        <source>Strong at code completion</source>
        <translation>Muy bueno completando código</translation>
    </message>
    <message>
        <source>Wide language support</source>
        <translation>Compatible con muchos lenguajes</translation>
    </message>
    <message>
        <source>Great for quick code generation</source>
        <translation>Ideal para generar código rápidamente</translation>
    </message>
    <message>
        <source>On first launch, your browser will open to authenticate.</source>
        <translation>La primera vez que lo abras, se abrirá tu navegador para que inicies sesión.</translation>
    </message>
    <message>
        <source>Create an Anthropic account</source>
        <translation>Crea una cuenta de Anthropic</translation>
    </message>
    <message>
        <source>Visit %1 and sign up with your email or Google account.</source>
        <translation>Visita %1 y regístrate con tu correo electrónico o tu cuenta de Google.</translation>
    </message>
    <message>
        <source>Choose a plan</source>
        <translation>Elige un plan</translation>
    </message>
    <message>
        <source>Start with the free tier or upgrade to Pro for more usage.</source>
        <translation>Empieza con el plan gratuito o cambia a Pro para un uso mayor.</translation>
    </message>
    <message>
        <source>Install Claude Code</source>
        <translation>Instala Claude Code</translation>
    </message>
    <message>
        <source>Sign in from Terminal</source>
        <translation>Inicia sesión desde Terminal</translation>
    </message>
    <message>
        <source>Use your Google account</source>
        <translation>Usa tu cuenta de Google</translation>
    </message>
    <message>
        <source>If you have Gmail, you already have an account!</source>
        <translation>Si tienes Gmail, ¡ya tienes una cuenta!</translation>
    </message>
    <message>
        <source>Install Gemini CLI</source>
        <translation>Instala Gemini CLI</translation>
    </message>
    <message>
        <source>Sign in with Google</source>
        <translation>Inicia sesión con Google</translation>
    </message>
    <message>
        <source>Use your ChatGPT plan</source>
        <translation>Usa tu plan de ChatGPT</translation>
    </message>
    <message>
        <source>Codex comes with paid ChatGPT plans such as Plus and Pro. Sign up at %1.</source>
        <translation>Codex viene incluido en los planes de pago de ChatGPT, como Plus y Pro. Regístrate en %1.</translation>
    </message>
    <message>
        <source>Or use an API key</source>
        <translation>O usa una clave de API</translation>
    </message>
    <message>
        <source>Without a plan, create an API key with a payment method at %1. This takes a little more setup.</source>
        <translation>Si no tienes un plan, crea una clave de API con un método de pago en %1. Esto requiere un poco más de configuración.</translation>
    </message>
    <message>
        <source>Install Codex</source>
        <translation>Instala Codex</translation>
    </message>
    <message>
        <source>On first launch, choose &quot;Sign in with ChatGPT&quot;; your browser will open to authenticate.</source>
        <translation>La primera vez que lo abras, elige “Sign in with ChatGPT”; se abrirá tu navegador para que inicies sesión.</translation>
    </message>
    <message>
        <source>Start interactive session</source>
        <translation>Iniciar el modo interactivo</translation>
    </message>
    <message>
        <source>Show all options</source>
        <translation>Mostrar todas las opciones</translation>
    </message>
    <message>
        <source>Quick task mode</source>
        <translation>Modo de tarea rápida</translation>
    </message>
    <message>
        <source>Initialize project settings</source>
        <translation>Crear la configuración del proyecto</translation>
    </message>
    <message>
        <source>Quick question</source>
        <translation>Pregunta rápida</translation>
    </message>
    <message>
        <source>Quick task</source>
        <translation>Tarea rápida</translation>
    </message>
    <message>
        <source>%1 needs Node.js %2 or newer.</source>
        <translation>%1 necesita Node.js %2 o posterior.</translation>
    </message>
    <message>
        <source>We&apos;ll install the CLI tool on your computer.</source>
        <translation>Instalaremos la herramienta de línea de comandos en tu ordenador.</translation>
    </message>
    <message>
        <source>We&apos;ll install the CLI tool on your Mac.</source>
        <translation>Instalaremos la herramienta de línea de comandos en tu Mac.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Sets up Claude Code, Gemini CLI or Codex on this computer. Without options it opens its window; a second launch brings the open window to the front.</source>
        <translation>Instala Claude Code, Gemini CLI o Codex en este ordenador. Sin opciones, abre su ventana; si se abre por segunda vez, trae al frente la ventana que ya está abierta.</translation>
    </message>
    <message>
        <source>Run &quot;%1 --help&quot; to see the options.</source>
        <translation>Ejecuta “%1 --help” para ver las opciones.</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;: Quillforge takes no files.</source>
        <translation>Argumento inesperado “%1”: Quillforge no abre archivos.</translation>
    </message>
</context>
<context>
    <name>Diagnosis</name>
    <message>
        <source>Your computer could not reach the internet. Check that you are online, then try again.</source>
        <translation>Tu ordenador no ha podido conectarse a internet. Comprueba que tienes conexión y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>The server could not be reached. Check that you are online, then try again.</source>
        <translation>No se ha podido contactar con el servidor. Comprueba que tienes conexión y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>The connection timed out. Your internet may be slow or down: try again in a moment.</source>
        <translation>Se ha agotado el tiempo de conexión. Puede que tu conexión a internet sea lenta o no funcione: vuelve a intentarlo en un momento.</translation>
    </message>
    <message>
        <source>No secure connection to the server could be made. A proxy or security software on this network may be in the way: try another network, or ask whoever runs this one.</source>
        <translation>No se ha podido establecer una conexión segura con el servidor. Puede que un proxy o un programa de seguridad de esta red lo esté impidiendo: prueba con otra red o pregunta a quien la administre.</translation>
    </message>
    <message>
        <source>Your user may not change a folder the installation needs. The log names it: make sure it belongs to you, then try again.</source>
        <translation>Tu usuario no puede modificar una carpeta que necesita la instalación. El registro indica cuál es: asegúrate de que te pertenece y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>Your disk is full. Free up some space, then try again.</source>
        <translation>Tu disco está lleno. Libera espacio y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>What was asked for is not on the server right now. Try again later.</source>
        <translation>Lo que se ha solicitado no está disponible en el servidor en este momento. Vuelve a intentarlo más tarde.</translation>
    </message>
    <message>
        <source>Your Node.js is too old for this tool. Update Node.js (or remove the old one so a new one is installed), then try again.</source>
        <translation>Tu versión de Node.js es demasiado antigua para esta herramienta. Actualiza Node.js (o elimina la versión antigua para que se instale una nueva) y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>The download was cut off before it was complete. Try again.</source>
        <translation>La descarga se ha interrumpido antes de completarse. Vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>npm could not write to its folders, which usually happens after an earlier “sudo npm”. Try Again uses a private npm cache for Quillforge and installs %1 into your own ~/.local folder.</source>
        <translation>npm no ha podido escribir en sus carpetas, algo que suele pasar después de haber usado “sudo npm”. “Reintentar” usa una caché de npm propia de Quillforge e instala %1 en tu carpeta ~/.local.</translation>
    </message>
    <message>
        <source>npm could not write to its folders, which usually happens after an earlier “sudo npm”. Try Again uses a private npm cache for Quillforge.</source>
        <translation>npm no ha podido escribir en sus carpetas, algo que suele pasar después de haber usado “sudo npm”. “Reintentar” usa una caché de npm propia de Quillforge.</translation>
    </message>
    <message>
        <source>%1 was not found on the npm registry. Its maker may have moved it; the log has the details.</source>
        <translation>No se ha encontrado %1 en el repositorio de npm. Puede que su creador lo haya movido; encontrarás los detalles en el registro.</translation>
    </message>
    <message>
        <source>Something went wrong. The log has the details.</source>
        <translation>Algo ha salido mal. Encontrarás los detalles en el registro.</translation>
    </message>
    <message>
        <source>Something went wrong. The last message was: “%1”. The log has the details.</source>
        <translation>Algo ha salido mal. El último mensaje fue: “%1”. Encontrarás los detalles en el registro.</translation>
    </message>
</context>
<context>
    <name>InstallationError</name>
    <message>
        <source>Installation completed but the tool could not be verified. Please try again.</source>
        <translation>La instalación ha terminado, pero no se ha podido verificar la herramienta. Vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>Failed to install Node.js. Please install it manually from %1</source>
        <translation>No se ha podido instalar Node.js. Instálalo manualmente desde %1</translation>
    </message>
    <message>
        <source>Uninstall completed but the tool is still detected. Manual removal may be required.</source>
        <translation>La desinstalación ha terminado, pero la herramienta se sigue detectando. Puede que tengas que eliminarla manualmente.</translation>
    </message>
    <message>
        <source>Automatic uninstall is not available. Please follow the manual instructions above.</source>
        <translation>La desinstalación automática no está disponible. Sigue las instrucciones manuales de arriba.</translation>
    </message>
    <message>
        <source>The ~/Developer folder contains files. Please remove your projects first if you want to delete it.</source>
        <translation>La carpeta ~/Developer contiene archivos. Si quieres eliminarla, retira antes tus proyectos.</translation>
    </message>
    <message>
        <source>Git is required but not found. Please install it by running: %1</source>
        <translation>Se necesita Git, pero no se ha encontrado. Instálalo ejecutando: %1</translation>
    </message>
    <message>
        <source>Git is required but not found. Please install Xcode Command Line Tools by running: xcode-select --install</source>
        <translation>Se necesita Git, pero no se ha encontrado. Instala las Xcode Command Line Tools ejecutando: xcode-select --install</translation>
    </message>
</context>
<context>
    <name>InstallationView</name>
    <message>
        <source>Good to know</source>
        <translation>Conviene saberlo</translation>
    </message>
</context>
<context>
    <name>NodeInstaller</name>
    <message>
        <source>The installation of Node.js through Homebrew</source>
        <translation>La instalación de Node.js con Homebrew</translation>
    </message>
    <message>
        <source>Node.js publishes no release for this computer&apos;s processor. Please install it manually from nodejs.org</source>
        <translation>Node.js no publica ninguna versión para el procesador de este ordenador. Instálalo manualmente desde nodejs.org</translation>
    </message>
    <message>
        <source>Could not download the list of Node.js releases. %1</source>
        <translation>No se ha podido descargar la lista de versiones de Node.js. %1</translation>
    </message>
    <message>
        <source>No long-term support release of Node.js for %1 was found at %2.</source>
        <translation>No se ha encontrado ninguna versión de soporte a largo plazo de Node.js para %1 en %2.</translation>
    </message>
    <message>
        <source>Could not make a folder for the Node.js download: %1</source>
        <translation>No se ha podido crear una carpeta para la descarga de Node.js: %1</translation>
    </message>
    <message>
        <source>The download of %1</source>
        <translation>La descarga de %1</translation>
    </message>
    <message>
        <source>Could not download %1. %2</source>
        <translation>No se ha podido descargar %1. %2</translation>
    </message>
    <message>
        <source>Could not download the checksums of Node.js %1. %2</source>
        <translation>No se han podido descargar las sumas de comprobación de Node.js %1. %2</translation>
    </message>
    <message>
        <source>The checksum list of Node.js %1 does not name %2, so nothing was installed.</source>
        <translation>La lista de sumas de comprobación de Node.js %1 no incluye %2, así que no se ha instalado nada.</translation>
    </message>
    <message>
        <source>The Node.js download does not match its published checksum, so nothing was installed. Please try again.</source>
        <translation>La descarga de Node.js no coincide con su suma de comprobación publicada, así que no se ha instalado nada. Vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>Unpacking Node.js %1</source>
        <translation>Descomprimiendo Node.js %1</translation>
    </message>
    <message>
        <source>Could not unpack Node.js %1: %2</source>
        <translation>No se ha podido descomprimir Node.js %1: %2</translation>
    </message>
    <message>
        <source>Node.js was installed, but no Node.js is found on the search path. %1</source>
        <translation>Node.js se ha instalado, pero no se encuentra ningún Node.js en la ruta de búsqueda. %1</translation>
    </message>
    <message>
        <source>Node.js was installed, but the Node.js found first is %1 in %2. %3</source>
        <translation>Node.js se ha instalado, pero el primer Node.js que se encuentra es %1 en %2. %3</translation>
    </message>
    <message>
        <source>Node.js %1 was installed in %2, but Node.js %3 in %4 comes first on the search path. %5 Remove the older Node.js, or put %2 before %4 in your PATH.</source>
        <translation>Node.js %1 se ha instalado en %2, pero Node.js %3 en %4 va antes en la ruta de búsqueda. %5 Elimina el Node.js más antiguo o pon %2 antes que %4 en tu PATH.</translation>
    </message>
</context>
<context>
    <name>ProfileWriter</name>
    <message>
        <source>it is not an ordinary file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>another change to it did not finish; try again</source>
        <translation>otro cambio en él no terminó; vuelve a intentarlo</translation>
    </message>
    <message>
        <source>Move it aside so an ordinary file can take its place, then try again.</source>
        <translation>Muévelo a otro sitio para que un archivo normal pueda ocupar su lugar y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>Make sure the file belongs to you and may be changed, then try again.</source>
        <translation>Asegúrate de que el archivo te pertenece y se puede modificar, y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>Your disk is full: free up some space, then try again.</source>
        <translation>Tu disco está lleno: libera espacio y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>The disk it is on cannot be changed right now.</source>
        <translation>El disco en el que está no se puede modificar en este momento.</translation>
    </message>
    <message>
        <source>The file was left as it was; try again.</source>
        <translation>El archivo se ha dejado como estaba; vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>Could not save the API key to %1</source>
        <translation>No se ha podido guardar la clave de API en %1</translation>
    </message>
    <message>
        <source>The API key is longer than %1 characters, much longer than any real key. Copy only the key and paste it again.</source>
        <translation>La clave de API tiene más de %1 caracteres, mucho más que cualquier clave real. Copia solo la clave y vuelve a pegarla.</translation>
    </message>
    <message>
        <source>The API key contains a line break. Copy the key again and paste it as one line.</source>
        <translation>La clave de API contiene un salto de línea. Vuelve a copiar la clave y pégala en una sola línea.</translation>
    </message>
    <message>
        <source>The API key contains an invisible control character. Copy the key again and paste it.</source>
        <translation>La clave de API contiene un carácter de control invisible. Vuelve a copiar la clave y pégala.</translation>
    </message>
    <message>
        <source>The API key contains a space. Copy only the key and paste it again.</source>
        <translation>La clave de API contiene un espacio. Copia solo la clave y vuelve a pegarla.</translation>
    </message>
    <message>
        <source>Could not add ~/.local/bin to the search path in %1</source>
        <translation>No se ha podido añadir ~/.local/bin a la ruta de búsqueda en %1</translation>
    </message>
</context>
<context>
    <name>SearchPathFix</name>
    <message>
        <source>A new terminal window will not find %1 yet: your shell does not read %2. Add this line to your shell&apos;s start-up file, then open a new window: %3</source>
        <translation>Las nuevas ventanas de terminal aún no encontrarán %1: tu shell no lee %2. Añade esta línea al archivo de inicio de tu shell y abre una ventana nueva: %3</translation>
    </message>
</context>
<context>
    <name>ServiceError</name>
    <message>
        <source>The password dialog was cancelled, so %1 was not removed.</source>
        <translation>Se ha cancelado la ventana de contraseña, así que no se ha eliminado %1.</translation>
    </message>
    <message>
        <source>The password dialog was cancelled, so %1 was not updated.</source>
        <translation>Se ha cancelado la ventana de contraseña, así que no se ha actualizado %1.</translation>
    </message>
</context>
<context>
    <name>SetupStepStatus</name>
    <message>
        <source>Pending</source>
        <translation>Pendiente</translation>
    </message>
    <message>
        <source>In progress...</source>
        <translation>En curso...</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Completado</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Omitido</translation>
    </message>
</context>
<context>
    <name>SetupStepType</name>
    <message>
        <source>Create ~/Developer folder</source>
        <translation>Crear la carpeta ~/Developer</translation>
    </message>
    <message>
        <source>Check for Git</source>
        <translation>Comprobar Git</translation>
    </message>
    <message>
        <source>Install Node.js</source>
        <translation>Instalar Node.js</translation>
    </message>
    <message>
        <source>Install tool</source>
        <translation>Instalar la herramienta</translation>
    </message>
</context>
<context>
    <name>ShellError</name>
    <message>
        <source>1 minute</source>
        <translation>1 minuto</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 minutos</translation>
    </message>
    <message>
        <source>1 second</source>
        <translation>1 segundo</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 segundos</translation>
    </message>
    <message>
        <source>[earlier output cut: the last %1 characters follow]</source>
        <translation>[se ha recortado la salida anterior: siguen los últimos %1 caracteres]</translation>
    </message>
    <message>
        <source>The command did not finish within %1 and was stopped.</source>
        <translation>El comando no terminó en %1 y se ha detenido.</translation>
    </message>
    <message>
        <source>The command wrote more than %1 MB of output and was stopped.</source>
        <translation>El comando generó más de %1 MB de salida y se ha detenido.</translation>
    </message>
    <message>
        <source>%1 made no progress for %2 and was stopped.</source>
        <translation>%1 no avanzó durante %2 y se ha detenido.</translation>
    </message>
    <message>
        <source>The command showed no progress for %1 and was stopped.</source>
        <translation>El comando no mostró ningún avance durante %1 y se ha detenido.</translation>
    </message>
    <message>
        <source>The command was cancelled.</source>
        <translation>Se ha cancelado el comando.</translation>
    </message>
    <message>
        <source>Command failed with exit code %1: %2</source>
        <translation>El comando falló con el código de salida %1: %2</translation>
    </message>
    <message>
        <source>Process error: %1</source>
        <translation>Error del proceso: %1</translation>
    </message>
</context>
<context>
    <name>StagedInstall</name>
    <message>
        <source>a file is where a folder belongs</source>
        <translation>hay un archivo donde debería haber una carpeta</translation>
    </message>
    <message>
        <source>a folder is where a file belongs</source>
        <translation>hay una carpeta donde debería haber un archivo</translation>
    </message>
    <message>
        <source>Could not make the folder %1: %2</source>
        <translation>No se ha podido crear la carpeta %1: %2</translation>
    </message>
    <message>
        <source>Could not prepare %1 for the installation: %2</source>
        <translation>No se ha podido preparar %1 para la instalación: %2</translation>
    </message>
    <message>
        <source>Could not install %1: %2</source>
        <translation>No se ha podido instalar %1: %2</translation>
    </message>
</context>
<context>
    <name>SupportTools</name>
    <message>
        <source>Only needed for Gemini or Codex</source>
        <translation>Solo es necesario para Gemini o Codex</translation>
    </message>
    <message>
        <source>Developer Folder</source>
        <translation>Carpeta Developer</translation>
    </message>
    <message>
        <source>Where your projects live</source>
        <translation>Donde se guardan tus proyectos</translation>
    </message>
    <message>
        <source>This Node.js (%1) was installed by another program. Remove it the way it was installed.</source>
        <translation>Este Node.js (%1) lo instaló otro programa. Elimínalo de la misma forma en que se instaló.</translation>
    </message>
    <message>
        <source>The removal of %1</source>
        <translation>La eliminación de %1</translation>
    </message>
    <message>
        <source>%1 is still installed at %2: its removal did not finish. The output above says why.</source>
        <translation>%1 sigue instalado en %2: su eliminación no terminó. La salida de arriba explica por qué.</translation>
    </message>
</context>
<context>
    <name>SystemDetector</name>
    <message>
        <source>%1 not installed</source>
        <translation>Falta instalar %1</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>No instalado</translation>
    </message>
    <message>
        <source>%1 (needs %2 or newer)</source>
        <translation>%1 (se necesita la %2 o posterior)</translation>
    </message>
    <message>
        <source>%1 – no longer receives security fixes</source>
        <translation>%1 – ya no recibe parches de seguridad</translation>
    </message>
    <message>
        <source>%1 MB available</source>
        <translation>%1 MB disponibles</translation>
    </message>
    <message>
        <source>%1 MB free, %2 MB needed</source>
        <translation>%1 MB libres, se necesitan %2 MB</translation>
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
        <translation>1 GB de espacio en disco</translation>
    </message>
    <message>
        <source>Git</source>
        <translation>Git</translation>
    </message>
    <message>
        <source>Node.js is a JavaScript runtime that some AI tools use to run. It&apos;s a standard development tool used by millions of developers.</source>
        <translation>Node.js es un entorno de ejecución de JavaScript que algunas herramientas de IA necesitan para funcionar. Es una herramienta de desarrollo estándar que usan millones de desarrolladores.</translation>
    </message>
    <message>
        <source>Git keeps track of the changes in your projects. The AI tools use it to see and undo what they change.</source>
        <translation>Git guarda el historial de cambios de tus proyectos. Las herramientas de IA lo usan para ver y deshacer lo que cambian.</translation>
    </message>
    <message>
        <source>Free up space by emptying Trash or removing unused apps</source>
        <translation>Libera espacio vaciando la Papelera o eliminando apps que no uses</translation>
    </message>
    <message>
        <source>64-bit Linux</source>
        <translation>Linux de 64 bits</translation>
    </message>
    <message>
        <source>Your computer needs to be running a 64-bit Linux system. Works on both Intel/AMD and ARM processors.</source>
        <translation>Tu ordenador necesita un sistema Linux de 64 bits. Funciona tanto con procesadores Intel/AMD como ARM.</translation>
    </message>
    <message>
        <source>Install the 64-bit edition of your Linux distribution</source>
        <translation>Instala la edición de 64 bits de tu distribución de Linux</translation>
    </message>
    <message>
        <source>The AI assistant and its dependencies need about 1GB of free space on your computer. This is a one-time installation.</source>
        <translation>El asistente de IA y sus dependencias necesitan aproximadamente 1 GB de espacio libre en tu ordenador. Solo se instala una vez.</translation>
    </message>
    <message>
        <source>Install manually: download it from %1 (or use your system&apos;s package manager)</source>
        <translation>Instálalo manualmente: descárgalo de %1 (o usa el gestor de paquetes de tu sistema)</translation>
    </message>
    <message>
        <source>macOS 14 or later</source>
        <translation>macOS 14 o posterior</translation>
    </message>
    <message>
        <source>Your Mac needs to be running macOS 14 (Sonoma) or later. Works on both Intel and Apple Silicon.</source>
        <translation>Tu Mac necesita macOS 14 (Sonoma) o posterior. Funciona tanto en Mac con Intel como con Apple Silicon.</translation>
    </message>
    <message>
        <source>Update your Mac: Apple Menu → System Settings → General → Software Update</source>
        <translation>Actualiza tu Mac: menú Apple → Ajustes del Sistema → General → Actualización de software</translation>
    </message>
    <message>
        <source>The AI assistant and its dependencies need about 1GB of free space on your Mac. This is a one-time installation.</source>
        <translation>El asistente de IA y sus dependencias necesitan aproximadamente 1 GB de espacio libre en tu Mac. Solo se instala una vez.</translation>
    </message>
    <message>
        <source>Install manually: brew install node (or download from %1)</source>
        <translation>Instálalo manualmente: brew install node (o descárgalo de %1)</translation>
    </message>
</context>
<context>
    <name>SystemTool</name>
    <message>
        <source>Open your file manager to manage this folder</source>
        <translation>Abre tu gestor de archivos para administrar esta carpeta</translation>
    </message>
    <message>
        <source>Git &amp; Build Tools</source>
        <translation>Git y herramientas de compilación</translation>
    </message>
    <message>
        <source>Provides Git and build tools</source>
        <translation>Proporciona Git y las herramientas de compilación</translation>
    </message>
    <message>
        <source>Use your system&apos;s package manager to remove Git</source>
        <translation>Usa el gestor de paquetes de tu sistema para eliminar Git</translation>
    </message>
    <message>
        <source>Open Finder to manage this folder</source>
        <translation>Abre Finder para administrar esta carpeta</translation>
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
        <translation>No se ha podido mostrar la carpeta</translation>
    </message>
    <message>
        <source>No file manager answered. Your projects folder is here:</source>
        <translation>Ningún gestor de archivos ha respondido. Tu carpeta de proyectos está aquí:</translation>
    </message>
    <message>
        <source>The installer could not be started</source>
        <translation>No se ha podido iniciar el instalador</translation>
    </message>
    <message>
        <source>Open a terminal yourself and type this line:</source>
        <translation>Abre una terminal por tu cuenta y escribe esta línea:</translation>
    </message>
</context>
<context>
    <name>TerminalLaunchedView</name>
    <message>
        <source>%1 launched in a new terminal window</source>
        <translation>%1 se ha abierto en una nueva ventana de terminal</translation>
    </message>
    <message>
        <source>Switch to the terminal window to start using %1</source>
        <translation>Ve a la ventana de terminal para empezar a usar %1</translation>
    </message>
    <message>
        <source>%1 launched in Terminal</source>
        <translation>%1 se ha abierto en Terminal</translation>
    </message>
    <message>
        <source>Switch to Terminal.app to start using %1</source>
        <translation>Ve a Terminal.app para empezar a usar %1</translation>
    </message>
</context>
<context>
    <name>TerminalLauncher</name>
    <message>
        <source>Quillforge is not allowed to control Terminal</source>
        <translation>Quillforge no tiene permiso para controlar Terminal</translation>
    </message>
    <message>
        <source>To let it open Terminal for you, turn on Terminal under Quillforge in System Settings &gt; Privacy &amp; Security &gt; Automation. Or open Terminal yourself and type this line:</source>
        <translation>Para que pueda abrir Terminal por ti, activa Terminal debajo de Quillforge en Ajustes del Sistema &gt; Privacidad y seguridad &gt; Automatización. O abre Terminal por tu cuenta y escribe esta línea:</translation>
    </message>
</context>
<context>
    <name>ToolInstaller</name>
    <message>
        <source>The installation was stopped. Node.js and %1, installed before that, stay.</source>
        <translation>Se ha detenido la instalación. Node.js y %1, que ya se habían instalado, se mantienen.</translation>
    </message>
    <message>
        <source>The installation was stopped. %1, installed before that, stays.</source>
        <translation>Se ha detenido la instalación. %1, que ya se había instalado, se mantiene.</translation>
    </message>
    <message>
        <source>The installation was stopped. Node.js, installed before that, stays.</source>
        <translation>Se ha detenido la instalación. Node.js, que ya se había instalado, se mantiene.</translation>
    </message>
    <message>
        <source>The installation was stopped. Nothing was changed.</source>
        <translation>Se ha detenido la instalación. No se ha cambiado nada.</translation>
    </message>
    <message>
        <source>An older Node.js (%1 in %2) is found before the one just installed (%3). %4 works with it; to use the new one, remove the older Node.js.</source>
        <translation>Se encuentra un Node.js más antiguo (%1 en %2) antes que el que se acaba de instalar (%3). %4 funciona con él; para usar el nuevo, elimina el Node.js más antiguo.</translation>
    </message>
    <message>
        <source>npm is set to refuse install scripts it was not told to allow (strict-allow-scripts), so parts of %1 may be missing. If it does not start, run &quot;npm config delete strict-allow-scripts&quot; in a terminal window and install it again.</source>
        <translation>npm está configurado para rechazar los scripts de instalación que no se le hayan autorizado (strict-allow-scripts), así que puede que falten partes de %1. Si no arranca, ejecuta “npm config delete strict-allow-scripts” en una ventana de terminal y vuelve a instalarlo.</translation>
    </message>
    <message>
        <source>The installation of %1</source>
        <translation>La instalación de %1</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Creada</translation>
    </message>
    <message>
        <source>Already exists</source>
        <translation>Ya existe</translation>
    </message>
    <message>
        <source>Could not create</source>
        <translation>No se pudo crear</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>No encontrado</translation>
    </message>
    <message>
        <source>Verification failed</source>
        <translation>Falló la verificación</translation>
    </message>
</context>
<context>
    <name>ToolRemover</name>
    <message>
        <source>The removal was stopped, and %1 is still found. Uninstall again to remove what is left of it.</source>
        <translation>Se ha detenido la eliminación y %1 se sigue detectando. Vuelve a desinstalarlo para eliminar lo que queda.</translation>
    </message>
    <message>
        <source>The removal was stopped, but %1 was already removed.</source>
        <translation>Se ha detenido la eliminación, pero %1 ya se había eliminado.</translation>
    </message>
    <message>
        <source>The removal of %1</source>
        <translation>La eliminación de %1</translation>
    </message>
</context>
<context>
    <name>ToolUpdater</name>
    <message>
        <source>The update was stopped, and %1 no longer starts. Install it again from the dashboard.</source>
        <translation>Se ha detenido la actualización y %1 ya no arranca. Vuelve a instalarlo desde el panel.</translation>
    </message>
    <message>
        <source>The update was stopped, but %1 %2 was already in place and starts.</source>
        <translation>Se ha detenido la actualización, pero %1 %2 ya estaba instalado y arranca.</translation>
    </message>
    <message>
        <source>The update was stopped. Node.js, installed before that, stays.</source>
        <translation>Se ha detenido la actualización. Node.js, que ya se había instalado, se mantiene.</translation>
    </message>
    <message>
        <source>The update was stopped. Nothing was changed.</source>
        <translation>Se ha detenido la actualización. No se ha cambiado nada.</translation>
    </message>
    <message>
        <source>%1 is not installed, so there is nothing to update.</source>
        <translation>%1 no está instalado, así que no hay nada que actualizar.</translation>
    </message>
    <message>
        <source>%1 in %2 was not installed with npm, so Quillforge cannot update it. Update it the way it was installed.</source>
        <translation>%1 en %2 no se instaló con npm, así que Quillforge no puede actualizarlo. Actualízalo de la misma forma en que se instaló.</translation>
    </message>
    <message>
        <source>%1 does not start, so it cannot be updated. Install it again from the dashboard.</source>
        <translation>%1 no arranca, así que no se puede actualizar. Vuelve a instalarlo desde el panel.</translation>
    </message>
    <message>
        <source>The newest version of %1 could not be found out. Check that you are online, then try again.</source>
        <translation>No se ha podido averiguar cuál es la versión más reciente de %1. Comprueba que tienes conexión y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>%1 %2 needs Node.js %3 or newer, and no Node.js was found.</source>
        <translation>%1 %2 necesita Node.js %3 o posterior, y no se ha encontrado Node.js.</translation>
    </message>
    <message>
        <source>The update of %1</source>
        <translation>La actualización de %1</translation>
    </message>
    <message>
        <source>The update of %1 finished, but %1 does not start now. Install it again from the dashboard.</source>
        <translation>La actualización de %1 ha terminado, pero %1 ya no arranca. Vuelve a instalarlo desde el panel.</translation>
    </message>
    <message>
        <source>The update of %1 finished, but %1 still reports version %2, which still works.</source>
        <translation>La actualización de %1 ha terminado, pero %1 sigue indicando la versión %2, que sigue funcionando.</translation>
    </message>
    <message>
        <source>%1 was not updated. %2 %1 %3 still works.</source>
        <translation>No se ha actualizado %1. %2 %1 %3 sigue funcionando.</translation>
    </message>
    <message>
        <source>%1 was not updated. %2 %1 %3 no longer starts: install it again from the dashboard.</source>
        <translation>No se ha actualizado %1. %2 %1 %3 ya no arranca: vuelve a instalarlo desde el panel.</translation>
    </message>
    <message>
        <source>Node.js was installed, but no Node.js is found on the search path, so %1 was not updated.</source>
        <translation>Node.js se ha instalado, pero no se encuentra ningún Node.js en la ruta de búsqueda, así que no se ha actualizado %1.</translation>
    </message>
    <message>
        <source>Node.js was installed, but the Node.js found first is still %1 in %2, which is too old for the update of %3. Remove the older Node.js, then try again.</source>
        <translation>Node.js se ha instalado, pero el primer Node.js que se encuentra sigue siendo %1 en %2, demasiado antiguo para actualizar %3. Elimina el Node.js más antiguo y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>%1 %2 needs Node.js %3 or newer; this computer has %4.</source>
        <translation>%1 %2 necesita Node.js %3 o posterior; este ordenador tiene la versión %4.</translation>
    </message>
    <message>
        <source>%1 %2 needs Node.js %3 or newer; this Mac has %4.</source>
        <translation>%1 %2 necesita Node.js %3 o posterior; este Mac tiene la versión %4.</translation>
    </message>
</context>
<context>
    <name>qf::AIToolCard</name>
    <message>
        <source>Installed</source>
        <translation>Instalado</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Update %1</source>
        <translation>Actualizar %1</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Abrir %1</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>Instalar %1</translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation>Actualización disponible: %1</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>No instalado</translation>
    </message>
</context>
<context>
    <name>qf::APIKeyView</name>
    <message>
        <source>Set Up API Key</source>
        <translation>Configurar la clave de API</translation>
    </message>
    <message>
        <source>Skip for Now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>Save &amp; Continue</source>
        <translation>Guardar y continuar</translation>
    </message>
    <message>
        <source>Get your API key to start using %1</source>
        <translation>Consigue tu clave de API para empezar a usar %1</translation>
    </message>
    <message>
        <source>Step 1: Get your API key</source>
        <translation>Paso 1: Consigue tu clave de API</translation>
    </message>
    <message>
        <source>Click the button below to open %1&apos;s console where you can create or copy your API key.</source>
        <translation>Haz clic en el botón de abajo para abrir la consola de %1, donde puedes crear o copiar tu clave de API.</translation>
    </message>
    <message>
        <source>Open %1 Console</source>
        <translation>Abrir la consola de %1</translation>
    </message>
    <message>
        <source>Step 2: Paste your API key</source>
        <translation>Paso 2: Pega tu clave de API</translation>
    </message>
    <message>
        <source>Paste your API key here</source>
        <translation>Pega aquí tu clave de API</translation>
    </message>
    <message>
        <source>API key</source>
        <translation>Clave de API</translation>
    </message>
    <message>
        <source>This will be saved to your shell profile (%1) as %2</source>
        <translation>Se guardará en tu perfil de shell (%1) como %2</translation>
    </message>
    <message>
        <source>Hide key</source>
        <translation>Ocultar clave</translation>
    </message>
    <message>
        <source>Show key</source>
        <translation>Mostrar clave</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Guardando</translation>
    </message>
</context>
<context>
    <name>qf::AboutDialog</name>
    <message>
        <source>About Quillforge</source>
        <translation>Acerca de Quillforge</translation>
    </message>
    <message>
        <source>Quillforge</source>
        <translation>Quillforge</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Gets an AI coding assistant running on your computer, no terminal experience needed.</source>
        <translation>Pone en marcha un asistente de programación con IA en tu ordenador, sin necesidad de saber usar la terminal.</translation>
    </message>
    <message>
        <source>Open the Quillforge website</source>
        <translation>Abrir el sitio web de Quillforge</translation>
    </message>
    <message>
        <source>Copy Version Details</source>
        <translation>Copiar detalles de la versión</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Released under the MIT licence. Built with Qt %1, with icons from Phosphor (also MIT).</source>
        <translation>Publicado con licencia MIT. Creado con Qt %1, con iconos de Phosphor (también MIT).</translation>
    </message>
</context>
<context>
    <name>qf::AccountSetupStepRow</name>
    <message>
        <source>Step %1: %2</source>
        <translation>Paso %1: %2</translation>
    </message>
</context>
<context>
    <name>qf::AccountSetupView</name>
    <message>
        <source>Account</source>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>Create Account</source>
        <translation>Crear cuenta</translation>
    </message>
    <message>
        <source>I Have an Account</source>
        <translation>Ya tengo una cuenta</translation>
    </message>
    <message>
        <source>Before you install %1</source>
        <translation>Antes de instalar %1</translation>
    </message>
</context>
<context>
    <name>qf::CommandRow</name>
    <message>
        <source>Copy %1</source>
        <translation>Copiar %1</translation>
    </message>
</context>
<context>
    <name>qf::CommonCommandsCard</name>
    <message>
        <source>Common Commands</source>
        <translation>Comandos habituales</translation>
    </message>
</context>
<context>
    <name>qf::CompletionView</name>
    <message>
        <source>Ready to use</source>
        <translation>Listo para usar</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Open in Terminal</source>
        <translation>Abrir en Terminal</translation>
    </message>
    <message>
        <source>You&apos;re All Set!</source>
        <translation>¡Todo listo!</translation>
    </message>
    <message>
        <source>%1 is installed and ready to use</source>
        <translation>%1 está instalado y listo para usar</translation>
    </message>
    <message>
        <source>Quick Start</source>
        <translation>Primeros pasos</translation>
    </message>
    <message>
        <source>Open Terminal and try:</source>
        <translation>Abre Terminal y prueba:</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>Copiar %1</translation>
    </message>
    <message>
        <source>Your API key is saved: new terminal windows give it to %1 as %2.</source>
        <translation>Tu clave de API está guardada: las nuevas ventanas de terminal se la pasan a %1 como %2.</translation>
    </message>
    <message>
        <source>Change API Key</source>
        <translation>Cambiar clave de API</translation>
    </message>
    <message>
        <source>Use an API Key Instead</source>
        <translation>Usar una clave de API</translation>
    </message>
</context>
<context>
    <name>qf::DashboardCard</name>
    <message>
        <source>Remove %1</source>
        <translation>Eliminar %1</translation>
    </message>
</context>
<context>
    <name>qf::FirstProjectTipsCard</name>
    <message>
        <source>Your First Project</source>
        <translation>Tu primer proyecto</translation>
    </message>
    <message>
        <source>Create a project folder</source>
        <translation>Crea una carpeta para el proyecto</translation>
    </message>
    <message>
        <source>Initialize git (optional but recommended)</source>
        <translation>Inicializa git (opcional, pero recomendable)</translation>
    </message>
    <message>
        <source>Start your AI assistant</source>
        <translation>Abre tu asistente de IA</translation>
    </message>
    <message>
        <source>Try asking: &quot;Help me build a simple todo list app&quot;</source>
        <translation>Prueba a pedirle: “Ayúdame a crear una app sencilla de lista de tareas”</translation>
    </message>
</context>
<context>
    <name>qf::FirstTimeWelcomeCard</name>
    <message>
        <source>Welcome to Quillforge!</source>
        <translation>¡Te damos la bienvenida a Quillforge!</translation>
    </message>
    <message>
        <source>Let&apos;s get you started with AI-powered coding</source>
        <translation>Empieza a programar con ayuda de la IA</translation>
    </message>
    <message>
        <source>Set up your dev environment</source>
        <translation>Prepara tu entorno de desarrollo</translation>
    </message>
    <message>
        <source>Install %1 and create a project folder</source>
        <translation>Instala %1 y crea una carpeta de proyectos</translation>
    </message>
    <message>
        <source>Install an AI assistant</source>
        <translation>Instala un asistente de IA</translation>
    </message>
    <message>
        <source>Choose Claude Code, Gemini CLI, or Codex</source>
        <translation>Elige Claude Code, Gemini CLI o Codex</translation>
    </message>
    <message>
        <source>Start building</source>
        <translation>Empieza a crear</translation>
    </message>
    <message>
        <source>Describe what you want in plain English</source>
        <translation>Describe lo que quieres con tus propias palabras</translation>
    </message>
    <message>
        <source>**%1** is ready: press **Open** on its card to start it.</source>
        <translation>**%1** está listo: haz clic en **Abrir** en su tarjeta para iniciarlo.</translation>
    </message>
    <message>
        <source>New to this? **%1** is already set up, so start with **Claude Code**.</source>
        <translation>¿Es tu primera vez? Ya tienes **%1**, así que empieza con **Claude Code**.</translation>
    </message>
    <message>
        <source>New to this? Start with **%1**, then try **Claude Code**.</source>
        <translation>¿Es tu primera vez? Empieza con **%1** y luego prueba **Claude Code**.</translation>
    </message>
</context>
<context>
    <name>qf::FlowScreen</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>qf::HomeView</name>
    <message>
        <source>Your AI Coding Assistants</source>
        <translation>Tus asistentes de programación con IA</translation>
    </message>
    <message>
        <source>About Quillforge</source>
        <translation>Acerca de Quillforge</translation>
    </message>
    <message>
        <source>Quillforge</source>
        <translation>Quillforge</translation>
    </message>
    <message>
        <source>Checking your setup...</source>
        <translation>Comprobando tu configuración...</translation>
    </message>
    <message>
        <source>Development Environment</source>
        <translation>Entorno de desarrollo</translation>
    </message>
    <message>
        <source>AI Assistants</source>
        <translation>Asistentes de IA</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Buscando actualizaciones...</translation>
    </message>
    <message>
        <source>Everything is up to date.</source>
        <translation>Todo está actualizado.</translation>
    </message>
    <message>
        <source>Could not check for updates. Check that you are online.</source>
        <translation>No se han podido buscar actualizaciones. Comprueba que tienes conexión.</translation>
    </message>
</context>
<context>
    <name>qf::InstallationController</name>
    <message>
        <source>Stopped</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Error</translation>
    </message>
</context>
<context>
    <name>qf::InstallationView</name>
    <message>
        <source>Installation</source>
        <translation>Instalación</translation>
    </message>
    <message>
        <source>Preparing your development environment...</source>
        <translation>Preparando tu entorno de desarrollo...</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Installation Failed</source>
        <translation>Error de instalación</translation>
    </message>
    <message>
        <source>Show Log File</source>
        <translation>Mostrar archivo de registro</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Installation Complete!</source>
        <translation>¡Instalación completada!</translation>
    </message>
    <message>
        <source>Setting up %1</source>
        <translation>Configurando %1</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Desplegado</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Contraído</translation>
    </message>
    <message>
        <source>Installation Stopped</source>
        <translation>Instalación detenida</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>The log file could not be shown</source>
        <translation>No se ha podido mostrar el archivo de registro</translation>
    </message>
    <message>
        <source>No file manager answered. The log file is here:</source>
        <translation>Ningún gestor de archivos ha respondido. El archivo de registro está aquí:</translation>
    </message>
</context>
<context>
    <name>qf::MainWindow</name>
    <message>
        <source>About Quillforge</source>
        <translation>Acerca de Quillforge</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
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
        <translation>Te damos la bienvenida a Quillforge</translation>
    </message>
    <message>
        <source>Get started with AI-powered coding in minutes</source>
        <translation>Empieza a programar con IA en cuestión de minutos</translation>
    </message>
    <message>
        <source>AI Coding Assistants</source>
        <translation>Asistentes de programación con IA</translation>
    </message>
    <message>
        <source>Install Claude Code, Gemini CLI, or Codex with one click</source>
        <translation>Instala Claude Code, Gemini CLI o Codex con un solo clic</translation>
    </message>
    <message>
        <source>Automatic Setup</source>
        <translation>Configuración automática</translation>
    </message>
    <message>
        <source>We handle the dev environment so you can focus on building</source>
        <translation>Nos encargamos del entorno de desarrollo para que tú te centres en crear</translation>
    </message>
    <message>
        <source>Beginner Friendly</source>
        <translation>Pensado para principiantes</translation>
    </message>
    <message>
        <source>No experience needed - just describe what you want to build</source>
        <translation>No necesitas experiencia: solo describe lo que quieres crear</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Empezar</translation>
    </message>
</context>
<context>
    <name>qf::RemovalSheet</name>
    <message>
        <source>Uninstall %1</source>
        <translation>Desinstalar %1</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Desinstalar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Uninstall Complete</source>
        <translation>Desinstalación completada</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>¿Desinstalar %1?</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Visible</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Oculto</translation>
    </message>
</context>
<context>
    <name>qf::RequirementRow</name>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Will be installed for you</source>
        <translation>Se instalará automáticamente</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>No hay suficiente espacio</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>No instalado</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>No compatible</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Acerca de %1</translation>
    </message>
    <message>
        <source>What is this?</source>
        <translation>¿Qué es esto?</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>Instalar %1</translation>
    </message>
    <message>
        <source>Quillforge installs it for you as part of the setup.</source>
        <translation>Quillforge lo instala por ti durante la configuración.</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Desplegado</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Contraído</translation>
    </message>
</context>
<context>
    <name>qf::StepRow</name>
    <message>
        <source>Copy %1</source>
        <translation>Copiar %1</translation>
    </message>
</context>
<context>
    <name>qf::SystemCheckView</name>
    <message>
        <source>System Check</source>
        <translation>Comprobación del sistema</translation>
    </message>
    <message>
        <source>Checking requirements for %1</source>
        <translation>Comprobando los requisitos de %1</translation>
    </message>
    <message>
        <source>Checking system requirements...</source>
        <translation>Comprobando los requisitos del sistema...</translation>
    </message>
    <message>
        <source>You&apos;re ready to use it in Terminal.</source>
        <translation>Ya puedes usarlo en Terminal.</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Volver a comprobar</translation>
    </message>
    <message>
        <source>The installer could not be started</source>
        <translation>No se ha podido iniciar el instalador</translation>
    </message>
    <message>
        <source>Open a terminal yourself and type this line:</source>
        <translation>Abre una terminal por tu cuenta y escribe esta línea:</translation>
    </message>
    <message>
        <source>%1 is already installed!</source>
        <translation>¡%1 ya está instalado!</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Herramienta</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>Versión: %1</translation>
    </message>
    <message>
        <source>Open Terminal</source>
        <translation>Abrir Terminal</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Requirements Not Met</source>
        <translation>No se cumplen los requisitos</translation>
    </message>
    <message>
        <source>Install is not available until this is fixed: %1.</source>
        <translation>No se puede instalar hasta que se solucione esto: %1.</translation>
    </message>
</context>
<context>
    <name>qf::SystemToolCard</name>
    <message>
        <source>Optional</source>
        <translation>Opcional</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>No instalado</translation>
    </message>
    <message>
        <source>Installed for you with Gemini CLI or Codex</source>
        <translation>Se instala automáticamente con Gemini CLI o Codex</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>Instalado</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>an action and the item it acts on</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
</context>
<context>
    <name>qf::SystemToolUninstallSheet</name>
    <message>
        <source>This will remove %1 from your system.</source>
        <translation>Esto eliminará %1 de tu sistema.</translation>
    </message>
</context>
<context>
    <name>qf::TerminalLaunchedView</name>
    <message>
        <source>Open Terminal Again</source>
        <translation>Volver a abrir Terminal</translation>
    </message>
    <message>
        <source>Quick Tips</source>
        <translation>Consejos rápidos</translation>
    </message>
    <message>
        <source>Start %1 in a terminal</source>
        <translation>Inicia %1 en una terminal</translation>
    </message>
</context>
<context>
    <name>qf::TerminalScreenView</name>
    <message>
        <source>Back to Home</source>
        <translation>Volver al inicio</translation>
    </message>
    <message>
        <source>No tool selected</source>
        <translation>No hay ninguna herramienta seleccionada</translation>
    </message>
</context>
<context>
    <name>qf::ToolCard</name>
    <message>
        <source>by %1</source>
        <translation>de %1</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Más información</translation>
    </message>
    <message>
        <source>Learn more about %1</source>
        <translation>Más información sobre %1</translation>
    </message>
</context>
<context>
    <name>qf::UpdateSheet</name>
    <message>
        <source>Update %1</source>
        <translation>Actualizar %1</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Install Node.js and Update</source>
        <translation>Instalar Node.js y actualizar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Update %1?</source>
        <translation>¿Actualizar %1?</translation>
    </message>
    <message>
        <source>%1 goes from version %2 to %3. You stay signed in, and your settings stay as they are.</source>
        <translation>%1 pasará de la versión %2 a la %3. Seguirás con la sesión iniciada y tus ajustes no cambiarán.</translation>
    </message>
    <message>
        <source>%1 is updated to version %2. You stay signed in, and your settings stay as they are.</source>
        <translation>%1 se actualizará a la versión %2. Seguirás con la sesión iniciada y tus ajustes no cambiarán.</translation>
    </message>
    <message>
        <source>Updating %1...</source>
        <translation>Actualizando %1...</translation>
    </message>
    <message>
        <source>This usually takes less than a minute.</source>
        <translation>Esto suele tardar menos de un minuto.</translation>
    </message>
    <message>
        <source>Update Complete</source>
        <translation>Actualización completada</translation>
    </message>
    <message>
        <source>%1 %2 is installed and starts as before.</source>
        <translation>%1 %2 está instalado y arranca como antes.</translation>
    </message>
    <message>
        <source>A Newer Node.js Is Needed</source>
        <translation>Se necesita un Node.js más reciente</translation>
    </message>
    <message>
        <source>Update Stopped</source>
        <translation>Actualización detenida</translation>
    </message>
    <message>
        <source>Update Failed</source>
        <translation>Error de actualización</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Visible</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Oculto</translation>
    </message>
</context>
<context>
    <name>qf::WelcomeView</name>
    <message>
        <source>Choose a Tool</source>
        <translation>Elige una herramienta</translation>
    </message>
    <message>
        <source>Quillforge</source>
        <translation>Quillforge</translation>
    </message>
    <message>
        <source>Set up AI coding assistants the easy way</source>
        <translation>Configura asistentes de programación con IA de forma sencilla</translation>
    </message>
    <message>
        <source>Choose a tool to install:</source>
        <translation>Elige una herramienta para instalar:</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
</context>
<context>
    <name>qf::WhatIsAICodingCard</name>
    <message>
        <source>New to AI Coding?</source>
        <translation>¿Es la primera vez que programas con IA?</translation>
    </message>
    <message>
        <source>AI coding assistants are tools that help you write, understand, and debug code using artificial intelligence.</source>
        <translation>Los asistentes de programación con IA son herramientas que te ayudan a escribir, entender y depurar código mediante inteligencia artificial.</translation>
    </message>
    <message>
        <source>Conversational</source>
        <translation>Conversacional</translation>
    </message>
    <message>
        <source>Describe what you want in plain English and the AI writes the code</source>
        <translation>Describe lo que quieres con tus propias palabras y la IA escribe el código</translation>
    </message>
    <message>
        <source>Code Understanding</source>
        <translation>Comprensión del código</translation>
    </message>
    <message>
        <source>Ask questions about any codebase and get clear explanations</source>
        <translation>Haz preguntas sobre cualquier código y obtén explicaciones claras</translation>
    </message>
    <message>
        <source>Debugging Help</source>
        <translation>Ayuda para depurar</translation>
    </message>
    <message>
        <source>Paste error messages and get solutions, not just explanations</source>
        <translation>Pega los mensajes de error y obtén soluciones, no solo explicaciones</translation>
    </message>
    <message>
        <source>Learning Partner</source>
        <translation>Compañero de aprendizaje</translation>
    </message>
    <message>
        <source>Perfect for learning new languages or frameworks at your own pace</source>
        <translation>Perfecto para aprender nuevos lenguajes o frameworks a tu ritmo</translation>
    </message>
    <message>
        <source>No prior coding experience? That&apos;s okay! AI assistants can help you learn as you build.</source>
        <translation>¿No tienes experiencia programando? ¡No pasa nada! Los asistentes de IA pueden ayudarte a aprender mientras creas.</translation>
    </message>
</context>
<context>
    <name>qf::ui::ActivityIndicator</name>
    <message>
        <source>In progress</source>
        <translation>En curso</translation>
    </message>
</context>
<context>
    <name>qf::ui::CopiedToast</name>
    <message>
        <source>Copied to clipboard</source>
        <translation>Copiado en el portapapeles</translation>
    </message>
</context>
<context>
    <name>qf::ui::CopyButton</name>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy Log</source>
        <translation>Copiar registro</translation>
    </message>
    <message>
        <source>Copy the whole log</source>
        <translation>Copiar todo el registro</translation>
    </message>
</context>
<context>
    <name>qf::ui::DisclosureCard</name>
    <message>
        <source>Expanded</source>
        <translation>Desplegado</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Contraído</translation>
    </message>
</context>
<context>
    <name>qf::ui::LogView</name>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
</context>
<context>
    <name>qf::ui::TerminalFallbackRow</name>
    <message>
        <source>No terminal window could be opened</source>
        <translation>No se ha podido abrir ninguna ventana de terminal</translation>
    </message>
    <message>
        <source>Open a terminal yourself and type this line:</source>
        <translation>Abre una terminal por tu cuenta y escribe esta línea:</translation>
    </message>
    <message>
        <source>Copy the line to type</source>
        <translation>Copiar la línea que hay que escribir</translation>
    </message>
</context>
</TS>
