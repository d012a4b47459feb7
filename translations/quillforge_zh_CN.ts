<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>APIKeyStore</name>
    <message>
        <source>Your key is saved. %1 sets %2 from a command or another variable, so that line was left as it was; your key is on a new line after it, which is the one new terminal windows use.</source>
        <translation>密钥已保存。%1 通过命令或其他变量设置 %2，因此那一行保持原样；密钥写在它后面的新一行，新的终端窗口会使用这一行。</translation>
    </message>
</context>
<context>
    <name>BoundedLog</name>
    <message>
        <source>Earlier output was cut here; the whole log is in the log file.</source>
        <translation>此处省略了之前的输出；完整日志见日志文件。</translation>
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
        <translation>来自 Anthropic 的 AI 编程助手。在终端中工作，帮助编写、调试和理解代码。</translation>
    </message>
    <message>
        <source>Requires an Anthropic account (free tier available)</source>
        <translation>需要 Anthropic 账户（提供免费套餐）</translation>
    </message>
    <message>
        <source>Free tier available, Pro plan for more usage</source>
        <translation>提供免费套餐，Pro 套餐用量更多</translation>
    </message>
    <message>
        <source>Sign in with your Anthropic account on first run.</source>
        <translation>首次运行时使用 Anthropic 账户登录。</translation>
    </message>
    <message>
        <source>Remove Claude Code and its configuration</source>
        <translation>移除 Claude Code 及其配置</translation>
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
        <translation>在终端中使用 Google 的 Gemini AI。非常适合生成代码和解答技术问题。</translation>
    </message>
    <message>
        <source>Requires a Google account (you probably have one!)</source>
        <translation>需要 Google 账户（您很可能已经有了！）</translation>
    </message>
    <message>
        <source>Free tier with generous limits</source>
        <translation>免费套餐额度充足</translation>
    </message>
    <message>
        <source>Sign in with your Google account on first run.</source>
        <translation>首次运行时使用 Google 账户登录。</translation>
    </message>
    <message>
        <source>Uninstall Gemini CLI via npm</source>
        <translation>通过 npm 卸载 Gemini CLI</translation>
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
        <translation>OpenAI 专注于代码的模型。代码补全和生成能力强大。</translation>
    </message>
    <message>
        <source>Requires a paid ChatGPT plan or an OpenAI API key</source>
        <translation>需要付费的 ChatGPT 套餐或 OpenAI API 密钥</translation>
    </message>
    <message>
        <source>Included with paid ChatGPT plans, or pay-as-you-go with an API key</source>
        <translation>包含在付费 ChatGPT 套餐中，也可使用 API 密钥按量付费</translation>
    </message>
    <message>
        <source>Sign in with ChatGPT on first run, or use an API key.</source>
        <translation>首次运行时使用 ChatGPT 登录，或使用 API 密钥。</translation>
    </message>
    <message>
        <source>Uninstall Codex via npm</source>
        <translation>通过 npm 卸载 Codex</translation>
    </message>
    <message>
        <source>Works directly in your project folder</source>
        <translation>直接在项目文件夹中工作</translation>
    </message>
    <message>
        <source>Can read, edit, and create files</source>
        <translation>可以读取、编辑和创建文件</translation>
    </message>
    <message>
        <source>Runs commands and tests for you</source>
        <translation>代为运行命令和测试</translation>
    </message>
    <message>
        <source>Understands your entire codebase</source>
        <translation>理解整个代码库</translation>
    </message>
    <message>
        <source>Powered by Google&apos;s Gemini models</source>
        <translation>由 Google 的 Gemini 模型驱动</translation>
    </message>
    <message>
        <source>Great for code generation</source>
        <translation>非常适合生成代码</translation>
    </message>
    <message>
        <source>Helpful for technical explanations</source>
        <translation>善于解释技术问题</translation>
    </message>
    <message>
        <source>Integrates with Google services</source>
        <translation>与 Google 服务集成</translation>
    </message>
    <message>
        <source>Built on OpenAI&apos;s GPT models</source>
        <translation>基于 OpenAI 的 GPT 模型</translation>
    </message>
    <message>
        <source>Strong at code completion</source>
        <translation>擅长代码补全</translation>
    </message>
    <message>
        <source>Wide language support</source>
        <translation>支持多种编程语言</translation>
    </message>
    <message>
        <source>Great for quick code generation</source>
        <translation>适合快速生成代码</translation>
    </message>
    <message>
        <source>On first launch, your browser will open to authenticate.</source>
        <translation>首次启动时会打开浏览器进行身份验证。</translation>
    </message>
    <message>
        <source>Create an Anthropic account</source>
        <translation>创建 Anthropic 账户</translation>
    </message>
    <message>
        <source>Visit %1 and sign up with your email or Google account.</source>
        <translation>访问 %1，使用电子邮件或 Google 账户注册。</translation>
    </message>
    <message>
        <source>Choose a plan</source>
        <translation>选择套餐</translation>
    </message>
    <message>
        <source>Start with the free tier or upgrade to Pro for more usage.</source>
        <translation>先从免费套餐开始，或升级到 Pro 以获得更多用量。</translation>
    </message>
    <message>
        <source>Install Claude Code</source>
        <translation>安装 Claude Code</translation>
    </message>
    <message>
        <source>Sign in from Terminal</source>
        <translation>在终端中登录</translation>
    </message>
    <message>
        <source>Use your Google account</source>
        <translation>使用 Google 账户</translation>
    </message>
    <message>
        <source>If you have Gmail, you already have an account!</source>
        <translation>有 Gmail 的话，就已经有账户了！</translation>
    </message>
    <message>
        <source>Install Gemini CLI</source>
        <translation>安装 Gemini CLI</translation>
    </message>
    <message>
        <source>Sign in with Google</source>
        <translation>使用 Google 登录</translation>
    </message>
    <message>
        <source>Use your ChatGPT plan</source>
        <translation>使用 ChatGPT 套餐</translation>
    </message>
    <message>
        <source>Codex comes with paid ChatGPT plans such as Plus and Pro. Sign up at %1.</source>
        <translation>Codex 包含在 Plus、Pro 等付费 ChatGPT 套餐中。请在 %1 注册。</translation>
    </message>
    <message>
        <source>Or use an API key</source>
        <translation>或使用 API 密钥</translation>
    </message>
    <message>
        <source>Without a plan, create an API key with a payment method at %1. This takes a little more setup.</source>
        <translation>如果没有套餐，可以在 %1 添加付款方式并创建 API 密钥。设置步骤会稍多一些。</translation>
    </message>
    <message>
        <source>Install Codex</source>
        <translation>安装 Codex</translation>
    </message>
    <message>
        <source>On first launch, choose &quot;Sign in with ChatGPT&quot;; your browser will open to authenticate.</source>
        <translation>首次启动时选择“Sign in with ChatGPT”，浏览器会打开以进行身份验证。</translation>
    </message>
    <message>
        <source>Start interactive session</source>
        <translation>启动交互式会话</translation>
    </message>
    <message>
        <source>Show all options</source>
        <translation>显示所有选项</translation>
    </message>
    <message>
        <source>Quick task mode</source>
        <translation>快速任务模式</translation>
    </message>
    <message>
        <source>Initialize project settings</source>
        <translation>初始化项目设置</translation>
    </message>
    <message>
        <source>Quick question</source>
        <translation>快速提问</translation>
    </message>
    <message>
        <source>Quick task</source>
        <translation>快速任务</translation>
    </message>
    <message>
        <source>%1 needs Node.js %2 or newer.</source>
        <translation>%1 需要 Node.js %2 或更高版本。</translation>
    </message>
    <message>
        <source>We&apos;ll install the CLI tool on your computer.</source>
        <translation>将在这台电脑上安装 CLI 工具。</translation>
    </message>
    <message>
        <source>We&apos;ll install the CLI tool on your Mac.</source>
        <translation>将在这台 Mac 上安装 CLI 工具。</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Sets up Claude Code, Gemini CLI or Codex on this computer. Without options it opens its window; a second launch brings the open window to the front.</source>
        <translation>在这台电脑上设置 Claude Code、Gemini CLI 或 Codex。不带选项时会打开其窗口；再次启动会将已打开的窗口移到最前面。</translation>
    </message>
    <message>
        <source>Run &quot;%1 --help&quot; to see the options.</source>
        <translation>运行“%1 --help”查看选项。</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;: Quillforge takes no files.</source>
        <translation>无法识别的参数“%1”：Quillforge 不接受文件。</translation>
    </message>
</context>
<context>
    <name>Diagnosis</name>
    <message>
        <source>Your computer could not reach the internet. Check that you are online, then try again.</source>
        <translation>电脑无法连接到互联网。请检查网络连接，然后重试。</translation>
    </message>
    <message>
        <source>The server could not be reached. Check that you are online, then try again.</source>
        <translation>无法连接到服务器。请检查网络连接，然后重试。</translation>
    </message>
    <message>
        <source>The connection timed out. Your internet may be slow or down: try again in a moment.</source>
        <translation>连接超时。网络可能较慢或已断开，请稍后重试。</translation>
    </message>
    <message>
        <source>No secure connection to the server could be made. A proxy or security software on this network may be in the way: try another network, or ask whoever runs this one.</source>
        <translation>无法与服务器建立安全连接。此网络上的代理或安全软件可能造成了阻碍：请换一个网络试试，或询问此网络的管理员。</translation>
    </message>
    <message>
        <source>Your user may not change a folder the installation needs. The log names it: make sure it belongs to you, then try again.</source>
        <translation>当前用户可能无权更改安装所需的某个文件夹。日志中写明了是哪个文件夹：请确认它归您所有，然后重试。</translation>
    </message>
    <message>
        <source>Your disk is full. Free up some space, then try again.</source>
        <translation>磁盘已满。请释放一些空间，然后重试。</translation>
    </message>
    <message>
        <source>What was asked for is not on the server right now. Try again later.</source>
        <translation>所请求的内容目前不在服务器上。请稍后重试。</translation>
    </message>
    <message>
        <source>Your Node.js is too old for this tool. Update Node.js (or remove the old one so a new one is installed), then try again.</source>
        <translation>当前的 Node.js 版本过旧，无法用于此工具。请更新 Node.js（或移除旧版本，以便安装新版本），然后重试。</translation>
    </message>
    <message>
        <source>The download was cut off before it was complete. Try again.</source>
        <translation>下载在完成前中断了。请重试。</translation>
    </message>
    <message>
        <source>npm could not write to its folders, which usually happens after an earlier “sudo npm”. Try Again uses a private npm cache for Quillforge and installs %1 into your own ~/.local folder.</source>
        <translation>npm 无法写入自己的文件夹，这通常是因为之前运行过“sudo npm”。“重试”会为 Quillforge 使用单独的 npm 缓存，并将 %1 安装到您自己的 ~/.local 文件夹中。</translation>
    </message>
    <message>
        <source>npm could not write to its folders, which usually happens after an earlier “sudo npm”. Try Again uses a private npm cache for Quillforge.</source>
        <translation>npm 无法写入自己的文件夹，这通常是因为之前运行过“sudo npm”。“重试”会为 Quillforge 使用单独的 npm 缓存。</translation>
    </message>
    <message>
        <source>%1 was not found on the npm registry. Its maker may have moved it; the log has the details.</source>
        <translation>在 npm 注册表中找不到 %1。其作者可能已将它移走；详细信息请查看日志。</translation>
    </message>
    <message>
        <source>Something went wrong. The log has the details.</source>
        <translation>出了点问题。详细信息请查看日志。</translation>
    </message>
    <message>
        <source>Something went wrong. The last message was: “%1”. The log has the details.</source>
        <translation>出了点问题。最后一条消息是：“%1”。详细信息请查看日志。</translation>
    </message>
</context>
<context>
    <name>InstallationError</name>
    <message>
        <source>Installation completed but the tool could not be verified. Please try again.</source>
        <translation>安装已完成，但无法验证该工具。请重试。</translation>
    </message>
    <message>
        <source>Failed to install Node.js. Please install it manually from %1</source>
        <translation>Node.js 安装失败。请从 %1 手动安装</translation>
    </message>
    <message>
        <source>Uninstall completed but the tool is still detected. Manual removal may be required.</source>
        <translation>卸载已完成，但仍检测到该工具。可能需要手动移除。</translation>
    </message>
    <message>
        <source>Automatic uninstall is not available. Please follow the manual instructions above.</source>
        <translation>无法自动卸载。请按照上方的说明手动操作。</translation>
    </message>
    <message>
        <source>The ~/Developer folder contains files. Please remove your projects first if you want to delete it.</source>
        <translation>~/Developer 文件夹中有文件。如果要删除这个文件夹，请先移走您的项目。</translation>
    </message>
    <message>
        <source>Git is required but not found. Please install it by running: %1</source>
        <translation>需要 Git，但未找到。请运行以下命令进行安装：%1</translation>
    </message>
    <message>
        <source>Git is required but not found. Please install Xcode Command Line Tools by running: xcode-select --install</source>
        <translation>需要 Git，但未找到。请运行以下命令安装 Xcode Command Line Tools：xcode-select --install</translation>
    </message>
</context>
<context>
    <name>InstallationView</name>
    <message>
        <source>Good to know</source>
        <translation>小提示</translation>
    </message>
</context>
<context>
    <name>NodeInstaller</name>
    <message>
        <source>The installation of Node.js through Homebrew</source>
        <translation>通过 Homebrew 安装 Node.js 的过程</translation>
    </message>
    <message>
        <source>Node.js publishes no release for this computer&apos;s processor. Please install it manually from nodejs.org</source>
        <translation>Node.js 未发布适用于这台电脑处理器的版本。请从 nodejs.org 手动安装</translation>
    </message>
    <message>
        <source>Could not download the list of Node.js releases. %1</source>
        <translation>无法下载 Node.js 版本列表。%1</translation>
    </message>
    <message>
        <source>No long-term support release of Node.js for %1 was found at %2.</source>
        <translation>在 %2 未找到适用于 %1 的 Node.js 长期支持（LTS）版本。</translation>
    </message>
    <message>
        <source>Could not make a folder for the Node.js download: %1</source>
        <translation>无法为 Node.js 下载创建文件夹：%1</translation>
    </message>
    <message>
        <source>The download of %1</source>
        <translation>%1 的下载</translation>
    </message>
    <message>
        <source>Could not download %1. %2</source>
        <translation>无法下载 %1。%2</translation>
    </message>
    <message>
        <source>Could not download the checksums of Node.js %1. %2</source>
        <translation>无法下载 Node.js %1 的校验和。%2</translation>
    </message>
    <message>
        <source>The checksum list of Node.js %1 does not name %2, so nothing was installed.</source>
        <translation>Node.js %1 的校验和列表中没有 %2，因此未安装任何内容。</translation>
    </message>
    <message>
        <source>The Node.js download does not match its published checksum, so nothing was installed. Please try again.</source>
        <translation>下载的 Node.js 与其公布的校验和不符，因此未安装任何内容。请重试。</translation>
    </message>
    <message>
        <source>Unpacking Node.js %1</source>
        <translation>正在解压 Node.js %1</translation>
    </message>
    <message>
        <source>Could not unpack Node.js %1: %2</source>
        <translation>无法解压 Node.js %1：%2</translation>
    </message>
    <message>
        <source>Node.js was installed, but no Node.js is found on the search path. %1</source>
        <translation>Node.js 已安装，但在搜索路径中找不到 Node.js。%1</translation>
    </message>
    <message>
        <source>Node.js was installed, but the Node.js found first is %1 in %2. %3</source>
        <translation>Node.js 已安装，但最先找到的 Node.js 是位于 %2 的 %1。%3</translation>
    </message>
    <message>
        <source>Node.js %1 was installed in %2, but Node.js %3 in %4 comes first on the search path. %5 Remove the older Node.js, or put %2 before %4 in your PATH.</source>
        <translation>Node.js %1 已安装到 %2，但在搜索路径中，位于 %4 的 Node.js %3 排在前面。%5 请移除旧版 Node.js，或在 PATH 中将 %2 放在 %4 之前。</translation>
    </message>
</context>
<context>
    <name>ProfileWriter</name>
    <message>
        <source>it is not an ordinary file</source>
        <translation>它不是普通文件</translation>
    </message>
    <message>
        <source>another change to it did not finish; try again</source>
        <translation>对它的另一项更改尚未完成；请重试</translation>
    </message>
    <message>
        <source>Move it aside so an ordinary file can take its place, then try again.</source>
        <translation>请将它移到别处，以便用普通文件替代，然后重试。</translation>
    </message>
    <message>
        <source>Make sure the file belongs to you and may be changed, then try again.</source>
        <translation>请确认该文件归您所有且允许更改，然后重试。</translation>
    </message>
    <message>
        <source>Your disk is full: free up some space, then try again.</source>
        <translation>磁盘已满：请释放一些空间，然后重试。</translation>
    </message>
    <message>
        <source>The disk it is on cannot be changed right now.</source>
        <translation>该文件所在的磁盘目前无法更改。</translation>
    </message>
    <message>
        <source>The file was left as it was; try again.</source>
        <translation>文件保持原样，未做更改；请重试。</translation>
    </message>
    <message>
        <source>Could not save the API key to %1</source>
        <translation>无法将 API 密钥保存到 %1</translation>
    </message>
    <message>
        <source>The API key is longer than %1 characters, much longer than any real key. Copy only the key and paste it again.</source>
        <translation>API 密钥超过 %1 个字符，远比任何真实的密钥都长。请只复制密钥，然后重新粘贴。</translation>
    </message>
    <message>
        <source>The API key contains a line break. Copy the key again and paste it as one line.</source>
        <translation>API 密钥中包含换行符。请重新复制密钥，并作为一行粘贴。</translation>
    </message>
    <message>
        <source>The API key contains an invisible control character. Copy the key again and paste it.</source>
        <translation>API 密钥中包含不可见的控制字符。请重新复制并粘贴密钥。</translation>
    </message>
    <message>
        <source>The API key contains a space. Copy only the key and paste it again.</source>
        <translation>API 密钥中包含空格。请只复制密钥，然后重新粘贴。</translation>
    </message>
    <message>
        <source>Could not add ~/.local/bin to the search path in %1</source>
        <translation>无法在 %1 中将 ~/.local/bin 添加到搜索路径</translation>
    </message>
</context>
<context>
    <name>SearchPathFix</name>
    <message>
        <source>A new terminal window will not find %1 yet: your shell does not read %2. Add this line to your shell&apos;s start-up file, then open a new window: %3</source>
        <translation>新的终端窗口还找不到 %1：当前 shell 不会读取 %2。请将下面这行添加到 shell 的启动文件中，然后打开新窗口：%3</translation>
    </message>
</context>
<context>
    <name>ServiceError</name>
    <message>
        <source>The password dialog was cancelled, so %1 was not removed.</source>
        <translation>密码对话框已取消，因此未移除 %1。</translation>
    </message>
    <message>
        <source>The password dialog was cancelled, so %1 was not updated.</source>
        <translation>密码对话框已取消，因此未更新 %1。</translation>
    </message>
</context>
<context>
    <name>SetupStepStatus</name>
    <message>
        <source>Pending</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>In progress...</source>
        <translation>进行中…</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>已跳过</translation>
    </message>
</context>
<context>
    <name>SetupStepType</name>
    <message>
        <source>Create ~/Developer folder</source>
        <translation>创建 ~/Developer 文件夹</translation>
    </message>
    <message>
        <source>Check for Git</source>
        <translation>检查 Git</translation>
    </message>
    <message>
        <source>Install Node.js</source>
        <translation>安装 Node.js</translation>
    </message>
    <message>
        <source>Install tool</source>
        <translation>安装工具</translation>
    </message>
</context>
<context>
    <name>ShellError</name>
    <message>
        <source>1 minute</source>
        <translation>1 分钟</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>1 second</source>
        <translation>1 秒</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>[earlier output cut: the last %1 characters follow]</source>
        <translation>[之前的输出已省略：以下为最后 %1 个字符]</translation>
    </message>
    <message>
        <source>The command did not finish within %1 and was stopped.</source>
        <translation>命令未在 %1 内完成，已被停止。</translation>
    </message>
    <message>
        <source>The command wrote more than %1 MB of output and was stopped.</source>
        <translation>命令的输出超过 %1 MB，已被停止。</translation>
    </message>
    <message>
        <source>%1 made no progress for %2 and was stopped.</source>
        <translation>%1在 %2 内没有任何进展，已被停止。</translation>
    </message>
    <message>
        <source>The command showed no progress for %1 and was stopped.</source>
        <translation>命令在 %1 内没有任何进展，已被停止。</translation>
    </message>
    <message>
        <source>The command was cancelled.</source>
        <translation>命令已取消。</translation>
    </message>
    <message>
        <source>Command failed with exit code %1: %2</source>
        <translation>命令失败，退出代码 %1：%2</translation>
    </message>
    <message>
        <source>Process error: %1</source>
        <translation>进程错误：%1</translation>
    </message>
</context>
<context>
    <name>StagedInstall</name>
    <message>
        <source>a file is where a folder belongs</source>
        <translation>应为文件夹的位置上是一个文件</translation>
    </message>
    <message>
        <source>a folder is where a file belongs</source>
        <translation>应为文件的位置上是一个文件夹</translation>
    </message>
    <message>
        <source>Could not make the folder %1: %2</source>
        <translation>无法创建文件夹 %1：%2</translation>
    </message>
    <message>
        <source>Could not prepare %1 for the installation: %2</source>
        <translation>无法为安装准备 %1：%2</translation>
    </message>
    <message>
        <source>Could not install %1: %2</source>
        <translation>无法安装 %1：%2</translation>
    </message>
</context>
<context>
    <name>SupportTools</name>
    <message>
        <source>Only needed for Gemini or Codex</source>
        <translation>仅 Gemini 或 Codex 需要</translation>
    </message>
    <message>
        <source>Developer Folder</source>
        <translation>Developer 文件夹</translation>
    </message>
    <message>
        <source>Where your projects live</source>
        <translation>存放项目的地方</translation>
    </message>
    <message>
        <source>This Node.js (%1) was installed by another program. Remove it the way it was installed.</source>
        <translation>这个 Node.js（%1）是由其他程序安装的。请按照当初的安装方式将其移除。</translation>
    </message>
    <message>
        <source>The removal of %1</source>
        <translation>%1 的移除</translation>
    </message>
    <message>
        <source>%1 is still installed at %2: its removal did not finish. The output above says why.</source>
        <translation>%1 仍安装在 %2：移除未完成。原因见上方输出。</translation>
    </message>
</context>
<context>
    <name>SystemDetector</name>
    <message>
        <source>%1 not installed</source>
        <translation>未安装 %1</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>未安装</translation>
    </message>
    <message>
        <source>%1 (needs %2 or newer)</source>
        <translation>%1（需要 %2 或更高版本）</translation>
    </message>
    <message>
        <source>%1 – no longer receives security fixes</source>
        <translation>%1 – 已不再提供安全修复</translation>
    </message>
    <message>
        <source>%1 MB available</source>
        <translation>%1 MB 可用</translation>
    </message>
    <message>
        <source>%1 MB free, %2 MB needed</source>
        <translation>可用 %1 MB，需要 %2 MB</translation>
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
        <translation>1 GB 磁盘空间</translation>
    </message>
    <message>
        <source>Git</source>
        <translation>Git</translation>
    </message>
    <message>
        <source>Node.js is a JavaScript runtime that some AI tools use to run. It&apos;s a standard development tool used by millions of developers.</source>
        <translation>Node.js 是一种 JavaScript 运行环境，一些 AI 工具需要用它来运行。它是数百万开发者都在使用的标准开发工具。</translation>
    </message>
    <message>
        <source>Git keeps track of the changes in your projects. The AI tools use it to see and undo what they change.</source>
        <translation>Git 会记录项目中的更改。AI 工具借助它查看和撤销自己所做的更改。</translation>
    </message>
    <message>
        <source>Free up space by emptying Trash or removing unused apps</source>
        <translation>清倒废纸篓或移除不用的应用，以释放空间</translation>
    </message>
    <message>
        <source>64-bit Linux</source>
        <translation>64 位 Linux</translation>
    </message>
    <message>
        <source>Your computer needs to be running a 64-bit Linux system. Works on both Intel/AMD and ARM processors.</source>
        <translation>电脑需要运行 64 位 Linux 系统。Intel/AMD 和 ARM 处理器均可使用。</translation>
    </message>
    <message>
        <source>Install the 64-bit edition of your Linux distribution</source>
        <translation>安装所用 Linux 发行版的 64 位版本</translation>
    </message>
    <message>
        <source>The AI assistant and its dependencies need about 1GB of free space on your computer. This is a one-time installation.</source>
        <translation>AI 助手及其依赖项需要电脑上约 1 GB 的可用空间。只需安装一次。</translation>
    </message>
    <message>
        <source>Install manually: download it from %1 (or use your system&apos;s package manager)</source>
        <translation>手动安装：从 %1 下载（或使用系统的软件包管理器）</translation>
    </message>
    <message>
        <source>macOS 14 or later</source>
        <translation>macOS 14 或更高版本</translation>
    </message>
    <message>
        <source>Your Mac needs to be running macOS 14 (Sonoma) or later. Works on both Intel and Apple Silicon.</source>
        <translation>Mac 需要运行 macOS 14（Sonoma）或更高版本。Intel 和 Apple 芯片的 Mac 均可使用。</translation>
    </message>
    <message>
        <source>Update your Mac: Apple Menu → System Settings → General → Software Update</source>
        <translation>更新 Mac：苹果菜单 →“系统设置”→“通用”→“软件更新”</translation>
    </message>
    <message>
        <source>The AI assistant and its dependencies need about 1GB of free space on your Mac. This is a one-time installation.</source>
        <translation>AI 助手及其依赖项需要 Mac 上约 1 GB 的可用空间。只需安装一次。</translation>
    </message>
    <message>
        <source>Install manually: brew install node (or download from %1)</source>
        <translation>手动安装：brew install node（或从 %1 下载）</translation>
    </message>
</context>
<context>
    <name>SystemTool</name>
    <message>
        <source>Open your file manager to manage this folder</source>
        <translation>请打开文件管理器来管理此文件夹</translation>
    </message>
    <message>
        <source>Git &amp; Build Tools</source>
        <translation>Git 和构建工具</translation>
    </message>
    <message>
        <source>Provides Git and build tools</source>
        <translation>提供 Git 和构建工具</translation>
    </message>
    <message>
        <source>Use your system&apos;s package manager to remove Git</source>
        <translation>请使用系统的软件包管理器移除 Git</translation>
    </message>
    <message>
        <source>Open Finder to manage this folder</source>
        <translation>请打开访达来管理此文件夹</translation>
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
        <translation>无法显示该文件夹</translation>
    </message>
    <message>
        <source>No file manager answered. Your projects folder is here:</source>
        <translation>没有文件管理器响应。项目文件夹位于：</translation>
    </message>
    <message>
        <source>The installer could not be started</source>
        <translation>无法启动安装程序</translation>
    </message>
    <message>
        <source>Open a terminal yourself and type this line:</source>
        <translation>请自行打开一个终端，并输入下面这一行：</translation>
    </message>
</context>
<context>
    <name>TerminalLaunchedView</name>
    <message>
        <source>%1 launched in a new terminal window</source>
        <translation>%1 已在新的终端窗口中启动</translation>
    </message>
    <message>
        <source>Switch to the terminal window to start using %1</source>
        <translation>切换到终端窗口，开始使用 %1</translation>
    </message>
    <message>
        <source>%1 launched in Terminal</source>
        <translation>%1 已在终端中启动</translation>
    </message>
    <message>
        <source>Switch to Terminal.app to start using %1</source>
        <translation>切换到“终端”，开始使用 %1</translation>
    </message>
</context>
<context>
    <name>TerminalLauncher</name>
    <message>
        <source>Quillforge is not allowed to control Terminal</source>
        <translation>Quillforge 没有控制“终端”的权限</translation>
    </message>
    <message>
        <source>To let it open Terminal for you, turn on Terminal under Quillforge in System Settings &gt; Privacy &amp; Security &gt; Automation. Or open Terminal yourself and type this line:</source>
        <translation>若要让 Quillforge 自动打开终端，请前往“系统设置”&gt;“隐私与安全性”&gt;“自动化”，在 Quillforge 下打开“终端”。也可以自行打开终端，并输入下面这一行：</translation>
    </message>
</context>
<context>
    <name>ToolInstaller</name>
    <message>
        <source>The installation was stopped. Node.js and %1, installed before that, stay.</source>
        <translation>安装已停止。此前已安装的 Node.js 和 %1 会保留。</translation>
    </message>
    <message>
        <source>The installation was stopped. %1, installed before that, stays.</source>
        <translation>安装已停止。此前已安装的 %1 会保留。</translation>
    </message>
    <message>
        <source>The installation was stopped. Node.js, installed before that, stays.</source>
        <translation>安装已停止。此前已安装的 Node.js 会保留。</translation>
    </message>
    <message>
        <source>The installation was stopped. Nothing was changed.</source>
        <translation>安装已停止。未做任何更改。</translation>
    </message>
    <message>
        <source>An older Node.js (%1 in %2) is found before the one just installed (%3). %4 works with it; to use the new one, remove the older Node.js.</source>
        <translation>系统会先找到较旧的 Node.js（位于 %2 的 %1），而不是刚安装的版本（%3）。%4 可以使用旧版本运行；如需使用新版本，请移除旧版 Node.js。</translation>
    </message>
    <message>
        <source>npm is set to refuse install scripts it was not told to allow (strict-allow-scripts), so parts of %1 may be missing. If it does not start, run &quot;npm config delete strict-allow-scripts&quot; in a terminal window and install it again.</source>
        <translation>npm 被设置为拒绝未经允许的安装脚本（strict-allow-scripts），因此 %1 的部分内容可能缺失。如果它无法启动，请在终端窗口中运行“npm config delete strict-allow-scripts”，然后重新安装。</translation>
    </message>
    <message>
        <source>The installation of %1</source>
        <translation>%1 的安装</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>已创建</translation>
    </message>
    <message>
        <source>Already exists</source>
        <translation>已存在</translation>
    </message>
    <message>
        <source>Could not create</source>
        <translation>无法创建</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>Verification failed</source>
        <translation>验证失败</translation>
    </message>
</context>
<context>
    <name>ToolRemover</name>
    <message>
        <source>The removal was stopped, and %1 is still found. Uninstall again to remove what is left of it.</source>
        <translation>移除已停止，但仍能找到 %1。请再次卸载以移除剩余部分。</translation>
    </message>
    <message>
        <source>The removal was stopped, but %1 was already removed.</source>
        <translation>移除已停止，但 %1 已被移除。</translation>
    </message>
    <message>
        <source>The removal of %1</source>
        <translation>%1 的移除</translation>
    </message>
</context>
<context>
    <name>ToolUpdater</name>
    <message>
        <source>The update was stopped, and %1 no longer starts. Install it again from the dashboard.</source>
        <translation>更新已停止，%1 现在无法启动。请从主页重新安装。</translation>
    </message>
    <message>
        <source>The update was stopped, but %1 %2 was already in place and starts.</source>
        <translation>更新已停止，但 %1 %2 已就位并可以启动。</translation>
    </message>
    <message>
        <source>The update was stopped. Node.js, installed before that, stays.</source>
        <translation>更新已停止。此前已安装的 Node.js 会保留。</translation>
    </message>
    <message>
        <source>The update was stopped. Nothing was changed.</source>
        <translation>更新已停止。未做任何更改。</translation>
    </message>
    <message>
        <source>%1 is not installed, so there is nothing to update.</source>
        <translation>%1 未安装，因此无需更新。</translation>
    </message>
    <message>
        <source>%1 in %2 was not installed with npm, so Quillforge cannot update it. Update it the way it was installed.</source>
        <translation>位于 %2 的 %1 不是通过 npm 安装的，因此 Quillforge 无法更新它。请按照当初的安装方式进行更新。</translation>
    </message>
    <message>
        <source>%1 does not start, so it cannot be updated. Install it again from the dashboard.</source>
        <translation>%1 无法启动，因此无法更新。请从主页重新安装。</translation>
    </message>
    <message>
        <source>The newest version of %1 could not be found out. Check that you are online, then try again.</source>
        <translation>无法获取 %1 的最新版本。请检查网络连接，然后重试。</translation>
    </message>
    <message>
        <source>%1 %2 needs Node.js %3 or newer, and no Node.js was found.</source>
        <translation>%1 %2 需要 Node.js %3 或更高版本，但未找到 Node.js。</translation>
    </message>
    <message>
        <source>The update of %1</source>
        <translation>%1 的更新</translation>
    </message>
    <message>
        <source>The update of %1 finished, but %1 does not start now. Install it again from the dashboard.</source>
        <translation>%1 的更新已完成，但 %1 现在无法启动。请从主页重新安装。</translation>
    </message>
    <message>
        <source>The update of %1 finished, but %1 still reports version %2, which still works.</source>
        <translation>%1 的更新已完成，但 %1 仍显示版本 %2，该版本仍可正常使用。</translation>
    </message>
    <message>
        <source>%1 was not updated. %2 %1 %3 still works.</source>
        <translation>%1 未更新。%2 %1 %3 仍可正常使用。</translation>
    </message>
    <message>
        <source>%1 was not updated. %2 %1 %3 no longer starts: install it again from the dashboard.</source>
        <translation>%1 未更新。%2 %1 %3 已无法启动：请从主页重新安装。</translation>
    </message>
    <message>
        <source>Node.js was installed, but no Node.js is found on the search path, so %1 was not updated.</source>
        <translation>Node.js 已安装，但在搜索路径中找不到 Node.js，因此未更新 %1。</translation>
    </message>
    <message>
        <source>Node.js was installed, but the Node.js found first is still %1 in %2, which is too old for the update of %3. Remove the older Node.js, then try again.</source>
        <translation>Node.js 已安装，但最先找到的 Node.js 仍是位于 %2 的 %1，版本过旧，无法用于更新 %3。请移除旧版 Node.js，然后重试。</translation>
    </message>
    <message>
        <source>%1 %2 needs Node.js %3 or newer; this computer has %4.</source>
        <translation>%1 %2 需要 Node.js %3 或更高版本；这台电脑上的是 %4。</translation>
    </message>
    <message>
        <source>%1 %2 needs Node.js %3 or newer; this Mac has %4.</source>
        <translation>%1 %2 需要 Node.js %3 或更高版本；这台 Mac 上的是 %4。</translation>
    </message>
</context>
<context>
    <name>qf::AIToolCard</name>
    <message>
        <source>Installed</source>
        <translation>已安装</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Update %1</source>
        <translation>更新 %1</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>打开 %1</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安装</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>安装 %1</translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation>有可用更新：%1</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>未安装</translation>
    </message>
</context>
<context>
    <name>qf::APIKeyView</name>
    <message>
        <source>Set Up API Key</source>
        <translation>设置 API 密钥</translation>
    </message>
    <message>
        <source>Skip for Now</source>
        <translation>暂时跳过</translation>
    </message>
    <message>
        <source>Save &amp; Continue</source>
        <translation>保存并继续</translation>
    </message>
    <message>
        <source>Get your API key to start using %1</source>
        <translation>获取 API 密钥，开始使用 %1</translation>
    </message>
    <message>
        <source>Step 1: Get your API key</source>
        <translation>第 1 步：获取 API 密钥</translation>
    </message>
    <message>
        <source>Click the button below to open %1&apos;s console where you can create or copy your API key.</source>
        <translation>点击下方按钮打开 %1 控制台，在那里创建或复制 API 密钥。</translation>
    </message>
    <message>
        <source>Open %1 Console</source>
        <translation>打开 %1 控制台</translation>
    </message>
    <message>
        <source>Step 2: Paste your API key</source>
        <translation>第 2 步：粘贴 API 密钥</translation>
    </message>
    <message>
        <source>Paste your API key here</source>
        <translation>在此粘贴 API 密钥</translation>
    </message>
    <message>
        <source>API key</source>
        <translation>API 密钥</translation>
    </message>
    <message>
        <source>This will be saved to your shell profile (%1) as %2</source>
        <translation>将以 %2 的形式保存到 shell 配置文件（%1）中</translation>
    </message>
    <message>
        <source>Hide key</source>
        <translation>隐藏密钥</translation>
    </message>
    <message>
        <source>Show key</source>
        <translation>显示密钥</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>正在保存</translation>
    </message>
</context>
<context>
    <name>qf::AboutDialog</name>
    <message>
        <source>About Quillforge</source>
        <translation>关于 Quillforge</translation>
    </message>
    <message>
        <source>Quillforge</source>
        <translation>Quillforge</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Gets an AI coding assistant running on your computer, no terminal experience needed.</source>
        <translation>无需终端经验，即可在电脑上运行 AI 编程助手。</translation>
    </message>
    <message>
        <source>Open the Quillforge website</source>
        <translation>打开 Quillforge 网站</translation>
    </message>
    <message>
        <source>Copy Version Details</source>
        <translation>复制版本信息</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Released under the MIT licence. Built with Qt %1, with icons from Phosphor (also MIT).</source>
        <translation>以 MIT 许可证发布。基于 Qt %1 构建，图标来自 Phosphor（同样采用 MIT 许可证）。</translation>
    </message>
</context>
<context>
    <name>qf::AccountSetupStepRow</name>
    <message>
        <source>Step %1: %2</source>
        <translation>第 %1 步：%2</translation>
    </message>
</context>
<context>
    <name>qf::AccountSetupView</name>
    <message>
        <source>Account</source>
        <translation>账户</translation>
    </message>
    <message>
        <source>Create Account</source>
        <translation>创建账户</translation>
    </message>
    <message>
        <source>I Have an Account</source>
        <translation>我已有账户</translation>
    </message>
    <message>
        <source>Before you install %1</source>
        <translation>安装 %1 之前</translation>
    </message>
</context>
<context>
    <name>qf::CommandRow</name>
    <message>
        <source>Copy %1</source>
        <translation>复制 %1</translation>
    </message>
</context>
<context>
    <name>qf::CommonCommandsCard</name>
    <message>
        <source>Common Commands</source>
        <translation>常用命令</translation>
    </message>
</context>
<context>
    <name>qf::CompletionView</name>
    <message>
        <source>Ready to use</source>
        <translation>可以使用了</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>主页</translation>
    </message>
    <message>
        <source>Open in Terminal</source>
        <translation>在终端中打开</translation>
    </message>
    <message>
        <source>You&apos;re All Set!</source>
        <translation>一切就绪！</translation>
    </message>
    <message>
        <source>%1 is installed and ready to use</source>
        <translation>%1 已安装，可以使用了</translation>
    </message>
    <message>
        <source>Quick Start</source>
        <translation>快速开始</translation>
    </message>
    <message>
        <source>Open Terminal and try:</source>
        <translation>打开终端并试试：</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>复制 %1</translation>
    </message>
    <message>
        <source>Your API key is saved: new terminal windows give it to %1 as %2.</source>
        <translation>API 密钥已保存：新的终端窗口会将其作为 %2 提供给 %1。</translation>
    </message>
    <message>
        <source>Change API Key</source>
        <translation>更改 API 密钥</translation>
    </message>
    <message>
        <source>Use an API Key Instead</source>
        <translation>改用 API 密钥</translation>
    </message>
</context>
<context>
    <name>qf::DashboardCard</name>
    <message>
        <source>Remove %1</source>
        <translation>移除 %1</translation>
    </message>
</context>
<context>
    <name>qf::FirstProjectTipsCard</name>
    <message>
        <source>Your First Project</source>
        <translation>第一个项目</translation>
    </message>
    <message>
        <source>Create a project folder</source>
        <translation>创建项目文件夹</translation>
    </message>
    <message>
        <source>Initialize git (optional but recommended)</source>
        <translation>初始化 git 仓库（可选，但建议）</translation>
    </message>
    <message>
        <source>Start your AI assistant</source>
        <translation>启动 AI 助手</translation>
    </message>
    <message>
        <source>Try asking: &quot;Help me build a simple todo list app&quot;</source>
        <translation>试着问问：“帮我做一个简单的待办事项应用”</translation>
    </message>
</context>
<context>
    <name>qf::FirstTimeWelcomeCard</name>
    <message>
        <source>Welcome to Quillforge!</source>
        <translation>欢迎使用 Quillforge！</translation>
    </message>
    <message>
        <source>Let&apos;s get you started with AI-powered coding</source>
        <translation>开始用 AI 辅助编程吧</translation>
    </message>
    <message>
        <source>Set up your dev environment</source>
        <translation>设置开发环境</translation>
    </message>
    <message>
        <source>Install %1 and create a project folder</source>
        <translation>安装 %1 并创建项目文件夹</translation>
    </message>
    <message>
        <source>Install an AI assistant</source>
        <translation>安装 AI 助手</translation>
    </message>
    <message>
        <source>Choose Claude Code, Gemini CLI, or Codex</source>
        <translation>从 Claude Code、Gemini CLI 或 Codex 中选择</translation>
    </message>
    <message>
        <source>Start building</source>
        <translation>开始创作</translation>
    </message>
    <message>
        <source>Describe what you want in plain English</source>
        <translation>用日常语言描述想要的东西</translation>
    </message>
    <message>
        <source>**%1** is ready: press **Open** on its card to start it.</source>
        <translation>**%1** 已就绪：点击其卡片上的 **打开** 即可启动。</translation>
    </message>
    <message>
        <source>New to this? **%1** is already set up, so start with **Claude Code**.</source>
        <translation>第一次使用？**%1** 已设置好，从 **Claude Code** 开始吧。</translation>
    </message>
    <message>
        <source>New to this? Start with **%1**, then try **Claude Code**.</source>
        <translation>第一次使用？先从 **%1** 开始，然后试试 **Claude Code**。</translation>
    </message>
</context>
<context>
    <name>qf::FlowScreen</name>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
</context>
<context>
    <name>qf::HomeView</name>
    <message>
        <source>Your AI Coding Assistants</source>
        <translation>AI 编程助手</translation>
    </message>
    <message>
        <source>About Quillforge</source>
        <translation>关于 Quillforge</translation>
    </message>
    <message>
        <source>Quillforge</source>
        <translation>Quillforge</translation>
    </message>
    <message>
        <source>Checking your setup...</source>
        <translation>正在检查设置…</translation>
    </message>
    <message>
        <source>Development Environment</source>
        <translation>开发环境</translation>
    </message>
    <message>
        <source>AI Assistants</source>
        <translation>AI 助手</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>正在检查更新…</translation>
    </message>
    <message>
        <source>Everything is up to date.</source>
        <translation>所有内容均为最新。</translation>
    </message>
    <message>
        <source>Could not check for updates. Check that you are online.</source>
        <translation>无法检查更新。请检查网络连接。</translation>
    </message>
</context>
<context>
    <name>qf::InstallationController</name>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
</context>
<context>
    <name>qf::InstallationView</name>
    <message>
        <source>Installation</source>
        <translation>安装</translation>
    </message>
    <message>
        <source>Preparing your development environment...</source>
        <translation>正在准备开发环境…</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>Installation Failed</source>
        <translation>安装失败</translation>
    </message>
    <message>
        <source>Show Log File</source>
        <translation>显示日志文件</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Installation Complete!</source>
        <translation>安装完成！</translation>
    </message>
    <message>
        <source>Setting up %1</source>
        <translation>正在设置 %1</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>已展开</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>已折叠</translation>
    </message>
    <message>
        <source>Installation Stopped</source>
        <translation>安装已停止</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>The log file could not be shown</source>
        <translation>无法显示日志文件</translation>
    </message>
    <message>
        <source>No file manager answered. The log file is here:</source>
        <translation>没有文件管理器响应。日志文件位于：</translation>
    </message>
</context>
<context>
    <name>qf::MainWindow</name>
    <message>
        <source>About Quillforge</source>
        <translation>关于 Quillforge</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
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
        <translation>欢迎使用 Quillforge</translation>
    </message>
    <message>
        <source>Get started with AI-powered coding in minutes</source>
        <translation>几分钟即可开始 AI 辅助编程</translation>
    </message>
    <message>
        <source>AI Coding Assistants</source>
        <translation>AI 编程助手</translation>
    </message>
    <message>
        <source>Install Claude Code, Gemini CLI, or Codex with one click</source>
        <translation>一键安装 Claude Code、Gemini CLI 或 Codex</translation>
    </message>
    <message>
        <source>Automatic Setup</source>
        <translation>自动设置</translation>
    </message>
    <message>
        <source>We handle the dev environment so you can focus on building</source>
        <translation>开发环境交给我们，您只需专注于创作</translation>
    </message>
    <message>
        <source>Beginner Friendly</source>
        <translation>新手友好</translation>
    </message>
    <message>
        <source>No experience needed - just describe what you want to build</source>
        <translation>无需任何经验，只需描述想做的东西</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>开始使用</translation>
    </message>
</context>
<context>
    <name>qf::RemovalSheet</name>
    <message>
        <source>Uninstall %1</source>
        <translation>卸载 %1</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>卸载</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>好</translation>
    </message>
    <message>
        <source>Uninstall Complete</source>
        <translation>卸载完成</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>要卸载 %1 吗？</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>已显示</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>已隐藏</translation>
    </message>
</context>
<context>
    <name>qf::RequirementRow</name>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Will be installed for you</source>
        <translation>将自动安装</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>空间不足</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>未安装</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>不支持</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>关于 %1</translation>
    </message>
    <message>
        <source>What is this?</source>
        <translation>这是什么？</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安装</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>安装 %1</translation>
    </message>
    <message>
        <source>Quillforge installs it for you as part of the setup.</source>
        <translation>Quillforge 会在设置过程中自动安装它。</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>已展开</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>已折叠</translation>
    </message>
</context>
<context>
    <name>qf::StepRow</name>
    <message>
        <source>Copy %1</source>
        <translation>复制 %1</translation>
    </message>
</context>
<context>
    <name>qf::SystemCheckView</name>
    <message>
        <source>System Check</source>
        <translation>系统检查</translation>
    </message>
    <message>
        <source>Checking requirements for %1</source>
        <translation>正在检查 %1 的系统要求</translation>
    </message>
    <message>
        <source>Checking system requirements...</source>
        <translation>正在检查系统要求…</translation>
    </message>
    <message>
        <source>You&apos;re ready to use it in Terminal.</source>
        <translation>现在可以在终端中使用它了。</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>重新检查</translation>
    </message>
    <message>
        <source>The installer could not be started</source>
        <translation>无法启动安装程序</translation>
    </message>
    <message>
        <source>Open a terminal yourself and type this line:</source>
        <translation>请自行打开一个终端，并输入下面这一行：</translation>
    </message>
    <message>
        <source>%1 is already installed!</source>
        <translation>%1 已安装！</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>版本：%1</translation>
    </message>
    <message>
        <source>Open Terminal</source>
        <translation>打开终端</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安装</translation>
    </message>
    <message>
        <source>Requirements Not Met</source>
        <translation>未满足系统要求</translation>
    </message>
    <message>
        <source>Install is not available until this is fixed: %1.</source>
        <translation>解决此问题之前无法安装：%1。</translation>
    </message>
</context>
<context>
    <name>qf::SystemToolCard</name>
    <message>
        <source>Optional</source>
        <translation>可选</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>未安装</translation>
    </message>
    <message>
        <source>Installed for you with Gemini CLI or Codex</source>
        <translation>随 Gemini CLI 或 Codex 自动安装</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>已安装</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>an action and the item it acts on</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>创建</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安装</translation>
    </message>
</context>
<context>
    <name>qf::SystemToolUninstallSheet</name>
    <message>
        <source>This will remove %1 from your system.</source>
        <translation>这将从系统中移除 %1。</translation>
    </message>
</context>
<context>
    <name>qf::TerminalLaunchedView</name>
    <message>
        <source>Open Terminal Again</source>
        <translation>再次打开终端</translation>
    </message>
    <message>
        <source>Quick Tips</source>
        <translation>使用技巧</translation>
    </message>
    <message>
        <source>Start %1 in a terminal</source>
        <translation>在终端中启动 %1</translation>
    </message>
</context>
<context>
    <name>qf::TerminalScreenView</name>
    <message>
        <source>Back to Home</source>
        <translation>返回主页</translation>
    </message>
    <message>
        <source>No tool selected</source>
        <translation>未选择工具</translation>
    </message>
</context>
<context>
    <name>qf::ToolCard</name>
    <message>
        <source>by %1</source>
        <translation>来自 %1</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>了解更多</translation>
    </message>
    <message>
        <source>Learn more about %1</source>
        <translation>进一步了解 %1</translation>
    </message>
</context>
<context>
    <name>qf::UpdateSheet</name>
    <message>
        <source>Update %1</source>
        <translation>更新 %1</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Install Node.js and Update</source>
        <translation>安装 Node.js 并更新</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Update %1?</source>
        <translation>要更新 %1 吗？</translation>
    </message>
    <message>
        <source>%1 goes from version %2 to %3. You stay signed in, and your settings stay as they are.</source>
        <translation>%1 将从版本 %2 更新到 %3。登录状态和设置都会保持不变。</translation>
    </message>
    <message>
        <source>%1 is updated to version %2. You stay signed in, and your settings stay as they are.</source>
        <translation>%1 将更新到版本 %2。登录状态和设置都会保持不变。</translation>
    </message>
    <message>
        <source>Updating %1...</source>
        <translation>正在更新 %1…</translation>
    </message>
    <message>
        <source>This usually takes less than a minute.</source>
        <translation>通常不到一分钟即可完成。</translation>
    </message>
    <message>
        <source>Update Complete</source>
        <translation>更新完成</translation>
    </message>
    <message>
        <source>%1 %2 is installed and starts as before.</source>
        <translation>%1 %2 已安装，可以像以前一样启动。</translation>
    </message>
    <message>
        <source>A Newer Node.js Is Needed</source>
        <translation>需要更新版本的 Node.js</translation>
    </message>
    <message>
        <source>Update Stopped</source>
        <translation>更新已停止</translation>
    </message>
    <message>
        <source>Update Failed</source>
        <translation>更新失败</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>已显示</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>已隐藏</translation>
    </message>
</context>
<context>
    <name>qf::WelcomeView</name>
    <message>
        <source>Choose a Tool</source>
        <translation>选择工具</translation>
    </message>
    <message>
        <source>Quillforge</source>
        <translation>Quillforge</translation>
    </message>
    <message>
        <source>Set up AI coding assistants the easy way</source>
        <translation>轻松设置 AI 编程助手</translation>
    </message>
    <message>
        <source>Choose a tool to install:</source>
        <translation>选择要安装的工具：</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
</context>
<context>
    <name>qf::WhatIsAICodingCard</name>
    <message>
        <source>New to AI Coding?</source>
        <translation>第一次接触 AI 编程？</translation>
    </message>
    <message>
        <source>AI coding assistants are tools that help you write, understand, and debug code using artificial intelligence.</source>
        <translation>AI 编程助手是借助人工智能帮助编写、理解和调试代码的工具。</translation>
    </message>
    <message>
        <source>Conversational</source>
        <translation>对话式</translation>
    </message>
    <message>
        <source>Describe what you want in plain English and the AI writes the code</source>
        <translation>用日常语言描述需求，AI 就会编写代码</translation>
    </message>
    <message>
        <source>Code Understanding</source>
        <translation>理解代码</translation>
    </message>
    <message>
        <source>Ask questions about any codebase and get clear explanations</source>
        <translation>可以就任何代码库提问，并获得清晰的解释</translation>
    </message>
    <message>
        <source>Debugging Help</source>
        <translation>调试帮助</translation>
    </message>
    <message>
        <source>Paste error messages and get solutions, not just explanations</source>
        <translation>粘贴错误信息，得到的不只是解释，还有解决方案</translation>
    </message>
    <message>
        <source>Learning Partner</source>
        <translation>学习伙伴</translation>
    </message>
    <message>
        <source>Perfect for learning new languages or frameworks at your own pace</source>
        <translation>非常适合按自己的节奏学习新的编程语言或框架</translation>
    </message>
    <message>
        <source>No prior coding experience? That&apos;s okay! AI assistants can help you learn as you build.</source>
        <translation>没有编程经验？没关系！AI 助手可以帮助您边做边学。</translation>
    </message>
</context>
<context>
    <name>qf::ui::ActivityIndicator</name>
    <message>
        <source>In progress</source>
        <translation>进行中</translation>
    </message>
</context>
<context>
    <name>qf::ui::CopiedToast</name>
    <message>
        <source>Copied to clipboard</source>
        <translation>已复制到剪贴板</translation>
    </message>
</context>
<context>
    <name>qf::ui::CopyButton</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy Log</source>
        <translation>复制日志</translation>
    </message>
    <message>
        <source>Copy the whole log</source>
        <translation>复制全部日志</translation>
    </message>
</context>
<context>
    <name>qf::ui::DisclosureCard</name>
    <message>
        <source>Expanded</source>
        <translation>已展开</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>已折叠</translation>
    </message>
</context>
<context>
    <name>qf::ui::LogView</name>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
</context>
<context>
    <name>qf::ui::TerminalFallbackRow</name>
    <message>
        <source>No terminal window could be opened</source>
        <translation>无法打开终端窗口</translation>
    </message>
    <message>
        <source>Open a terminal yourself and type this line:</source>
        <translation>请自行打开一个终端，并输入下面这一行：</translation>
    </message>
    <message>
        <source>Copy the line to type</source>
        <translation>复制要输入的这一行</translation>
    </message>
</context>
</TS>
