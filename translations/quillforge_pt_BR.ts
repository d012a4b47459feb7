<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>APIKeyStore</name>
    <message>
        <source>Your key is saved. %1 sets %2 from a command or another variable, so that line was left as it was; your key is on a new line after it, which is the one new terminal windows use.</source>
        <translation>Sua chave foi salva. %1 define %2 a partir de um comando ou de outra variável, então essa linha foi mantida como estava; sua chave está em uma nova linha logo depois dela, que é a usada pelas novas janelas do terminal.</translation>
    </message>
</context>
<context>
    <name>BoundedLog</name>
    <message>
        <source>Earlier output was cut here; the whole log is in the log file.</source>
        <translation>A saída anterior foi cortada aqui; o registro completo está no arquivo de registro.</translation>
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
        <translation>Assistente de programação com IA da Anthropic. Funciona no seu terminal para ajudar você a escrever, depurar e entender código.</translation>
    </message>
    <message>
        <source>Requires an Anthropic account (free tier available)</source>
        <translation>Requer uma conta da Anthropic (há um plano gratuito)</translation>
    </message>
    <message>
        <source>Free tier available, Pro plan for more usage</source>
        <translation>Plano gratuito disponível; plano Pro para usar mais</translation>
    </message>
    <message>
        <source>Sign in with your Anthropic account on first run.</source>
        <translation>Inicie sessão com sua conta da Anthropic na primeira vez que abrir.</translation>
    </message>
    <message>
        <source>Remove Claude Code and its configuration</source>
        <translation>Remover o Claude Code e a configuração dele</translation>
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
        <translation>A IA Gemini do Google no seu terminal. Ótima para gerar código e tirar dúvidas técnicas.</translation>
    </message>
    <message>
        <source>Requires a Google account (you probably have one!)</source>
        <translation>Requer uma conta do Google (você provavelmente já tem uma!)</translation>
    </message>
    <message>
        <source>Free tier with generous limits</source>
        <translation>Plano gratuito com limites generosos</translation>
    </message>
    <message>
        <source>Sign in with your Google account on first run.</source>
        <translation>Inicie sessão com sua conta do Google na primeira vez que abrir.</translation>
    </message>
    <message>
        <source>Uninstall Gemini CLI via npm</source>
        <translation>Desinstalar o Gemini CLI pelo npm</translation>
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
        <translation>O modelo da OpenAI focado em código. Poderoso para completar e gerar código.</translation>
    </message>
    <message>
        <source>Requires a paid ChatGPT plan or an OpenAI API key</source>
        <translation>Requer um plano pago do ChatGPT ou uma chave de API da OpenAI</translation>
    </message>
    <message>
        <source>Included with paid ChatGPT plans, or pay-as-you-go with an API key</source>
        <translation>Incluído nos planos pagos do ChatGPT, ou pague pelo uso com uma chave de API</translation>
    </message>
    <message>
        <source>Sign in with ChatGPT on first run, or use an API key.</source>
        <translation>Inicie sessão com o ChatGPT na primeira vez que abrir, ou use uma chave de API.</translation>
    </message>
    <message>
        <source>Uninstall Codex via npm</source>
        <translation>Desinstalar o Codex pelo npm</translation>
    </message>
    <message>
        <source>Works directly in your project folder</source>
        <translation>Trabalha direto na pasta do seu projeto</translation>
    </message>
    <message>
        <source>Can read, edit, and create files</source>
        <translation>Pode ler, editar e criar arquivos</translation>
    </message>
    <message>
        <source>Runs commands and tests for you</source>
        <translation>Executa comandos e testes para você</translation>
    </message>
    <message>
        <source>Understands your entire codebase</source>
        <translation>Entende todo o código do seu projeto</translation>
    </message>
    <message>
        <source>Powered by Google&apos;s Gemini models</source>
        <translation>Usa os modelos Gemini do Google</translation>
    </message>
    <message>
        <source>Great for code generation</source>
        <translation>Ótimo para gerar código</translation>
    </message>
    <message>
        <source>Helpful for technical explanations</source>
        <translation>Útil para explicações técnicas</translation>
    </message>
    <message>
        <source>Integrates with Google services</source>
        <translation>Integra-se aos serviços do Google</translation>
    </message>
    <message>
        <source>Built on OpenAI&apos;s GPT models</source>
        <translation>Baseado nos modelos GPT da OpenAI</translation>
    </message>
    <message>
        <source>Strong at code completion</source>
        <translation>Muito bom em completar código</translation>
    </message>
    <message>
        <source>Wide language support</source>
        <translation>Compatível com muitas linguagens</translation>
    </message>
    <message>
        <source>Great for quick code generation</source>
        <translation>Ótimo para gerar código rapidamente</translation>
    </message>
    <message>
        <source>On first launch, your browser will open to authenticate.</source>
        <translation>Na primeira vez que você abrir, o navegador será aberto para você iniciar sessão.</translation>
    </message>
    <message>
        <source>Create an Anthropic account</source>
        <translation>Crie uma conta da Anthropic</translation>
    </message>
    <message>
        <source>Visit %1 and sign up with your email or Google account.</source>
        <translation>Acesse %1 e cadastre-se com seu e-mail ou sua conta do Google.</translation>
    </message>
    <message>
        <source>Choose a plan</source>
        <translation>Escolha um plano</translation>
    </message>
    <message>
        <source>Start with the free tier or upgrade to Pro for more usage.</source>
        <translation>Comece com o plano gratuito ou mude para o Pro para usar mais.</translation>
    </message>
    <message>
        <source>Install Claude Code</source>
        <translation>Instale o Claude Code</translation>
    </message>
    <message>
        <source>Sign in from Terminal</source>
        <translation>Inicie sessão pelo Terminal</translation>
    </message>
    <message>
        <source>Use your Google account</source>
        <translation>Use sua conta do Google</translation>
    </message>
    <message>
        <source>If you have Gmail, you already have an account!</source>
        <translation>Se você tem Gmail, já tem uma conta!</translation>
    </message>
    <message>
        <source>Install Gemini CLI</source>
        <translation>Instale o Gemini CLI</translation>
    </message>
    <message>
        <source>Sign in with Google</source>
        <translation>Inicie sessão com o Google</translation>
    </message>
    <message>
        <source>Use your ChatGPT plan</source>
        <translation>Use seu plano do ChatGPT</translation>
    </message>
    <message>
        <source>Codex comes with paid ChatGPT plans such as Plus and Pro. Sign up at %1.</source>
        <translation>O Codex vem incluído nos planos pagos do ChatGPT, como Plus e Pro. Cadastre-se em %1.</translation>
    </message>
    <message>
        <source>Or use an API key</source>
        <translation>Ou use uma chave de API</translation>
    </message>
    <message>
        <source>Without a plan, create an API key with a payment method at %1. This takes a little more setup.</source>
        <translation>Sem um plano, crie uma chave de API com uma forma de pagamento em %1. Isso exige um pouco mais de configuração.</translation>
    </message>
    <message>
        <source>Install Codex</source>
        <translation>Instale o Codex</translation>
    </message>
    <message>
        <source>On first launch, choose &quot;Sign in with ChatGPT&quot;; your browser will open to authenticate.</source>
        <translation>Na primeira vez que abrir, escolha “Sign in with ChatGPT”; o navegador será aberto para você iniciar sessão.</translation>
    </message>
    <message>
        <source>Start interactive session</source>
        <translation>Iniciar o modo interativo</translation>
    </message>
    <message>
        <source>Show all options</source>
        <translation>Mostrar todas as opções</translation>
    </message>
    <message>
        <source>Quick task mode</source>
        <translation>Modo de tarefa rápida</translation>
    </message>
    <message>
        <source>Initialize project settings</source>
        <translation>Criar as configurações do projeto</translation>
    </message>
    <message>
        <source>Quick question</source>
        <translation>Pergunta rápida</translation>
    </message>
    <message>
        <source>Quick task</source>
        <translation>Tarefa rápida</translation>
    </message>
    <message>
        <source>%1 needs Node.js %2 or newer.</source>
        <translation>%1 precisa do Node.js %2 ou mais recente.</translation>
    </message>
    <message>
        <source>We&apos;ll install the CLI tool on your computer.</source>
        <translation>Vamos instalar a ferramenta de linha de comando no seu computador.</translation>
    </message>
    <message>
        <source>We&apos;ll install the CLI tool on your Mac.</source>
        <translation>Vamos instalar a ferramenta de linha de comando no seu Mac.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Sets up Claude Code, Gemini CLI or Codex on this computer. Without options it opens its window; a second launch brings the open window to the front.</source>
        <translation>Instala o Claude Code, o Gemini CLI ou o Codex neste computador. Sem opções, abre a janela do app; se for aberto de novo, traz para a frente a janela que já está aberta.</translation>
    </message>
    <message>
        <source>Run &quot;%1 --help&quot; to see the options.</source>
        <translation>Execute “%1 --help” para ver as opções.</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;: Quillforge takes no files.</source>
        <translation>Argumento inesperado “%1”: o Quillforge não abre arquivos.</translation>
    </message>
</context>
<context>
    <name>Diagnosis</name>
    <message>
        <source>Your computer could not reach the internet. Check that you are online, then try again.</source>
        <translation>Seu computador não conseguiu acessar a internet. Verifique se você está conectado e tente novamente.</translation>
    </message>
    <message>
        <source>The server could not be reached. Check that you are online, then try again.</source>
        <translation>Não foi possível acessar o servidor. Verifique se você está conectado e tente novamente.</translation>
    </message>
    <message>
        <source>The connection timed out. Your internet may be slow or down: try again in a moment.</source>
        <translation>A conexão expirou. Sua internet pode estar lenta ou fora do ar: tente novamente daqui a pouco.</translation>
    </message>
    <message>
        <source>No secure connection to the server could be made. A proxy or security software on this network may be in the way: try another network, or ask whoever runs this one.</source>
        <translation>Não foi possível estabelecer uma conexão segura com o servidor. Um proxy ou um software de segurança desta rede pode estar bloqueando: tente outra rede ou fale com o responsável por ela.</translation>
    </message>
    <message>
        <source>Your user may not change a folder the installation needs. The log names it: make sure it belongs to you, then try again.</source>
        <translation>Seu usuário não pode alterar uma pasta de que a instalação precisa. O registro mostra qual é: confirme que ela pertence a você e tente novamente.</translation>
    </message>
    <message>
        <source>Your disk is full. Free up some space, then try again.</source>
        <translation>Seu disco está cheio. Libere espaço e tente novamente.</translation>
    </message>
    <message>
        <source>What was asked for is not on the server right now. Try again later.</source>
        <translation>O que foi solicitado não está disponível no servidor agora. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Your Node.js is too old for this tool. Update Node.js (or remove the old one so a new one is installed), then try again.</source>
        <translation>Seu Node.js é antigo demais para esta ferramenta. Atualize o Node.js (ou remova o antigo para que um novo seja instalado) e tente novamente.</translation>
    </message>
    <message>
        <source>The download was cut off before it was complete. Try again.</source>
        <translation>O download foi interrompido antes de terminar. Tente novamente.</translation>
    </message>
    <message>
        <source>npm could not write to its folders, which usually happens after an earlier “sudo npm”. Try Again uses a private npm cache for Quillforge and installs %1 into your own ~/.local folder.</source>
        <translation>O npm não conseguiu gravar nas pastas dele, o que costuma acontecer depois de um “sudo npm” anterior. “Tentar novamente” usa um cache do npm exclusivo do Quillforge e instala o %1 na sua pasta ~/.local.</translation>
    </message>
    <message>
        <source>npm could not write to its folders, which usually happens after an earlier “sudo npm”. Try Again uses a private npm cache for Quillforge.</source>
        <translation>O npm não conseguiu gravar nas pastas dele, o que costuma acontecer depois de um “sudo npm” anterior. “Tentar novamente” usa um cache do npm exclusivo do Quillforge.</translation>
    </message>
    <message>
        <source>%1 was not found on the npm registry. Its maker may have moved it; the log has the details.</source>
        <translation>%1 não foi encontrado no repositório do npm. Quem o criou pode tê-lo movido; os detalhes estão no registro.</translation>
    </message>
    <message>
        <source>Something went wrong. The log has the details.</source>
        <translation>Algo deu errado. Os detalhes estão no registro.</translation>
    </message>
    <message>
        <source>Something went wrong. The last message was: “%1”. The log has the details.</source>
        <translation>Algo deu errado. A última mensagem foi: “%1”. Os detalhes estão no registro.</translation>
    </message>
</context>
<context>
    <name>InstallationError</name>
    <message>
        <source>Installation completed but the tool could not be verified. Please try again.</source>
        <translation>A instalação terminou, mas não foi possível verificar a ferramenta. Tente novamente.</translation>
    </message>
    <message>
        <source>Failed to install Node.js. Please install it manually from %1</source>
        <translation>Não foi possível instalar o Node.js. Instale-o manualmente a partir de %1</translation>
    </message>
    <message>
        <source>Uninstall completed but the tool is still detected. Manual removal may be required.</source>
        <translation>A desinstalação terminou, mas a ferramenta ainda é detectada. Talvez seja preciso removê-la manualmente.</translation>
    </message>
    <message>
        <source>Automatic uninstall is not available. Please follow the manual instructions above.</source>
        <translation>A desinstalação automática não está disponível. Siga as instruções manuais acima.</translation>
    </message>
    <message>
        <source>The ~/Developer folder contains files. Please remove your projects first if you want to delete it.</source>
        <translation>A pasta ~/Developer contém arquivos. Se quiser apagá-la, remova seus projetos antes.</translation>
    </message>
    <message>
        <source>Git is required but not found. Please install it by running: %1</source>
        <translation>O Git é necessário, mas não foi encontrado. Instale-o executando: %1</translation>
    </message>
    <message>
        <source>Git is required but not found. Please install Xcode Command Line Tools by running: xcode-select --install</source>
        <translation>O Git é necessário, mas não foi encontrado. Instale as Xcode Command Line Tools executando: xcode-select --install</translation>
    </message>
</context>
<context>
    <name>InstallationView</name>
    <message>
        <source>Good to know</source>
        <translation>Bom saber</translation>
    </message>
</context>
<context>
    <name>NodeInstaller</name>
    <message>
        <source>The installation of Node.js through Homebrew</source>
        <translation>A instalação do Node.js pelo Homebrew</translation>
    </message>
    <message>
        <source>Node.js publishes no release for this computer&apos;s processor. Please install it manually from nodejs.org</source>
        <translation>O Node.js não publica versões para o processador deste computador. Instale-o manualmente a partir de nodejs.org</translation>
    </message>
    <message>
        <source>Could not download the list of Node.js releases. %1</source>
        <translation>Não foi possível baixar a lista de versões do Node.js. %1</translation>
    </message>
    <message>
        <source>No long-term support release of Node.js for %1 was found at %2.</source>
        <translation>Nenhuma versão de suporte de longo prazo do Node.js para %1 foi encontrada em %2.</translation>
    </message>
    <message>
        <source>Could not make a folder for the Node.js download: %1</source>
        <translation>Não foi possível criar uma pasta para o download do Node.js: %1</translation>
    </message>
    <message>
        <source>The download of %1</source>
        <translation>O download de %1</translation>
    </message>
    <message>
        <source>Could not download %1. %2</source>
        <translation>Não foi possível baixar %1. %2</translation>
    </message>
    <message>
        <source>Could not download the checksums of Node.js %1. %2</source>
        <translation>Não foi possível baixar as somas de verificação do Node.js %1. %2</translation>
    </message>
    <message>
        <source>The checksum list of Node.js %1 does not name %2, so nothing was installed.</source>
        <translation>A lista de somas de verificação do Node.js %1 não inclui %2, então nada foi instalado.</translation>
    </message>
    <message>
        <source>The Node.js download does not match its published checksum, so nothing was installed. Please try again.</source>
        <translation>O download do Node.js não corresponde à soma de verificação publicada, então nada foi instalado. Tente novamente.</translation>
    </message>
    <message>
        <source>Unpacking Node.js %1</source>
        <translation>Descompactando o Node.js %1</translation>
    </message>
    <message>
        <source>Could not unpack Node.js %1: %2</source>
        <translation>Não foi possível descompactar o Node.js %1: %2</translation>
    </message>
    <message>
        <source>Node.js was installed, but no Node.js is found on the search path. %1</source>
        <translation>O Node.js foi instalado, mas nenhum Node.js foi encontrado no caminho de busca. %1</translation>
    </message>
    <message>
        <source>Node.js was installed, but the Node.js found first is %1 in %2. %3</source>
        <translation>O Node.js foi instalado, mas o primeiro Node.js encontrado é %1 em %2. %3</translation>
    </message>
    <message>
        <source>Node.js %1 was installed in %2, but Node.js %3 in %4 comes first on the search path. %5 Remove the older Node.js, or put %2 before %4 in your PATH.</source>
        <translation>O Node.js %1 foi instalado em %2, mas o Node.js %3 em %4 vem antes no caminho de busca. %5 Remova o Node.js mais antigo ou coloque %2 antes de %4 no seu PATH.</translation>
    </message>
</context>
<context>
    <name>ProfileWriter</name>
    <message>
        <source>it is not an ordinary file</source>
        <translation>não é um arquivo comum</translation>
    </message>
    <message>
        <source>another change to it did not finish; try again</source>
        <translation>outra alteração nele não terminou; tente novamente</translation>
    </message>
    <message>
        <source>Move it aside so an ordinary file can take its place, then try again.</source>
        <translation>Mova-o para outro lugar para que um arquivo comum possa ocupar o lugar dele e tente novamente.</translation>
    </message>
    <message>
        <source>Make sure the file belongs to you and may be changed, then try again.</source>
        <translation>Confirme que o arquivo pertence a você e pode ser alterado e tente novamente.</translation>
    </message>
    <message>
        <source>Your disk is full: free up some space, then try again.</source>
        <translation>Seu disco está cheio: libere espaço e tente novamente.</translation>
    </message>
    <message>
        <source>The disk it is on cannot be changed right now.</source>
        <translation>O disco em que ele está não pode ser alterado agora.</translation>
    </message>
    <message>
        <source>The file was left as it was; try again.</source>
        <translation>O arquivo foi mantido como estava; tente novamente.</translation>
    </message>
    <message>
        <source>Could not save the API key to %1</source>
        <translation>Não foi possível salvar a chave de API em %1</translation>
    </message>
    <message>
        <source>The API key is longer than %1 characters, much longer than any real key. Copy only the key and paste it again.</source>
        <translation>A chave de API tem mais de %1 caracteres, muito mais do que qualquer chave real. Copie só a chave e cole de novo.</translation>
    </message>
    <message>
        <source>The API key contains a line break. Copy the key again and paste it as one line.</source>
        <translation>A chave de API contém uma quebra de linha. Copie a chave de novo e cole em uma única linha.</translation>
    </message>
    <message>
        <source>The API key contains an invisible control character. Copy the key again and paste it.</source>
        <translation>A chave de API contém um caractere de controle invisível. Copie a chave de novo e cole.</translation>
    </message>
    <message>
        <source>The API key contains a space. Copy only the key and paste it again.</source>
        <translation>A chave de API contém um espaço. Copie só a chave e cole de novo.</translation>
    </message>
    <message>
        <source>Could not add ~/.local/bin to the search path in %1</source>
        <translation>Não foi possível adicionar ~/.local/bin ao caminho de busca em %1</translation>
    </message>
</context>
<context>
    <name>SearchPathFix</name>
    <message>
        <source>A new terminal window will not find %1 yet: your shell does not read %2. Add this line to your shell&apos;s start-up file, then open a new window: %3</source>
        <translation>Uma nova janela do terminal ainda não vai encontrar %1: seu shell não lê %2. Adicione esta linha ao arquivo de inicialização do seu shell e abra uma nova janela: %3</translation>
    </message>
</context>
<context>
    <name>ServiceError</name>
    <message>
        <source>The password dialog was cancelled, so %1 was not removed.</source>
        <translation>A janela de senha foi cancelada, então %1 não foi removido.</translation>
    </message>
    <message>
        <source>The password dialog was cancelled, so %1 was not updated.</source>
        <translation>A janela de senha foi cancelada, então %1 não foi atualizado.</translation>
    </message>
</context>
<context>
    <name>SetupStepStatus</name>
    <message>
        <source>Pending</source>
        <translation>Pendente</translation>
    </message>
    <message>
        <source>In progress...</source>
        <translation>Em andamento...</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Ignorado</translation>
    </message>
</context>
<context>
    <name>SetupStepType</name>
    <message>
        <source>Create ~/Developer folder</source>
        <translation>Criar a pasta ~/Developer</translation>
    </message>
    <message>
        <source>Check for Git</source>
        <translation>Verificar o Git</translation>
    </message>
    <message>
        <source>Install Node.js</source>
        <translation>Instalar o Node.js</translation>
    </message>
    <message>
        <source>Install tool</source>
        <translation>Instalar a ferramenta</translation>
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
        <translation>[saída anterior cortada: seguem os últimos %1 caracteres]</translation>
    </message>
    <message>
        <source>The command did not finish within %1 and was stopped.</source>
        <translation>O comando não terminou em %1 e foi interrompido.</translation>
    </message>
    <message>
        <source>The command wrote more than %1 MB of output and was stopped.</source>
        <translation>O comando gerou mais de %1 MB de saída e foi interrompido.</translation>
    </message>
    <message>
        <source>%1 made no progress for %2 and was stopped.</source>
        <translation>%1 não avançou por %2, e a operação foi interrompida.</translation>
    </message>
    <message>
        <source>The command showed no progress for %1 and was stopped.</source>
        <translation>O comando não mostrou progresso por %1 e foi interrompido.</translation>
    </message>
    <message>
        <source>The command was cancelled.</source>
        <translation>O comando foi cancelado.</translation>
    </message>
    <message>
        <source>Command failed with exit code %1: %2</source>
        <translation>O comando falhou com o código de saída %1: %2</translation>
    </message>
    <message>
        <source>Process error: %1</source>
        <translation>Erro de processo: %1</translation>
    </message>
</context>
<context>
    <name>StagedInstall</name>
    <message>
        <source>a file is where a folder belongs</source>
        <translation>há um arquivo onde deveria haver uma pasta</translation>
    </message>
    <message>
        <source>a folder is where a file belongs</source>
        <translation>há uma pasta onde deveria haver um arquivo</translation>
    </message>
    <message>
        <source>Could not make the folder %1: %2</source>
        <translation>Não foi possível criar a pasta %1: %2</translation>
    </message>
    <message>
        <source>Could not prepare %1 for the installation: %2</source>
        <translation>Não foi possível preparar %1 para a instalação: %2</translation>
    </message>
    <message>
        <source>Could not install %1: %2</source>
        <translation>Não foi possível instalar %1: %2</translation>
    </message>
</context>
<context>
    <name>SupportTools</name>
    <message>
        <source>Only needed for Gemini or Codex</source>
        <translation>Só é necessário para o Gemini ou o Codex</translation>
    </message>
    <message>
        <source>Developer Folder</source>
        <translation>Pasta Developer</translation>
    </message>
    <message>
        <source>Where your projects live</source>
        <translation>Onde ficam seus projetos</translation>
    </message>
    <message>
        <source>This Node.js (%1) was installed by another program. Remove it the way it was installed.</source>
        <translation>Este Node.js (%1) foi instalado por outro programa. Remova-o do mesmo jeito que ele foi instalado.</translation>
    </message>
    <message>
        <source>The removal of %1</source>
        <translation>A remoção de %1</translation>
    </message>
    <message>
        <source>%1 is still installed at %2: its removal did not finish. The output above says why.</source>
        <translation>%1 ainda está instalado em %2: a remoção não terminou. A saída acima explica o motivo.</translation>
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
        <translation>Não instalado</translation>
    </message>
    <message>
        <source>%1 (needs %2 or newer)</source>
        <translation>%1 (requer %2 ou mais recente)</translation>
    </message>
    <message>
        <source>%1 – no longer receives security fixes</source>
        <translation>%1 – não recebe mais correções de segurança</translation>
    </message>
    <message>
        <source>%1 MB available</source>
        <translation>%1 MB disponíveis</translation>
    </message>
    <message>
        <source>%1 MB free, %2 MB needed</source>
        <translation>%1 MB livres, %2 MB necessários</translation>
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
        <translation>1 GB de espaço em disco</translation>
    </message>
    <message>
        <source>Git</source>
        <translation>Git</translation>
    </message>
    <message>
        <source>Node.js is a JavaScript runtime that some AI tools use to run. It&apos;s a standard development tool used by millions of developers.</source>
        <translation>O Node.js é um ambiente de execução de JavaScript que algumas ferramentas de IA usam para funcionar. É uma ferramenta de desenvolvimento padrão, usada por milhões de desenvolvedores.</translation>
    </message>
    <message>
        <source>Git keeps track of the changes in your projects. The AI tools use it to see and undo what they change.</source>
        <translation>O Git acompanha as alterações nos seus projetos. As ferramentas de IA o usam para ver e desfazer o que alteram.</translation>
    </message>
    <message>
        <source>Free up space by emptying Trash or removing unused apps</source>
        <translation>Libere espaço esvaziando a lixeira ou removendo apps que você não usa</translation>
    </message>
    <message>
        <source>64-bit Linux</source>
        <translation>Linux de 64 bits</translation>
    </message>
    <message>
        <source>Your computer needs to be running a 64-bit Linux system. Works on both Intel/AMD and ARM processors.</source>
        <translation>Seu computador precisa usar um sistema Linux de 64 bits. Funciona com processadores Intel/AMD e ARM.</translation>
    </message>
    <message>
        <source>Install the 64-bit edition of your Linux distribution</source>
        <translation>Instale a edição de 64 bits da sua distribuição Linux</translation>
    </message>
    <message>
        <source>The AI assistant and its dependencies need about 1GB of free space on your computer. This is a one-time installation.</source>
        <translation>O assistente de IA e as dependências dele precisam de cerca de 1 GB de espaço livre no seu computador. A instalação é feita uma única vez.</translation>
    </message>
    <message>
        <source>Install manually: download it from %1 (or use your system&apos;s package manager)</source>
        <translation>Instale manualmente: baixe-o em %1 (ou use o gerenciador de pacotes do seu sistema)</translation>
    </message>
    <message>
        <source>macOS 14 or later</source>
        <translation>macOS 14 ou posterior</translation>
    </message>
    <message>
        <source>Your Mac needs to be running macOS 14 (Sonoma) or later. Works on both Intel and Apple Silicon.</source>
        <translation>Seu Mac precisa ter o macOS 14 (Sonoma) ou posterior. Funciona em Macs com Intel e com Apple Silicon.</translation>
    </message>
    <message>
        <source>Update your Mac: Apple Menu → System Settings → General → Software Update</source>
        <translation>Atualize seu Mac: menu Apple → Ajustes do Sistema → Geral → Atualização de Software</translation>
    </message>
    <message>
        <source>The AI assistant and its dependencies need about 1GB of free space on your Mac. This is a one-time installation.</source>
        <translation>O assistente de IA e as dependências dele precisam de cerca de 1 GB de espaço livre no seu Mac. A instalação é feita uma única vez.</translation>
    </message>
    <message>
        <source>Install manually: brew install node (or download from %1)</source>
        <translation>Instale manualmente: brew install node (ou baixe-o em %1)</translation>
    </message>
</context>
<context>
    <name>SystemTool</name>
    <message>
        <source>Open your file manager to manage this folder</source>
        <translation>Abra seu gerenciador de arquivos para organizar esta pasta</translation>
    </message>
    <message>
        <source>Git &amp; Build Tools</source>
        <translation>Git e ferramentas de compilação</translation>
    </message>
    <message>
        <source>Provides Git and build tools</source>
        <translation>Fornece o Git e as ferramentas de compilação</translation>
    </message>
    <message>
        <source>Use your system&apos;s package manager to remove Git</source>
        <translation>Use o gerenciador de pacotes do seu sistema para remover o Git</translation>
    </message>
    <message>
        <source>Open Finder to manage this folder</source>
        <translation>Abra o Finder para organizar esta pasta</translation>
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
        <translation>Não foi possível mostrar a pasta</translation>
    </message>
    <message>
        <source>No file manager answered. Your projects folder is here:</source>
        <translation>Nenhum gerenciador de arquivos respondeu. Sua pasta de projetos está aqui:</translation>
    </message>
    <message>
        <source>The installer could not be started</source>
        <translation>Não foi possível iniciar o instalador</translation>
    </message>
    <message>
        <source>Open a terminal yourself and type this line:</source>
        <translation>Abra um terminal por conta própria e digite esta linha:</translation>
    </message>
</context>
<context>
    <name>TerminalLaunchedView</name>
    <message>
        <source>%1 launched in a new terminal window</source>
        <translation>O %1 foi aberto em uma nova janela do terminal</translation>
    </message>
    <message>
        <source>Switch to the terminal window to start using %1</source>
        <translation>Vá para a janela do terminal para começar a usar o %1</translation>
    </message>
    <message>
        <source>%1 launched in Terminal</source>
        <translation>O %1 foi aberto no Terminal</translation>
    </message>
    <message>
        <source>Switch to Terminal.app to start using %1</source>
        <translation>Vá para o Terminal.app para começar a usar o %1</translation>
    </message>
</context>
<context>
    <name>TerminalLauncher</name>
    <message>
        <source>Quillforge is not allowed to control Terminal</source>
        <translation>O Quillforge não tem permissão para controlar o Terminal</translation>
    </message>
    <message>
        <source>To let it open Terminal for you, turn on Terminal under Quillforge in System Settings &gt; Privacy &amp; Security &gt; Automation. Or open Terminal yourself and type this line:</source>
        <translation>Para que ele possa abrir o Terminal para você, ative o Terminal abaixo de Quillforge em Ajustes do Sistema &gt; Privacidade e Segurança &gt; Automação. Ou abra o Terminal por conta própria e digite esta linha:</translation>
    </message>
</context>
<context>
    <name>ToolInstaller</name>
    <message>
        <source>The installation was stopped. Node.js and %1, installed before that, stay.</source>
        <translation>A instalação foi interrompida. O Node.js e o %1, instalados antes disso, permanecem.</translation>
    </message>
    <message>
        <source>The installation was stopped. %1, installed before that, stays.</source>
        <translation>A instalação foi interrompida. O %1, instalado antes disso, permanece.</translation>
    </message>
    <message>
        <source>The installation was stopped. Node.js, installed before that, stays.</source>
        <translation>A instalação foi interrompida. O Node.js, instalado antes disso, permanece.</translation>
    </message>
    <message>
        <source>The installation was stopped. Nothing was changed.</source>
        <translation>A instalação foi interrompida. Nada foi alterado.</translation>
    </message>
    <message>
        <source>An older Node.js (%1 in %2) is found before the one just installed (%3). %4 works with it; to use the new one, remove the older Node.js.</source>
        <translation>Um Node.js mais antigo (%1 em %2) é encontrado antes do que acabou de ser instalado (%3). O %4 funciona com ele; para usar o novo, remova o Node.js mais antigo.</translation>
    </message>
    <message>
        <source>npm is set to refuse install scripts it was not told to allow (strict-allow-scripts), so parts of %1 may be missing. If it does not start, run &quot;npm config delete strict-allow-scripts&quot; in a terminal window and install it again.</source>
        <translation>O npm está configurado para recusar scripts de instalação que não foram autorizados (strict-allow-scripts), então partes do %1 podem estar faltando. Se ele não abrir, execute “npm config delete strict-allow-scripts” em uma janela do terminal e instale-o de novo.</translation>
    </message>
    <message>
        <source>The installation of %1</source>
        <translation>A instalação do %1</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Criada</translation>
    </message>
    <message>
        <source>Already exists</source>
        <translation>Já existe</translation>
    </message>
    <message>
        <source>Could not create</source>
        <translation>Não foi possível criar</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Não encontrado</translation>
    </message>
    <message>
        <source>Verification failed</source>
        <translation>Falha na verificação</translation>
    </message>
</context>
<context>
    <name>ToolRemover</name>
    <message>
        <source>The removal was stopped, and %1 is still found. Uninstall again to remove what is left of it.</source>
        <translation>A remoção foi interrompida, e o %1 ainda é encontrado. Desinstale de novo para remover o que sobrou dele.</translation>
    </message>
    <message>
        <source>The removal was stopped, but %1 was already removed.</source>
        <translation>A remoção foi interrompida, mas o %1 já tinha sido removido.</translation>
    </message>
    <message>
        <source>The removal of %1</source>
        <translation>A remoção do %1</translation>
    </message>
</context>
<context>
    <name>ToolUpdater</name>
    <message>
        <source>The update was stopped, and %1 no longer starts. Install it again from the dashboard.</source>
        <translation>A atualização foi interrompida, e o %1 não abre mais. Instale-o de novo pelo painel.</translation>
    </message>
    <message>
        <source>The update was stopped, but %1 %2 was already in place and starts.</source>
        <translation>A atualização foi interrompida, mas o %1 %2 já estava instalado e abre normalmente.</translation>
    </message>
    <message>
        <source>The update was stopped. Node.js, installed before that, stays.</source>
        <translation>A atualização foi interrompida. O Node.js, instalado antes disso, permanece.</translation>
    </message>
    <message>
        <source>The update was stopped. Nothing was changed.</source>
        <translation>A atualização foi interrompida. Nada foi alterado.</translation>
    </message>
    <message>
        <source>%1 is not installed, so there is nothing to update.</source>
        <translation>O %1 não está instalado, então não há nada para atualizar.</translation>
    </message>
    <message>
        <source>%1 in %2 was not installed with npm, so Quillforge cannot update it. Update it the way it was installed.</source>
        <translation>O %1 em %2 não foi instalado pelo npm, então o Quillforge não pode atualizá-lo. Atualize-o do mesmo jeito que ele foi instalado.</translation>
    </message>
    <message>
        <source>%1 does not start, so it cannot be updated. Install it again from the dashboard.</source>
        <translation>O %1 não abre, então não pode ser atualizado. Instale-o de novo pelo painel.</translation>
    </message>
    <message>
        <source>The newest version of %1 could not be found out. Check that you are online, then try again.</source>
        <translation>Não foi possível descobrir a versão mais recente do %1. Verifique se você está conectado e tente novamente.</translation>
    </message>
    <message>
        <source>%1 %2 needs Node.js %3 or newer, and no Node.js was found.</source>
        <translation>O %1 %2 precisa do Node.js %3 ou mais recente, e nenhum Node.js foi encontrado.</translation>
    </message>
    <message>
        <source>The update of %1</source>
        <translation>A atualização do %1</translation>
    </message>
    <message>
        <source>The update of %1 finished, but %1 does not start now. Install it again from the dashboard.</source>
        <translation>A atualização do %1 terminou, mas o %1 não abre mais. Instale-o de novo pelo painel.</translation>
    </message>
    <message>
        <source>The update of %1 finished, but %1 still reports version %2, which still works.</source>
        <translation>A atualização do %1 terminou, mas o %1 ainda informa a versão %2, que continua funcionando.</translation>
    </message>
    <message>
        <source>%1 was not updated. %2 %1 %3 still works.</source>
        <translation>O %1 não foi atualizado. %2 O %1 %3 continua funcionando.</translation>
    </message>
    <message>
        <source>%1 was not updated. %2 %1 %3 no longer starts: install it again from the dashboard.</source>
        <translation>O %1 não foi atualizado. %2 O %1 %3 não abre mais: instale-o de novo pelo painel.</translation>
    </message>
    <message>
        <source>Node.js was installed, but no Node.js is found on the search path, so %1 was not updated.</source>
        <translation>O Node.js foi instalado, mas nenhum Node.js foi encontrado no caminho de busca, então o %1 não foi atualizado.</translation>
    </message>
    <message>
        <source>Node.js was installed, but the Node.js found first is still %1 in %2, which is too old for the update of %3. Remove the older Node.js, then try again.</source>
        <translation>O Node.js foi instalado, mas o primeiro Node.js encontrado ainda é %1 em %2, antigo demais para a atualização do %3. Remova o Node.js mais antigo e tente novamente.</translation>
    </message>
    <message>
        <source>%1 %2 needs Node.js %3 or newer; this computer has %4.</source>
        <translation>O %1 %2 precisa do Node.js %3 ou mais recente; este computador tem a versão %4.</translation>
    </message>
    <message>
        <source>%1 %2 needs Node.js %3 or newer; this Mac has %4.</source>
        <translation>O %1 %2 precisa do Node.js %3 ou mais recente; este Mac tem a versão %4.</translation>
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
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Update %1</source>
        <translation>Atualizar %1</translation>
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
        <translation>Atualização disponível: %1</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Não instalado</translation>
    </message>
</context>
<context>
    <name>qf::APIKeyView</name>
    <message>
        <source>Set Up API Key</source>
        <translation>Configurar chave de API</translation>
    </message>
    <message>
        <source>Skip for Now</source>
        <translation>Agora não</translation>
    </message>
    <message>
        <source>Save &amp; Continue</source>
        <translation>Salvar e continuar</translation>
    </message>
    <message>
        <source>Get your API key to start using %1</source>
        <translation>Obtenha sua chave de API para começar a usar o %1</translation>
    </message>
    <message>
        <source>Step 1: Get your API key</source>
        <translation>Passo 1: obtenha sua chave de API</translation>
    </message>
    <message>
        <source>Click the button below to open %1&apos;s console where you can create or copy your API key.</source>
        <translation>Clique no botão abaixo para abrir o console de %1, onde você pode criar ou copiar sua chave de API.</translation>
    </message>
    <message>
        <source>Open %1 Console</source>
        <translation>Abrir o console de %1</translation>
    </message>
    <message>
        <source>Step 2: Paste your API key</source>
        <translation>Passo 2: cole sua chave de API</translation>
    </message>
    <message>
        <source>Paste your API key here</source>
        <translation>Cole sua chave de API aqui</translation>
    </message>
    <message>
        <source>API key</source>
        <translation>Chave de API</translation>
    </message>
    <message>
        <source>This will be saved to your shell profile (%1) as %2</source>
        <translation>Ela será salva no seu perfil do shell (%1) como %2</translation>
    </message>
    <message>
        <source>Hide key</source>
        <translation>Ocultar chave</translation>
    </message>
    <message>
        <source>Show key</source>
        <translation>Mostrar chave</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Salvando</translation>
    </message>
</context>
<context>
    <name>qf::AboutDialog</name>
    <message>
        <source>About Quillforge</source>
        <translation>Sobre o Quillforge</translation>
    </message>
    <message>
        <source>Quillforge</source>
        <translation>Quillforge</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>Gets an AI coding assistant running on your computer, no terminal experience needed.</source>
        <translation>Coloca um assistente de programação com IA para funcionar no seu computador, sem precisar saber usar o terminal.</translation>
    </message>
    <message>
        <source>Open the Quillforge website</source>
        <translation>Abrir o site do Quillforge</translation>
    </message>
    <message>
        <source>Copy Version Details</source>
        <translation>Copiar detalhes da versão</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Released under the MIT licence. Built with Qt %1, with icons from Phosphor (also MIT).</source>
        <translation>Publicado sob a licença MIT. Feito com Qt %1, com ícones do Phosphor (também MIT).</translation>
    </message>
</context>
<context>
    <name>qf::AccountSetupStepRow</name>
    <message>
        <source>Step %1: %2</source>
        <translation>Passo %1: %2</translation>
    </message>
</context>
<context>
    <name>qf::AccountSetupView</name>
    <message>
        <source>Account</source>
        <translation>Conta</translation>
    </message>
    <message>
        <source>Create Account</source>
        <translation>Criar conta</translation>
    </message>
    <message>
        <source>I Have an Account</source>
        <translation>Já tenho uma conta</translation>
    </message>
    <message>
        <source>Before you install %1</source>
        <translation>Antes de instalar o %1</translation>
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
        <translation>Comandos comuns</translation>
    </message>
</context>
<context>
    <name>qf::CompletionView</name>
    <message>
        <source>Ready to use</source>
        <translation>Pronto para usar</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>Open in Terminal</source>
        <translation>Abrir no Terminal</translation>
    </message>
    <message>
        <source>You&apos;re All Set!</source>
        <translation>Tudo pronto!</translation>
    </message>
    <message>
        <source>%1 is installed and ready to use</source>
        <translation>O %1 está instalado e pronto para usar</translation>
    </message>
    <message>
        <source>Quick Start</source>
        <translation>Primeiros passos</translation>
    </message>
    <message>
        <source>Open Terminal and try:</source>
        <translation>Abra o Terminal e experimente:</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>Copiar %1</translation>
    </message>
    <message>
        <source>Your API key is saved: new terminal windows give it to %1 as %2.</source>
        <translation>Sua chave de API está salva: as novas janelas do terminal a passam para o %1 como %2.</translation>
    </message>
    <message>
        <source>Change API Key</source>
        <translation>Alterar chave de API</translation>
    </message>
    <message>
        <source>Use an API Key Instead</source>
        <translation>Usar uma chave de API</translation>
    </message>
</context>
<context>
    <name>qf::DashboardCard</name>
    <message>
        <source>Remove %1</source>
        <translation>Remover %1</translation>
    </message>
</context>
<context>
    <name>qf::FirstProjectTipsCard</name>
    <message>
        <source>Your First Project</source>
        <translation>Seu primeiro projeto</translation>
    </message>
    <message>
        <source>Create a project folder</source>
        <translation>Crie uma pasta para o projeto</translation>
    </message>
    <message>
        <source>Initialize git (optional but recommended)</source>
        <translation>Inicialize o git (opcional, mas recomendado)</translation>
    </message>
    <message>
        <source>Start your AI assistant</source>
        <translation>Abra seu assistente de IA</translation>
    </message>
    <message>
        <source>Try asking: &quot;Help me build a simple todo list app&quot;</source>
        <translation>Experimente pedir: “Me ajude a criar um app simples de lista de tarefas”</translation>
    </message>
</context>
<context>
    <name>qf::FirstTimeWelcomeCard</name>
    <message>
        <source>Welcome to Quillforge!</source>
        <translation>Boas-vindas ao Quillforge!</translation>
    </message>
    <message>
        <source>Let&apos;s get you started with AI-powered coding</source>
        <translation>Comece a programar com a ajuda da IA</translation>
    </message>
    <message>
        <source>Set up your dev environment</source>
        <translation>Prepare seu ambiente de desenvolvimento</translation>
    </message>
    <message>
        <source>Install %1 and create a project folder</source>
        <translation>Instale %1 e crie uma pasta de projetos</translation>
    </message>
    <message>
        <source>Install an AI assistant</source>
        <translation>Instale um assistente de IA</translation>
    </message>
    <message>
        <source>Choose Claude Code, Gemini CLI, or Codex</source>
        <translation>Escolha o Claude Code, o Gemini CLI ou o Codex</translation>
    </message>
    <message>
        <source>Start building</source>
        <translation>Comece a criar</translation>
    </message>
    <message>
        <source>Describe what you want in plain English</source>
        <translation>Descreva o que você quer com suas próprias palavras</translation>
    </message>
    <message>
        <source>**%1** is ready: press **Open** on its card to start it.</source>
        <translation>**%1** está pronto: clique em **Abrir** no cartão dele para iniciá-lo.</translation>
    </message>
    <message>
        <source>New to this? **%1** is already set up, so start with **Claude Code**.</source>
        <translation>É sua primeira vez? Você já tem **%1**, então comece pelo **Claude Code**.</translation>
    </message>
    <message>
        <source>New to this? Start with **%1**, then try **Claude Code**.</source>
        <translation>É sua primeira vez? Comece por **%1** e depois experimente o **Claude Code**.</translation>
    </message>
</context>
<context>
    <name>qf::FlowScreen</name>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
</context>
<context>
    <name>qf::HomeView</name>
    <message>
        <source>Your AI Coding Assistants</source>
        <translation>Seus assistentes de programação com IA</translation>
    </message>
    <message>
        <source>About Quillforge</source>
        <translation>Sobre o Quillforge</translation>
    </message>
    <message>
        <source>Quillforge</source>
        <translation>Quillforge</translation>
    </message>
    <message>
        <source>Checking your setup...</source>
        <translation>Verificando sua configuração...</translation>
    </message>
    <message>
        <source>Development Environment</source>
        <translation>Ambiente de desenvolvimento</translation>
    </message>
    <message>
        <source>AI Assistants</source>
        <translation>Assistentes de IA</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Verificar atualizações</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Verificando atualizações...</translation>
    </message>
    <message>
        <source>Everything is up to date.</source>
        <translation>Tudo está atualizado.</translation>
    </message>
    <message>
        <source>Could not check for updates. Check that you are online.</source>
        <translation>Não foi possível verificar atualizações. Verifique se você está conectado.</translation>
    </message>
</context>
<context>
    <name>qf::InstallationController</name>
    <message>
        <source>Stopped</source>
        <translation>Interrompido</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falhou</translation>
    </message>
</context>
<context>
    <name>qf::InstallationView</name>
    <message>
        <source>Installation</source>
        <translation>Instalação</translation>
    </message>
    <message>
        <source>Preparing your development environment...</source>
        <translation>Preparando seu ambiente de desenvolvimento...</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>Installation Failed</source>
        <translation>Falha na instalação</translation>
    </message>
    <message>
        <source>Show Log File</source>
        <translation>Mostrar arquivo de registro</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Installation Complete!</source>
        <translation>Instalação concluída!</translation>
    </message>
    <message>
        <source>Setting up %1</source>
        <translation>Configurando %1</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Expandido</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Recolhido</translation>
    </message>
    <message>
        <source>Installation Stopped</source>
        <translation>Instalação interrompida</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>The log file could not be shown</source>
        <translation>Não foi possível mostrar o arquivo de registro</translation>
    </message>
    <message>
        <source>No file manager answered. The log file is here:</source>
        <translation>Nenhum gerenciador de arquivos respondeu. O arquivo de registro está aqui:</translation>
    </message>
</context>
<context>
    <name>qf::MainWindow</name>
    <message>
        <source>About Quillforge</source>
        <translation>Sobre o Quillforge</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
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
        <translation>Boas-vindas ao Quillforge</translation>
    </message>
    <message>
        <source>Get started with AI-powered coding in minutes</source>
        <translation>Comece a programar com IA em poucos minutos</translation>
    </message>
    <message>
        <source>AI Coding Assistants</source>
        <translation>Assistentes de programação com IA</translation>
    </message>
    <message>
        <source>Install Claude Code, Gemini CLI, or Codex with one click</source>
        <translation>Instale o Claude Code, o Gemini CLI ou o Codex com um clique</translation>
    </message>
    <message>
        <source>Automatic Setup</source>
        <translation>Configuração automática</translation>
    </message>
    <message>
        <source>We handle the dev environment so you can focus on building</source>
        <translation>Cuidamos do ambiente de desenvolvimento para você se concentrar em criar</translation>
    </message>
    <message>
        <source>Beginner Friendly</source>
        <translation>Feito para iniciantes</translation>
    </message>
    <message>
        <source>No experience needed - just describe what you want to build</source>
        <translation>Não precisa de experiência: é só descrever o que você quer criar</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Começar</translation>
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
        <translation>Detalhes</translation>
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
        <translation>Concluído</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uninstall Complete</source>
        <translation>Desinstalação concluída</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>Desinstalar %1?</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Visível</translation>
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
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Will be installed for you</source>
        <translation>Será instalado para você</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>Espaço insuficiente</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Não instalado</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>Não compatível</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Sobre %1</translation>
    </message>
    <message>
        <source>What is this?</source>
        <translation>O que é isto?</translation>
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
        <translation>O Quillforge instala isso para você durante a configuração.</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Expandido</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Recolhido</translation>
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
        <translation>Verificação do sistema</translation>
    </message>
    <message>
        <source>Checking requirements for %1</source>
        <translation>Verificando os requisitos para %1</translation>
    </message>
    <message>
        <source>Checking system requirements...</source>
        <translation>Verificando os requisitos do sistema...</translation>
    </message>
    <message>
        <source>You&apos;re ready to use it in Terminal.</source>
        <translation>Você já pode usá-lo no Terminal.</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Verificar de novo</translation>
    </message>
    <message>
        <source>The installer could not be started</source>
        <translation>Não foi possível iniciar o instalador</translation>
    </message>
    <message>
        <source>Open a terminal yourself and type this line:</source>
        <translation>Abra um terminal por conta própria e digite esta linha:</translation>
    </message>
    <message>
        <source>%1 is already installed!</source>
        <translation>%1 já está instalado!</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Ferramenta</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>Versão: %1</translation>
    </message>
    <message>
        <source>Open Terminal</source>
        <translation>Abrir o Terminal</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Requirements Not Met</source>
        <translation>Requisitos não atendidos</translation>
    </message>
    <message>
        <source>Install is not available until this is fixed: %1.</source>
        <translation>Não é possível instalar até que isto seja resolvido: %1.</translation>
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
        <translation>Não instalado</translation>
    </message>
    <message>
        <source>Installed for you with Gemini CLI or Codex</source>
        <translation>Instalado para você com o Gemini CLI ou o Codex</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
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
        <translation>Criar</translation>
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
        <translation>Isso removerá %1 do seu sistema.</translation>
    </message>
</context>
<context>
    <name>qf::TerminalLaunchedView</name>
    <message>
        <source>Open Terminal Again</source>
        <translation>Abrir o Terminal de novo</translation>
    </message>
    <message>
        <source>Quick Tips</source>
        <translation>Dicas rápidas</translation>
    </message>
    <message>
        <source>Start %1 in a terminal</source>
        <translation>Inicie o %1 em um terminal</translation>
    </message>
</context>
<context>
    <name>qf::TerminalScreenView</name>
    <message>
        <source>Back to Home</source>
        <translation>Voltar ao início</translation>
    </message>
    <message>
        <source>No tool selected</source>
        <translation>Nenhuma ferramenta selecionada</translation>
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
        <translation>Saiba mais</translation>
    </message>
    <message>
        <source>Learn more about %1</source>
        <translation>Saiba mais sobre %1</translation>
    </message>
</context>
<context>
    <name>qf::UpdateSheet</name>
    <message>
        <source>Update %1</source>
        <translation>Atualizar %1</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Install Node.js and Update</source>
        <translation>Instalar Node.js e atualizar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Update %1?</source>
        <translation>Atualizar %1?</translation>
    </message>
    <message>
        <source>%1 goes from version %2 to %3. You stay signed in, and your settings stay as they are.</source>
        <translation>O %1 vai passar da versão %2 para a %3. Sua sessão continua ativa, e suas configurações ficam como estão.</translation>
    </message>
    <message>
        <source>%1 is updated to version %2. You stay signed in, and your settings stay as they are.</source>
        <translation>O %1 será atualizado para a versão %2. Sua sessão continua ativa, e suas configurações ficam como estão.</translation>
    </message>
    <message>
        <source>Updating %1...</source>
        <translation>Atualizando %1...</translation>
    </message>
    <message>
        <source>This usually takes less than a minute.</source>
        <translation>Isso costuma levar menos de um minuto.</translation>
    </message>
    <message>
        <source>Update Complete</source>
        <translation>Atualização concluída</translation>
    </message>
    <message>
        <source>%1 %2 is installed and starts as before.</source>
        <translation>O %1 %2 está instalado e abre como antes.</translation>
    </message>
    <message>
        <source>A Newer Node.js Is Needed</source>
        <translation>É preciso um Node.js mais recente</translation>
    </message>
    <message>
        <source>Update Stopped</source>
        <translation>Atualização interrompida</translation>
    </message>
    <message>
        <source>Update Failed</source>
        <translation>Falha na atualização</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Visível</translation>
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
        <translation>Escolha uma ferramenta</translation>
    </message>
    <message>
        <source>Quillforge</source>
        <translation>Quillforge</translation>
    </message>
    <message>
        <source>Set up AI coding assistants the easy way</source>
        <translation>Configure assistentes de programação com IA do jeito fácil</translation>
    </message>
    <message>
        <source>Choose a tool to install:</source>
        <translation>Escolha uma ferramenta para instalar:</translation>
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
        <translation>Primeira vez programando com IA?</translation>
    </message>
    <message>
        <source>AI coding assistants are tools that help you write, understand, and debug code using artificial intelligence.</source>
        <translation>Assistentes de programação com IA são ferramentas que ajudam você a escrever, entender e depurar código usando inteligência artificial.</translation>
    </message>
    <message>
        <source>Conversational</source>
        <translation>Conversacional</translation>
    </message>
    <message>
        <source>Describe what you want in plain English and the AI writes the code</source>
        <translation>Descreva o que você quer com suas próprias palavras e a IA escreve o código</translation>
    </message>
    <message>
        <source>Code Understanding</source>
        <translation>Entendimento do código</translation>
    </message>
    <message>
        <source>Ask questions about any codebase and get clear explanations</source>
        <translation>Faça perguntas sobre qualquer código e receba explicações claras</translation>
    </message>
    <message>
        <source>Debugging Help</source>
        <translation>Ajuda na depuração</translation>
    </message>
    <message>
        <source>Paste error messages and get solutions, not just explanations</source>
        <translation>Cole mensagens de erro e receba soluções, não só explicações</translation>
    </message>
    <message>
        <source>Learning Partner</source>
        <translation>Parceiro de aprendizado</translation>
    </message>
    <message>
        <source>Perfect for learning new languages or frameworks at your own pace</source>
        <translation>Perfeito para aprender novas linguagens ou frameworks no seu ritmo</translation>
    </message>
    <message>
        <source>No prior coding experience? That&apos;s okay! AI assistants can help you learn as you build.</source>
        <translation>Nunca programou? Tudo bem! Os assistentes de IA podem ajudar você a aprender enquanto cria.</translation>
    </message>
</context>
<context>
    <name>qf::ui::ActivityIndicator</name>
    <message>
        <source>In progress</source>
        <translation>Em andamento</translation>
    </message>
</context>
<context>
    <name>qf::ui::CopiedToast</name>
    <message>
        <source>Copied to clipboard</source>
        <translation>Copiado para a área de transferência</translation>
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
        <translation>Copiar todo o registro</translation>
    </message>
</context>
<context>
    <name>qf::ui::DisclosureCard</name>
    <message>
        <source>Expanded</source>
        <translation>Expandido</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Recolhido</translation>
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
        <translation>Não foi possível abrir uma janela do terminal</translation>
    </message>
    <message>
        <source>Open a terminal yourself and type this line:</source>
        <translation>Abra um terminal por conta própria e digite esta linha:</translation>
    </message>
    <message>
        <source>Copy the line to type</source>
        <translation>Copiar a linha a ser digitada</translation>
    </message>
</context>
</TS>
