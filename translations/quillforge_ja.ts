<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>APIKeyStore</name>
    <message>
        <source>Your key is saved. %1 sets %2 from a command or another variable, so that line was left as it was; your key is on a new line after it, which is the one new terminal windows use.</source>
        <translation>キーを保存しました。%1 ではコマンドや別の変数から %2 を設定しているため、その行はそのまま残しています。キーはその次の新しい行にあり、新しいターミナルウインドウではこちらが使われます。</translation>
    </message>
</context>
<context>
    <name>BoundedLog</name>
    <message>
        <source>Earlier output was cut here; the whole log is in the log file.</source>
        <translation>これより前の出力はここで省略されています。ログ全体はログファイルにあります。</translation>
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
        <translation>Anthropic の AI コーディングアシスタント。ターミナルで動作し、コードの作成、デバッグ、理解を手伝います。</translation>
    </message>
    <message>
        <source>Requires an Anthropic account (free tier available)</source>
        <translation>Anthropic アカウントが必要です（無料プランあり）</translation>
    </message>
    <message>
        <source>Free tier available, Pro plan for more usage</source>
        <translation>無料プランあり。たくさん使うなら Pro プラン</translation>
    </message>
    <message>
        <source>Sign in with your Anthropic account on first run.</source>
        <translation>初回起動時に Anthropic アカウントでサインインします。</translation>
    </message>
    <message>
        <source>Remove Claude Code and its configuration</source>
        <translation>Claude Code とその設定を削除</translation>
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
        <translation>Google の Gemini AI をターミナルで。コードの生成や技術的な質問に最適です。</translation>
    </message>
    <message>
        <source>Requires a Google account (you probably have one!)</source>
        <translation>Google アカウントが必要です（おそらくもうお持ちです！）</translation>
    </message>
    <message>
        <source>Free tier with generous limits</source>
        <translation>上限にゆとりのある無料プラン</translation>
    </message>
    <message>
        <source>Sign in with your Google account on first run.</source>
        <translation>初回起動時に Google アカウントでサインインします。</translation>
    </message>
    <message>
        <source>Uninstall Gemini CLI via npm</source>
        <translation>npm で Gemini CLI をアンインストール</translation>
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
        <translation>OpenAI のコードに特化したモデル。コードの補完や生成に威力を発揮します。</translation>
    </message>
    <message>
        <source>Requires a paid ChatGPT plan or an OpenAI API key</source>
        <translation>有料の ChatGPT プランまたは OpenAI の API キーが必要です</translation>
    </message>
    <message>
        <source>Included with paid ChatGPT plans, or pay-as-you-go with an API key</source>
        <translation>有料の ChatGPT プランに含まれます。API キーによる従量課金も可能</translation>
    </message>
    <message>
        <source>Sign in with ChatGPT on first run, or use an API key.</source>
        <translation>初回起動時に ChatGPT でサインインするか、API キーを使います。</translation>
    </message>
    <message>
        <source>Uninstall Codex via npm</source>
        <translation>npm で Codex をアンインストール</translation>
    </message>
    <message>
        <source>Works directly in your project folder</source>
        <translation>プロジェクトフォルダで直接動作</translation>
    </message>
    <message>
        <source>Can read, edit, and create files</source>
        <translation>ファイルの読み取り、編集、作成が可能</translation>
    </message>
    <message>
        <source>Runs commands and tests for you</source>
        <translation>コマンドやテストを代わりに実行</translation>
    </message>
    <message>
        <source>Understands your entire codebase</source>
        <translation>コードベース全体を理解</translation>
    </message>
    <message>
        <source>Powered by Google&apos;s Gemini models</source>
        <translation>Google の Gemini モデルを搭載</translation>
    </message>
    <message>
        <source>Great for code generation</source>
        <translation>コードの生成に最適</translation>
    </message>
    <message>
        <source>Helpful for technical explanations</source>
        <translation>技術的な説明に便利</translation>
    </message>
    <message>
        <source>Integrates with Google services</source>
        <translation>Google のサービスと連携</translation>
    </message>
    <message>
        <source>Built on OpenAI&apos;s GPT models</source>
        <translation>OpenAI の GPT モデルがベース</translation>
    </message>
    <message>
        <source>Strong at code completion</source>
        <translation>コードの補完が得意</translation>
    </message>
    <message>
        <source>Wide language support</source>
        <translation>幅広い言語に対応</translation>
    </message>
    <message>
        <source>Great for quick code generation</source>
        <translation>手早いコード生成に最適</translation>
    </message>
    <message>
        <source>On first launch, your browser will open to authenticate.</source>
        <translation>初回起動時にブラウザが開き、認証を行います。</translation>
    </message>
    <message>
        <source>Create an Anthropic account</source>
        <translation>Anthropic アカウントを作成</translation>
    </message>
    <message>
        <source>Visit %1 and sign up with your email or Google account.</source>
        <translation>%1 にアクセスし、メールアドレスまたは Google アカウントで登録します。</translation>
    </message>
    <message>
        <source>Choose a plan</source>
        <translation>プランを選択</translation>
    </message>
    <message>
        <source>Start with the free tier or upgrade to Pro for more usage.</source>
        <translation>まずは無料プランで始めるか、たくさん使うなら Pro にアップグレードします。</translation>
    </message>
    <message>
        <source>Install Claude Code</source>
        <translation>Claude Code をインストール</translation>
    </message>
    <message>
        <source>Sign in from Terminal</source>
        <translation>ターミナルからサインイン</translation>
    </message>
    <message>
        <source>Use your Google account</source>
        <translation>Google アカウントを使う</translation>
    </message>
    <message>
        <source>If you have Gmail, you already have an account!</source>
        <translation>Gmail を使っていれば、もうアカウントをお持ちです！</translation>
    </message>
    <message>
        <source>Install Gemini CLI</source>
        <translation>Gemini CLI をインストール</translation>
    </message>
    <message>
        <source>Sign in with Google</source>
        <translation>Google でサインイン</translation>
    </message>
    <message>
        <source>Use your ChatGPT plan</source>
        <translation>ChatGPT プランを使う</translation>
    </message>
    <message>
        <source>Codex comes with paid ChatGPT plans such as Plus and Pro. Sign up at %1.</source>
        <translation>Codex は Plus や Pro などの有料 ChatGPT プランに含まれています。%1 で登録できます。</translation>
    </message>
    <message>
        <source>Or use an API key</source>
        <translation>または API キーを使う</translation>
    </message>
    <message>
        <source>Without a plan, create an API key with a payment method at %1. This takes a little more setup.</source>
        <translation>プランがない場合は、%1 で支払い方法を登録して API キーを作成します。少し手間がかかります。</translation>
    </message>
    <message>
        <source>Install Codex</source>
        <translation>Codex をインストール</translation>
    </message>
    <message>
        <source>On first launch, choose &quot;Sign in with ChatGPT&quot;; your browser will open to authenticate.</source>
        <translation>初回起動時に「Sign in with ChatGPT」を選ぶと、ブラウザが開いて認証を行います。</translation>
    </message>
    <message>
        <source>Start interactive session</source>
        <translation>対話セッションを開始</translation>
    </message>
    <message>
        <source>Show all options</source>
        <translation>すべてのオプションを表示</translation>
    </message>
    <message>
        <source>Quick task mode</source>
        <translation>クイックタスクモード</translation>
    </message>
    <message>
        <source>Initialize project settings</source>
        <translation>プロジェクト設定を初期化</translation>
    </message>
    <message>
        <source>Quick question</source>
        <translation>ちょっとした質問</translation>
    </message>
    <message>
        <source>Quick task</source>
        <translation>クイックタスク</translation>
    </message>
    <message>
        <source>%1 needs Node.js %2 or newer.</source>
        <translation>%1 には Node.js %2 以降が必要です。</translation>
    </message>
    <message>
        <source>We&apos;ll install the CLI tool on your computer.</source>
        <translation>CLI ツールをコンピュータにインストールします。</translation>
    </message>
    <message>
        <source>We&apos;ll install the CLI tool on your Mac.</source>
        <translation>CLI ツールをお使いの Mac にインストールします。</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Sets up Claude Code, Gemini CLI or Codex on this computer. Without options it opens its window; a second launch brings the open window to the front.</source>
        <translation>このコンピュータに Claude Code、Gemini CLI、または Codex をセットアップします。オプションなしで起動するとウインドウが開きます。2 回目に起動すると、開いているウインドウが前面に表示されます。</translation>
    </message>
    <message>
        <source>Run &quot;%1 --help&quot; to see the options.</source>
        <translation>オプションを確認するには「%1 --help」を実行してください。</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;: Quillforge takes no files.</source>
        <translation>予期しない引数「%1」：Quillforge はファイルを受け付けません。</translation>
    </message>
</context>
<context>
    <name>Diagnosis</name>
    <message>
        <source>Your computer could not reach the internet. Check that you are online, then try again.</source>
        <translation>コンピュータがインターネットに接続できませんでした。オンラインになっているか確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The server could not be reached. Check that you are online, then try again.</source>
        <translation>サーバに接続できませんでした。オンラインになっているか確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The connection timed out. Your internet may be slow or down: try again in a moment.</source>
        <translation>接続がタイムアウトしました。インターネットが遅いか、つながっていない可能性があります。少し待ってから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>No secure connection to the server could be made. A proxy or security software on this network may be in the way: try another network, or ask whoever runs this one.</source>
        <translation>サーバと安全に接続できませんでした。このネットワークのプロキシやセキュリティソフトウェアが妨げている可能性があります。別のネットワークを試すか、このネットワークの管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>Your user may not change a folder the installation needs. The log names it: make sure it belongs to you, then try again.</source>
        <translation>インストールに必要なフォルダを、このユーザでは変更できない可能性があります。そのフォルダはログに記載されています。自分が所有者になっていることを確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Your disk is full. Free up some space, then try again.</source>
        <translation>ディスクがいっぱいです。空き容量を増やしてから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>What was asked for is not on the server right now. Try again later.</source>
        <translation>要求されたものは現在サーバ上にありません。しばらくしてから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Your Node.js is too old for this tool. Update Node.js (or remove the old one so a new one is installed), then try again.</source>
        <translation>お使いの Node.js はこのツールには古すぎます。Node.js をアップデートしてから（または古いものを削除して、新しいものがインストールされるようにしてから）、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The download was cut off before it was complete. Try again.</source>
        <translation>ダウンロードが完了する前に中断されました。もう一度お試しください。</translation>
    </message>
    <message>
        <source>npm could not write to its folders, which usually happens after an earlier “sudo npm”. Try Again uses a private npm cache for Quillforge and installs %1 into your own ~/.local folder.</source>
        <translation>npm が自身のフォルダに書き込めませんでした。これは通常、以前に「sudo npm」を実行したことが原因です。「再試行」を押すと、Quillforge 専用の npm キャッシュを使い、%1 を自分の ~/.local フォルダにインストールします。</translation>
    </message>
    <message>
        <source>npm could not write to its folders, which usually happens after an earlier “sudo npm”. Try Again uses a private npm cache for Quillforge.</source>
        <translation>npm が自身のフォルダに書き込めませんでした。これは通常、以前に「sudo npm」を実行したことが原因です。「再試行」を押すと、Quillforge 専用の npm キャッシュを使います。</translation>
    </message>
    <message>
        <source>%1 was not found on the npm registry. Its maker may have moved it; the log has the details.</source>
        <translation>%1 が npm レジストリに見つかりませんでした。作成者が移動した可能性があります。詳しくはログをご覧ください。</translation>
    </message>
    <message>
        <source>Something went wrong. The log has the details.</source>
        <translation>問題が発生しました。詳しくはログをご覧ください。</translation>
    </message>
    <message>
        <source>Something went wrong. The last message was: “%1”. The log has the details.</source>
        <translation>問題が発生しました。最後のメッセージ：「%1」。詳しくはログをご覧ください。</translation>
    </message>
</context>
<context>
    <name>InstallationError</name>
    <message>
        <source>Installation completed but the tool could not be verified. Please try again.</source>
        <translation>インストールは完了しましたが、ツールを確認できませんでした。もう一度お試しください。</translation>
    </message>
    <message>
        <source>Failed to install Node.js. Please install it manually from %1</source>
        <translation>Node.js をインストールできませんでした。%1 から手動でインストールしてください</translation>
    </message>
    <message>
        <source>Uninstall completed but the tool is still detected. Manual removal may be required.</source>
        <translation>アンインストールは完了しましたが、ツールがまだ検出されます。手動で削除する必要があるかもしれません。</translation>
    </message>
    <message>
        <source>Automatic uninstall is not available. Please follow the manual instructions above.</source>
        <translation>自動アンインストールは利用できません。上記の手順に従って手動で行ってください。</translation>
    </message>
    <message>
        <source>The ~/Developer folder contains files. Please remove your projects first if you want to delete it.</source>
        <translation>~/Developer フォルダにはファイルがあります。このフォルダを削除したい場合は、先にプロジェクトを移動または削除してください。</translation>
    </message>
    <message>
        <source>Git is required but not found. Please install it by running: %1</source>
        <translation>Git が必要ですが、見つかりませんでした。次のコマンドを実行してインストールしてください：%1</translation>
    </message>
    <message>
        <source>Git is required but not found. Please install Xcode Command Line Tools by running: xcode-select --install</source>
        <translation>Git が必要ですが、見つかりませんでした。次のコマンドを実行して Xcode Command Line Tools をインストールしてください：xcode-select --install</translation>
    </message>
</context>
<context>
    <name>InstallationView</name>
    <message>
        <source>Good to know</source>
        <translation>知っておきたいこと</translation>
    </message>
</context>
<context>
    <name>NodeInstaller</name>
    <message>
        <source>The installation of Node.js through Homebrew</source>
        <translation>Homebrew による Node.js のインストール</translation>
    </message>
    <message>
        <source>Node.js publishes no release for this computer&apos;s processor. Please install it manually from nodejs.org</source>
        <translation>このコンピュータのプロセッサ向けの Node.js は公開されていません。nodejs.org から手動でインストールしてください</translation>
    </message>
    <message>
        <source>Could not download the list of Node.js releases. %1</source>
        <translation>Node.js のリリース一覧をダウンロードできませんでした。%1</translation>
    </message>
    <message>
        <source>No long-term support release of Node.js for %1 was found at %2.</source>
        <translation>%2 に、%1 向けの Node.js 長期サポート（LTS）リリースが見つかりませんでした。</translation>
    </message>
    <message>
        <source>Could not make a folder for the Node.js download: %1</source>
        <translation>Node.js のダウンロード用フォルダを作成できませんでした：%1</translation>
    </message>
    <message>
        <source>The download of %1</source>
        <translation>%1 のダウンロード</translation>
    </message>
    <message>
        <source>Could not download %1. %2</source>
        <translation>%1 をダウンロードできませんでした。%2</translation>
    </message>
    <message>
        <source>Could not download the checksums of Node.js %1. %2</source>
        <translation>Node.js %1 のチェックサムをダウンロードできませんでした。%2</translation>
    </message>
    <message>
        <source>The checksum list of Node.js %1 does not name %2, so nothing was installed.</source>
        <translation>Node.js %1 のチェックサム一覧に %2 が載っていないため、何もインストールしませんでした。</translation>
    </message>
    <message>
        <source>The Node.js download does not match its published checksum, so nothing was installed. Please try again.</source>
        <translation>ダウンロードした Node.js が公開されているチェックサムと一致しないため、何もインストールしませんでした。もう一度お試しください。</translation>
    </message>
    <message>
        <source>Unpacking Node.js %1</source>
        <translation>Node.js %1 を展開中</translation>
    </message>
    <message>
        <source>Could not unpack Node.js %1: %2</source>
        <translation>Node.js %1 を展開できませんでした：%2</translation>
    </message>
    <message>
        <source>Node.js was installed, but no Node.js is found on the search path. %1</source>
        <translation>Node.js はインストールされましたが、検索パス上に Node.js が見つかりません。%1</translation>
    </message>
    <message>
        <source>Node.js was installed, but the Node.js found first is %1 in %2. %3</source>
        <translation>Node.js はインストールされましたが、最初に見つかる Node.js は %2 にある %1 です。%3</translation>
    </message>
    <message>
        <source>Node.js %1 was installed in %2, but Node.js %3 in %4 comes first on the search path. %5 Remove the older Node.js, or put %2 before %4 in your PATH.</source>
        <translation>Node.js %1 は %2 にインストールされましたが、検索パスでは %4 にある Node.js %3 が先に見つかります。%5 古い Node.js を削除するか、PATH で %2 を %4 より前に置いてください。</translation>
    </message>
</context>
<context>
    <name>ProfileWriter</name>
    <message>
        <source>it is not an ordinary file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>another change to it did not finish; try again</source>
        <translation>このファイルへの別の変更が完了していません。もう一度お試しください</translation>
    </message>
    <message>
        <source>Move it aside so an ordinary file can take its place, then try again.</source>
        <translation>通常のファイルと置き換えられるように、このファイルを別の場所に移動してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Make sure the file belongs to you and may be changed, then try again.</source>
        <translation>ファイルの所有者が自分で、変更が許可されていることを確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Your disk is full: free up some space, then try again.</source>
        <translation>ディスクがいっぱいです。空き容量を増やしてから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The disk it is on cannot be changed right now.</source>
        <translation>このファイルがあるディスクは、現在変更できません。</translation>
    </message>
    <message>
        <source>The file was left as it was; try again.</source>
        <translation>ファイルは変更されていません。もう一度お試しください。</translation>
    </message>
    <message>
        <source>Could not save the API key to %1</source>
        <translation>API キーを %1 に保存できませんでした</translation>
    </message>
    <message>
        <source>The API key is longer than %1 characters, much longer than any real key. Copy only the key and paste it again.</source>
        <translation>API キーが %1 文字を超えていて、本物のキーにしては長すぎます。キーだけをコピーして、もう一度ペーストしてください。</translation>
    </message>
    <message>
        <source>The API key contains a line break. Copy the key again and paste it as one line.</source>
        <translation>API キーに改行が含まれています。キーをもう一度コピーして、1 行でペーストしてください。</translation>
    </message>
    <message>
        <source>The API key contains an invisible control character. Copy the key again and paste it.</source>
        <translation>API キーに目に見えない制御文字が含まれています。キーをもう一度コピーしてペーストしてください。</translation>
    </message>
    <message>
        <source>The API key contains a space. Copy only the key and paste it again.</source>
        <translation>API キーにスペースが含まれています。キーだけをコピーして、もう一度ペーストしてください。</translation>
    </message>
    <message>
        <source>Could not add ~/.local/bin to the search path in %1</source>
        <translation>%1 で ~/.local/bin を検索パスに追加できませんでした</translation>
    </message>
</context>
<context>
    <name>SearchPathFix</name>
    <message>
        <source>A new terminal window will not find %1 yet: your shell does not read %2. Add this line to your shell&apos;s start-up file, then open a new window: %3</source>
        <translation>新しいターミナルウインドウではまだ %1 が見つかりません。お使いのシェルが %2 を読み込まないためです。シェルの起動ファイルに次の行を追加してから、新しいウインドウを開いてください：%3</translation>
    </message>
</context>
<context>
    <name>ServiceError</name>
    <message>
        <source>The password dialog was cancelled, so %1 was not removed.</source>
        <translation>パスワードのダイアログがキャンセルされたため、%1 は削除されませんでした。</translation>
    </message>
    <message>
        <source>The password dialog was cancelled, so %1 was not updated.</source>
        <translation>パスワードのダイアログがキャンセルされたため、%1 はアップデートされませんでした。</translation>
    </message>
</context>
<context>
    <name>SetupStepStatus</name>
    <message>
        <source>Pending</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>In progress...</source>
        <translation>実行中…</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>スキップ</translation>
    </message>
</context>
<context>
    <name>SetupStepType</name>
    <message>
        <source>Create ~/Developer folder</source>
        <translation>~/Developer フォルダを作成</translation>
    </message>
    <message>
        <source>Check for Git</source>
        <translation>Git を確認</translation>
    </message>
    <message>
        <source>Install Node.js</source>
        <translation>Node.js をインストール</translation>
    </message>
    <message>
        <source>Install tool</source>
        <translation>ツールをインストール</translation>
    </message>
</context>
<context>
    <name>ShellError</name>
    <message>
        <source>1 minute</source>
        <translation>1 分</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 分</translation>
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
        <translation>[これより前の出力は省略されました。以下は最後の %1 文字です]</translation>
    </message>
    <message>
        <source>The command did not finish within %1 and was stopped.</source>
        <translation>コマンドが %1 以内に終了しなかったため、停止しました。</translation>
    </message>
    <message>
        <source>The command wrote more than %1 MB of output and was stopped.</source>
        <translation>コマンドの出力が %1 MB を超えたため、停止しました。</translation>
    </message>
    <message>
        <source>%1 made no progress for %2 and was stopped.</source>
        <translation>%1が %2 の間進まなかったため、停止しました。</translation>
    </message>
    <message>
        <source>The command showed no progress for %1 and was stopped.</source>
        <translation>コマンドが %1 の間進まなかったため、停止しました。</translation>
    </message>
    <message>
        <source>The command was cancelled.</source>
        <translation>コマンドはキャンセルされました。</translation>
    </message>
    <message>
        <source>Command failed with exit code %1: %2</source>
        <translation>コマンドが終了コード %1 で失敗しました: %2</translation>
    </message>
    <message>
        <source>Process error: %1</source>
        <translation>プロセスエラー: %1</translation>
    </message>
</context>
<context>
    <name>StagedInstall</name>
    <message>
        <source>a file is where a folder belongs</source>
        <translation>フォルダがあるべき場所にファイルがあります</translation>
    </message>
    <message>
        <source>a folder is where a file belongs</source>
        <translation>ファイルがあるべき場所にフォルダがあります</translation>
    </message>
    <message>
        <source>Could not make the folder %1: %2</source>
        <translation>フォルダ %1 を作成できませんでした：%2</translation>
    </message>
    <message>
        <source>Could not prepare %1 for the installation: %2</source>
        <translation>インストールのために %1 を準備できませんでした：%2</translation>
    </message>
    <message>
        <source>Could not install %1: %2</source>
        <translation>%1 をインストールできませんでした：%2</translation>
    </message>
</context>
<context>
    <name>SupportTools</name>
    <message>
        <source>Only needed for Gemini or Codex</source>
        <translation>Gemini または Codex を使う場合にのみ必要</translation>
    </message>
    <message>
        <source>Developer Folder</source>
        <translation>Developer フォルダ</translation>
    </message>
    <message>
        <source>Where your projects live</source>
        <translation>プロジェクトの保存場所</translation>
    </message>
    <message>
        <source>This Node.js (%1) was installed by another program. Remove it the way it was installed.</source>
        <translation>この Node.js（%1）は別のプログラムによってインストールされました。インストールしたときと同じ方法で削除してください。</translation>
    </message>
    <message>
        <source>The removal of %1</source>
        <translation>%1 の削除</translation>
    </message>
    <message>
        <source>%1 is still installed at %2: its removal did not finish. The output above says why.</source>
        <translation>%1 はまだ %2 にインストールされています。削除が完了しませんでした。理由は上の出力をご覧ください。</translation>
    </message>
</context>
<context>
    <name>SystemDetector</name>
    <message>
        <source>%1 not installed</source>
        <translation>%1 がインストールされていません</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>未インストール</translation>
    </message>
    <message>
        <source>%1 (needs %2 or newer)</source>
        <translation>%1（%2 以降が必要です）</translation>
    </message>
    <message>
        <source>%1 – no longer receives security fixes</source>
        <translation>%1 – セキュリティ修正の提供は終了しています</translation>
    </message>
    <message>
        <source>%1 MB available</source>
        <translation>%1 MB 使用可能</translation>
    </message>
    <message>
        <source>%1 MB free, %2 MB needed</source>
        <translation>空き %1 MB、必要 %2 MB</translation>
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
        <translation>1 GB のディスク空き容量</translation>
    </message>
    <message>
        <source>Git</source>
        <translation>Git</translation>
    </message>
    <message>
        <source>Node.js is a JavaScript runtime that some AI tools use to run. It&apos;s a standard development tool used by millions of developers.</source>
        <translation>Node.js は、一部の AI ツールが動作するのに使う JavaScript ランタイムです。何百万人もの開発者が使っている標準的な開発ツールです。</translation>
    </message>
    <message>
        <source>Git keeps track of the changes in your projects. The AI tools use it to see and undo what they change.</source>
        <translation>Git はプロジェクトの変更を記録します。AI ツールは Git を使って、自分が行った変更を確認したり取り消したりします。</translation>
    </message>
    <message>
        <source>Free up space by emptying Trash or removing unused apps</source>
        <translation>ゴミ箱を空にするか、使っていない App を削除して空き容量を増やしてください</translation>
    </message>
    <message>
        <source>64-bit Linux</source>
        <translation>64 ビット版 Linux</translation>
    </message>
    <message>
        <source>Your computer needs to be running a 64-bit Linux system. Works on both Intel/AMD and ARM processors.</source>
        <translation>コンピュータで 64 ビット版の Linux が動作している必要があります。Intel/AMD と ARM のどちらのプロセッサでも動作します。</translation>
    </message>
    <message>
        <source>Install the 64-bit edition of your Linux distribution</source>
        <translation>お使いの Linux ディストリビューションの 64 ビット版をインストールしてください</translation>
    </message>
    <message>
        <source>The AI assistant and its dependencies need about 1GB of free space on your computer. This is a one-time installation.</source>
        <translation>AI アシスタントとその動作に必要なソフトウェアのために、コンピュータに約 1 GB の空き容量が必要です。インストールは一度だけです。</translation>
    </message>
    <message>
        <source>Install manually: download it from %1 (or use your system&apos;s package manager)</source>
        <translation>手動でインストール：%1 からダウンロード（またはシステムのパッケージマネージャを使用）</translation>
    </message>
    <message>
        <source>macOS 14 or later</source>
        <translation>macOS 14 以降</translation>
    </message>
    <message>
        <source>Your Mac needs to be running macOS 14 (Sonoma) or later. Works on both Intel and Apple Silicon.</source>
        <translation>お使いの Mac で macOS 14（Sonoma）以降が動作している必要があります。Intel と Apple シリコンのどちらの Mac でも動作します。</translation>
    </message>
    <message>
        <source>Update your Mac: Apple Menu → System Settings → General → Software Update</source>
        <translation>Mac をアップデートしてください：Apple メニュー →「システム設定」→「一般」→「ソフトウェアアップデート」</translation>
    </message>
    <message>
        <source>The AI assistant and its dependencies need about 1GB of free space on your Mac. This is a one-time installation.</source>
        <translation>AI アシスタントとその動作に必要なソフトウェアのために、お使いの Mac に約 1 GB の空き容量が必要です。インストールは一度だけです。</translation>
    </message>
    <message>
        <source>Install manually: brew install node (or download from %1)</source>
        <translation>手動でインストール：brew install node（または %1 からダウンロード）</translation>
    </message>
</context>
<context>
    <name>SystemTool</name>
    <message>
        <source>Open your file manager to manage this folder</source>
        <translation>このフォルダはファイルマネージャを開いて管理してください</translation>
    </message>
    <message>
        <source>Git &amp; Build Tools</source>
        <translation>Git とビルドツール</translation>
    </message>
    <message>
        <source>Provides Git and build tools</source>
        <translation>Git とビルドツールを提供</translation>
    </message>
    <message>
        <source>Use your system&apos;s package manager to remove Git</source>
        <translation>Git を削除するには、システムのパッケージマネージャを使ってください</translation>
    </message>
    <message>
        <source>Open Finder to manage this folder</source>
        <translation>このフォルダは Finder を開いて管理してください</translation>
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
        <translation>フォルダを表示できませんでした</translation>
    </message>
    <message>
        <source>No file manager answered. Your projects folder is here:</source>
        <translation>ファイルマネージャが応答しませんでした。プロジェクトフォルダはここにあります：</translation>
    </message>
    <message>
        <source>The installer could not be started</source>
        <translation>インストーラを起動できませんでした</translation>
    </message>
    <message>
        <source>Open a terminal yourself and type this line:</source>
        <translation>ご自身でターミナルを開き、次の行を入力してください：</translation>
    </message>
</context>
<context>
    <name>TerminalLaunchedView</name>
    <message>
        <source>%1 launched in a new terminal window</source>
        <translation>%1 を新しいターミナルウインドウで起動しました</translation>
    </message>
    <message>
        <source>Switch to the terminal window to start using %1</source>
        <translation>ターミナルウインドウに切り替えて、%1 を使い始めましょう</translation>
    </message>
    <message>
        <source>%1 launched in Terminal</source>
        <translation>%1 をターミナルで起動しました</translation>
    </message>
    <message>
        <source>Switch to Terminal.app to start using %1</source>
        <translation>ターミナルに切り替えて、%1 を使い始めましょう</translation>
    </message>
</context>
<context>
    <name>TerminalLauncher</name>
    <message>
        <source>Quillforge is not allowed to control Terminal</source>
        <translation>Quillforge にはターミナルを操作する許可がありません</translation>
    </message>
    <message>
        <source>To let it open Terminal for you, turn on Terminal under Quillforge in System Settings &gt; Privacy &amp; Security &gt; Automation. Or open Terminal yourself and type this line:</source>
        <translation>Quillforge がターミナルを開けるようにするには、「システム設定」&gt;「プライバシーとセキュリティ」&gt;「オートメーション」で、Quillforge の下にある「ターミナル」をオンにしてください。または、ご自身でターミナルを開き、次の行を入力してください：</translation>
    </message>
</context>
<context>
    <name>ToolInstaller</name>
    <message>
        <source>The installation was stopped. Node.js and %1, installed before that, stay.</source>
        <translation>インストールを中止しました。それまでにインストールされた Node.js と %1 はそのまま残ります。</translation>
    </message>
    <message>
        <source>The installation was stopped. %1, installed before that, stays.</source>
        <translation>インストールを中止しました。それまでにインストールされた %1 はそのまま残ります。</translation>
    </message>
    <message>
        <source>The installation was stopped. Node.js, installed before that, stays.</source>
        <translation>インストールを中止しました。それまでにインストールされた Node.js はそのまま残ります。</translation>
    </message>
    <message>
        <source>The installation was stopped. Nothing was changed.</source>
        <translation>インストールを中止しました。何も変更されていません。</translation>
    </message>
    <message>
        <source>An older Node.js (%1 in %2) is found before the one just installed (%3). %4 works with it; to use the new one, remove the older Node.js.</source>
        <translation>先ほどインストールした Node.js（%3）よりも先に、古い Node.js（%2 にある %1）が見つかります。%4 はそのままで動作します。新しいほうを使うには、古い Node.js を削除してください。</translation>
    </message>
    <message>
        <source>npm is set to refuse install scripts it was not told to allow (strict-allow-scripts), so parts of %1 may be missing. If it does not start, run &quot;npm config delete strict-allow-scripts&quot; in a terminal window and install it again.</source>
        <translation>npm が、許可されていないインストールスクリプトを拒否する設定（strict-allow-scripts）になっているため、%1 の一部が欠けている可能性があります。起動しない場合は、ターミナルウインドウで「npm config delete strict-allow-scripts」を実行してから、もう一度インストールしてください。</translation>
    </message>
    <message>
        <source>The installation of %1</source>
        <translation>%1 のインストール</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>作成しました</translation>
    </message>
    <message>
        <source>Already exists</source>
        <translation>作成済み</translation>
    </message>
    <message>
        <source>Could not create</source>
        <translation>作成できませんでした</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>Verification failed</source>
        <translation>確認に失敗しました</translation>
    </message>
</context>
<context>
    <name>ToolRemover</name>
    <message>
        <source>The removal was stopped, and %1 is still found. Uninstall again to remove what is left of it.</source>
        <translation>削除を中止しましたが、%1 はまだ見つかります。残った部分を削除するには、もう一度アンインストールしてください。</translation>
    </message>
    <message>
        <source>The removal was stopped, but %1 was already removed.</source>
        <translation>削除を中止しましたが、%1 はすでに削除されていました。</translation>
    </message>
    <message>
        <source>The removal of %1</source>
        <translation>%1 の削除</translation>
    </message>
</context>
<context>
    <name>ToolUpdater</name>
    <message>
        <source>The update was stopped, and %1 no longer starts. Install it again from the dashboard.</source>
        <translation>アップデートを中止しました。%1 は起動しなくなっています。ホーム画面からもう一度インストールしてください。</translation>
    </message>
    <message>
        <source>The update was stopped, but %1 %2 was already in place and starts.</source>
        <translation>アップデートを中止しましたが、%1 %2 はすでに適用済みで、起動できます。</translation>
    </message>
    <message>
        <source>The update was stopped. Node.js, installed before that, stays.</source>
        <translation>アップデートを中止しました。それまでにインストールされた Node.js はそのまま残ります。</translation>
    </message>
    <message>
        <source>The update was stopped. Nothing was changed.</source>
        <translation>アップデートを中止しました。何も変更されていません。</translation>
    </message>
    <message>
        <source>%1 is not installed, so there is nothing to update.</source>
        <translation>%1 はインストールされていないため、アップデートするものはありません。</translation>
    </message>
    <message>
        <source>%1 in %2 was not installed with npm, so Quillforge cannot update it. Update it the way it was installed.</source>
        <translation>%2 にある %1 は npm でインストールされたものではないため、Quillforge ではアップデートできません。インストールしたときと同じ方法でアップデートしてください。</translation>
    </message>
    <message>
        <source>%1 does not start, so it cannot be updated. Install it again from the dashboard.</source>
        <translation>%1 が起動しないため、アップデートできません。ホーム画面からもう一度インストールしてください。</translation>
    </message>
    <message>
        <source>The newest version of %1 could not be found out. Check that you are online, then try again.</source>
        <translation>%1 の最新バージョンを確認できませんでした。オンラインになっているか確認してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>%1 %2 needs Node.js %3 or newer, and no Node.js was found.</source>
        <translation>%1 %2 には Node.js %3 以降が必要ですが、Node.js が見つかりませんでした。</translation>
    </message>
    <message>
        <source>The update of %1</source>
        <translation>%1 のアップデート</translation>
    </message>
    <message>
        <source>The update of %1 finished, but %1 does not start now. Install it again from the dashboard.</source>
        <translation>%1 のアップデートは完了しましたが、%1 が起動しなくなりました。ホーム画面からもう一度インストールしてください。</translation>
    </message>
    <message>
        <source>The update of %1 finished, but %1 still reports version %2, which still works.</source>
        <translation>%1 のアップデートは完了しましたが、%1 のバージョンはまだ %2 と表示されます。このバージョンは引き続き使えます。</translation>
    </message>
    <message>
        <source>%1 was not updated. %2 %1 %3 still works.</source>
        <translation>%1 はアップデートされませんでした。%2 %1 %3 は引き続き使えます。</translation>
    </message>
    <message>
        <source>%1 was not updated. %2 %1 %3 no longer starts: install it again from the dashboard.</source>
        <translation>%1 はアップデートされませんでした。%2 %1 %3 は起動しなくなりました。ホーム画面からもう一度インストールしてください。</translation>
    </message>
    <message>
        <source>Node.js was installed, but no Node.js is found on the search path, so %1 was not updated.</source>
        <translation>Node.js はインストールされましたが、検索パス上に Node.js が見つからないため、%1 はアップデートされませんでした。</translation>
    </message>
    <message>
        <source>Node.js was installed, but the Node.js found first is still %1 in %2, which is too old for the update of %3. Remove the older Node.js, then try again.</source>
        <translation>Node.js はインストールされましたが、最初に見つかる Node.js はまだ %2 にある %1 で、%3 のアップデートには古すぎます。古い Node.js を削除してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>%1 %2 needs Node.js %3 or newer; this computer has %4.</source>
        <translation>%1 %2 には Node.js %3 以降が必要ですが、このコンピュータにあるのは %4 です。</translation>
    </message>
    <message>
        <source>%1 %2 needs Node.js %3 or newer; this Mac has %4.</source>
        <translation>%1 %2 には Node.js %3 以降が必要ですが、この Mac にあるのは %4 です。</translation>
    </message>
</context>
<context>
    <name>qf::AIToolCard</name>
    <message>
        <source>Installed</source>
        <translation>インストール済み</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Update %1</source>
        <translation>%1 をアップデート</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 を開く</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>%1 をインストール</translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation>アップデートがあります：%1</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>未インストール</translation>
    </message>
</context>
<context>
    <name>qf::APIKeyView</name>
    <message>
        <source>Set Up API Key</source>
        <translation>API キーを設定</translation>
    </message>
    <message>
        <source>Skip for Now</source>
        <translation>今はスキップ</translation>
    </message>
    <message>
        <source>Save &amp; Continue</source>
        <translation>保存して続ける</translation>
    </message>
    <message>
        <source>Get your API key to start using %1</source>
        <translation>%1 を使い始めるために API キーを取得しましょう</translation>
    </message>
    <message>
        <source>Step 1: Get your API key</source>
        <translation>ステップ 1：API キーを取得</translation>
    </message>
    <message>
        <source>Click the button below to open %1&apos;s console where you can create or copy your API key.</source>
        <translation>下のボタンをクリックすると %1 のコンソールが開きます。そこで API キーを作成またはコピーできます。</translation>
    </message>
    <message>
        <source>Open %1 Console</source>
        <translation>%1 コンソールを開く</translation>
    </message>
    <message>
        <source>Step 2: Paste your API key</source>
        <translation>ステップ 2：API キーをペースト</translation>
    </message>
    <message>
        <source>Paste your API key here</source>
        <translation>ここに API キーをペースト</translation>
    </message>
    <message>
        <source>API key</source>
        <translation>API キー</translation>
    </message>
    <message>
        <source>This will be saved to your shell profile (%1) as %2</source>
        <translation>シェルのプロファイル（%1）に %2 として保存されます</translation>
    </message>
    <message>
        <source>Hide key</source>
        <translation>キーを隠す</translation>
    </message>
    <message>
        <source>Show key</source>
        <translation>キーを表示</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>保存中</translation>
    </message>
</context>
<context>
    <name>qf::AboutDialog</name>
    <message>
        <source>About Quillforge</source>
        <translation>Quillforge について</translation>
    </message>
    <message>
        <source>Quillforge</source>
        <translation>Quillforge</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Gets an AI coding assistant running on your computer, no terminal experience needed.</source>
        <translation>ターミナルの経験がなくても、AI コーディングアシスタントをコンピュータで使えるようにします。</translation>
    </message>
    <message>
        <source>Open the Quillforge website</source>
        <translation>Quillforge の Web サイトを開く</translation>
    </message>
    <message>
        <source>Copy Version Details</source>
        <translation>バージョン情報をコピー</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Released under the MIT licence. Built with Qt %1, with icons from Phosphor (also MIT).</source>
        <translation>MIT ライセンスで公開しています。Qt %1 で構築。アイコンは Phosphor のもの（こちらも MIT ライセンス）です。</translation>
    </message>
</context>
<context>
    <name>qf::AccountSetupStepRow</name>
    <message>
        <source>Step %1: %2</source>
        <translation>ステップ %1：%2</translation>
    </message>
</context>
<context>
    <name>qf::AccountSetupView</name>
    <message>
        <source>Account</source>
        <translation>アカウント</translation>
    </message>
    <message>
        <source>Create Account</source>
        <translation>アカウントを作成</translation>
    </message>
    <message>
        <source>I Have an Account</source>
        <translation>アカウントがあります</translation>
    </message>
    <message>
        <source>Before you install %1</source>
        <translation>%1 をインストールする前に</translation>
    </message>
</context>
<context>
    <name>qf::CommandRow</name>
    <message>
        <source>Copy %1</source>
        <translation>%1 をコピー</translation>
    </message>
</context>
<context>
    <name>qf::CommonCommandsCard</name>
    <message>
        <source>Common Commands</source>
        <translation>よく使うコマンド</translation>
    </message>
</context>
<context>
    <name>qf::CompletionView</name>
    <message>
        <source>Ready to use</source>
        <translation>使用準備完了</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>ホーム</translation>
    </message>
    <message>
        <source>Open in Terminal</source>
        <translation>ターミナルで開く</translation>
    </message>
    <message>
        <source>You&apos;re All Set!</source>
        <translation>準備が整いました！</translation>
    </message>
    <message>
        <source>%1 is installed and ready to use</source>
        <translation>%1 がインストールされ、使える状態です</translation>
    </message>
    <message>
        <source>Quick Start</source>
        <translation>クイックスタート</translation>
    </message>
    <message>
        <source>Open Terminal and try:</source>
        <translation>ターミナルを開いて、次を試してみましょう：</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>%1 をコピー</translation>
    </message>
    <message>
        <source>Your API key is saved: new terminal windows give it to %1 as %2.</source>
        <translation>API キーを保存しました。新しいターミナルウインドウでは、%2 として %1 に渡されます。</translation>
    </message>
    <message>
        <source>Change API Key</source>
        <translation>API キーを変更</translation>
    </message>
    <message>
        <source>Use an API Key Instead</source>
        <translation>代わりに API キーを使う</translation>
    </message>
</context>
<context>
    <name>qf::DashboardCard</name>
    <message>
        <source>Remove %1</source>
        <translation>%1 を削除</translation>
    </message>
</context>
<context>
    <name>qf::FirstProjectTipsCard</name>
    <message>
        <source>Your First Project</source>
        <translation>はじめてのプロジェクト</translation>
    </message>
    <message>
        <source>Create a project folder</source>
        <translation>プロジェクトフォルダを作成</translation>
    </message>
    <message>
        <source>Initialize git (optional but recommended)</source>
        <translation>git を初期化（任意ですがおすすめ）</translation>
    </message>
    <message>
        <source>Start your AI assistant</source>
        <translation>AI アシスタントを起動</translation>
    </message>
    <message>
        <source>Try asking: &quot;Help me build a simple todo list app&quot;</source>
        <translation>こんなふうに頼んでみましょう：「簡単な ToDo リストアプリを作るのを手伝って」</translation>
    </message>
</context>
<context>
    <name>qf::FirstTimeWelcomeCard</name>
    <message>
        <source>Welcome to Quillforge!</source>
        <translation>Quillforge へようこそ！</translation>
    </message>
    <message>
        <source>Let&apos;s get you started with AI-powered coding</source>
        <translation>AI を活用したコーディングを始めましょう</translation>
    </message>
    <message>
        <source>Set up your dev environment</source>
        <translation>開発環境をセットアップ</translation>
    </message>
    <message>
        <source>Install %1 and create a project folder</source>
        <translation>%1 をインストールし、プロジェクトフォルダを作成</translation>
    </message>
    <message>
        <source>Install an AI assistant</source>
        <translation>AI アシスタントをインストール</translation>
    </message>
    <message>
        <source>Choose Claude Code, Gemini CLI, or Codex</source>
        <translation>Claude Code、Gemini CLI、Codex から選択</translation>
    </message>
    <message>
        <source>Start building</source>
        <translation>作り始める</translation>
    </message>
    <message>
        <source>Describe what you want in plain English</source>
        <translation>作りたいものをふだんの言葉で説明</translation>
    </message>
    <message>
        <source>**%1** is ready: press **Open** on its card to start it.</source>
        <translation>**%1** の準備ができました。カードの **開く** を押して起動しましょう。</translation>
    </message>
    <message>
        <source>New to this? **%1** is already set up, so start with **Claude Code**.</source>
        <translation>はじめてですか？ **%1** はセットアップ済みなので、**Claude Code** から始めましょう。</translation>
    </message>
    <message>
        <source>New to this? Start with **%1**, then try **Claude Code**.</source>
        <translation>はじめてですか？ まずは **%1** から始めて、次に **Claude Code** を試してみましょう。</translation>
    </message>
</context>
<context>
    <name>qf::FlowScreen</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>qf::HomeView</name>
    <message>
        <source>Your AI Coding Assistants</source>
        <translation>AI コーディングアシスタント</translation>
    </message>
    <message>
        <source>About Quillforge</source>
        <translation>Quillforge について</translation>
    </message>
    <message>
        <source>Quillforge</source>
        <translation>Quillforge</translation>
    </message>
    <message>
        <source>Checking your setup...</source>
        <translation>セットアップを確認しています…</translation>
    </message>
    <message>
        <source>Development Environment</source>
        <translation>開発環境</translation>
    </message>
    <message>
        <source>AI Assistants</source>
        <translation>AI アシスタント</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>アップデートを確認</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>アップデートを確認しています…</translation>
    </message>
    <message>
        <source>Everything is up to date.</source>
        <translation>すべて最新の状態です。</translation>
    </message>
    <message>
        <source>Could not check for updates. Check that you are online.</source>
        <translation>アップデートを確認できませんでした。オンラインになっているか確認してください。</translation>
    </message>
</context>
<context>
    <name>qf::InstallationController</name>
    <message>
        <source>Stopped</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
</context>
<context>
    <name>qf::InstallationView</name>
    <message>
        <source>Installation</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>Preparing your development environment...</source>
        <translation>開発環境を準備しています…</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Installation Failed</source>
        <translation>インストールに失敗しました</translation>
    </message>
    <message>
        <source>Show Log File</source>
        <translation>ログファイルを表示</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Installation Complete!</source>
        <translation>インストール完了！</translation>
    </message>
    <message>
        <source>Setting up %1</source>
        <translation>%1 をセットアップ中</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>展開</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>折りたたみ</translation>
    </message>
    <message>
        <source>Installation Stopped</source>
        <translation>インストールを中止しました</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>The log file could not be shown</source>
        <translation>ログファイルを表示できませんでした</translation>
    </message>
    <message>
        <source>No file manager answered. The log file is here:</source>
        <translation>ファイルマネージャが応答しませんでした。ログファイルはここにあります：</translation>
    </message>
</context>
<context>
    <name>qf::MainWindow</name>
    <message>
        <source>About Quillforge</source>
        <translation>Quillforge について</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
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
        <translation>Quillforge へようこそ</translation>
    </message>
    <message>
        <source>Get started with AI-powered coding in minutes</source>
        <translation>数分で AI を活用したコーディングを始められます</translation>
    </message>
    <message>
        <source>AI Coding Assistants</source>
        <translation>AI コーディングアシスタント</translation>
    </message>
    <message>
        <source>Install Claude Code, Gemini CLI, or Codex with one click</source>
        <translation>Claude Code、Gemini CLI、Codex をワンクリックでインストール</translation>
    </message>
    <message>
        <source>Automatic Setup</source>
        <translation>自動セットアップ</translation>
    </message>
    <message>
        <source>We handle the dev environment so you can focus on building</source>
        <translation>開発環境の準備はおまかせ。作ることに集中できます</translation>
    </message>
    <message>
        <source>Beginner Friendly</source>
        <translation>初心者にやさしい</translation>
    </message>
    <message>
        <source>No experience needed - just describe what you want to build</source>
        <translation>経験は不要。作りたいものを説明するだけです</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>はじめる</translation>
    </message>
</context>
<context>
    <name>qf::RemovalSheet</name>
    <message>
        <source>Uninstall %1</source>
        <translation>%1 をアンインストール</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>アンインストール</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uninstall Complete</source>
        <translation>アンインストール完了</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>%1 をアンインストールしますか？</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>表示中</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>非表示</translation>
    </message>
</context>
<context>
    <name>qf::RequirementRow</name>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Will be installed for you</source>
        <translation>自動でインストールされます</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>空き容量が足りません</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>未インストール</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>非対応</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>%1 について</translation>
    </message>
    <message>
        <source>What is this?</source>
        <translation>これは何？</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>%1 をインストール</translation>
    </message>
    <message>
        <source>Quillforge installs it for you as part of the setup.</source>
        <translation>セットアップの一環として、Quillforge が自動でインストールします。</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>展開</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>折りたたみ</translation>
    </message>
</context>
<context>
    <name>qf::StepRow</name>
    <message>
        <source>Copy %1</source>
        <translation>%1 をコピー</translation>
    </message>
</context>
<context>
    <name>qf::SystemCheckView</name>
    <message>
        <source>System Check</source>
        <translation>システムチェック</translation>
    </message>
    <message>
        <source>Checking requirements for %1</source>
        <translation>%1 の必要条件を確認しています</translation>
    </message>
    <message>
        <source>Checking system requirements...</source>
        <translation>システムの必要条件を確認しています…</translation>
    </message>
    <message>
        <source>You&apos;re ready to use it in Terminal.</source>
        <translation>ターミナルですぐに使えます。</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>もう一度確認</translation>
    </message>
    <message>
        <source>The installer could not be started</source>
        <translation>インストーラを起動できませんでした</translation>
    </message>
    <message>
        <source>Open a terminal yourself and type this line:</source>
        <translation>ご自身でターミナルを開き、次の行を入力してください：</translation>
    </message>
    <message>
        <source>%1 is already installed!</source>
        <translation>%1 はすでにインストールされています！</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>バージョン：%1</translation>
    </message>
    <message>
        <source>Open Terminal</source>
        <translation>ターミナルを開く</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>Requirements Not Met</source>
        <translation>必要条件を満たしていません</translation>
    </message>
    <message>
        <source>Install is not available until this is fixed: %1.</source>
        <translation>この問題が解決するまでインストールできません：%1。</translation>
    </message>
</context>
<context>
    <name>qf::SystemToolCard</name>
    <message>
        <source>Optional</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>未インストール</translation>
    </message>
    <message>
        <source>Installed for you with Gemini CLI or Codex</source>
        <translation>Gemini CLI または Codex と一緒に自動でインストールされます</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>インストール済み</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>an action and the item it acts on</comment>
        <translation>%2 を%1</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>作成</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>インストール</translation>
    </message>
</context>
<context>
    <name>qf::SystemToolUninstallSheet</name>
    <message>
        <source>This will remove %1 from your system.</source>
        <translation>%1 をシステムから削除します。</translation>
    </message>
</context>
<context>
    <name>qf::TerminalLaunchedView</name>
    <message>
        <source>Open Terminal Again</source>
        <translation>ターミナルをもう一度開く</translation>
    </message>
    <message>
        <source>Quick Tips</source>
        <translation>ヒント</translation>
    </message>
    <message>
        <source>Start %1 in a terminal</source>
        <translation>ターミナルで %1 を起動</translation>
    </message>
</context>
<context>
    <name>qf::TerminalScreenView</name>
    <message>
        <source>Back to Home</source>
        <translation>ホームに戻る</translation>
    </message>
    <message>
        <source>No tool selected</source>
        <translation>ツールが選択されていません</translation>
    </message>
</context>
<context>
    <name>qf::ToolCard</name>
    <message>
        <source>by %1</source>
        <translation>提供：%1</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>詳しく見る</translation>
    </message>
    <message>
        <source>Learn more about %1</source>
        <translation>%1 について詳しく見る</translation>
    </message>
</context>
<context>
    <name>qf::UpdateSheet</name>
    <message>
        <source>Update %1</source>
        <translation>%1 をアップデート</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Install Node.js and Update</source>
        <translation>Node.js をインストールしてアップデート</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Update %1?</source>
        <translation>%1 をアップデートしますか？</translation>
    </message>
    <message>
        <source>%1 goes from version %2 to %3. You stay signed in, and your settings stay as they are.</source>
        <translation>%1 がバージョン %2 から %3 にアップデートされます。サインインしたままで、設定もそのまま残ります。</translation>
    </message>
    <message>
        <source>%1 is updated to version %2. You stay signed in, and your settings stay as they are.</source>
        <translation>%1 がバージョン %2 にアップデートされます。サインインしたままで、設定もそのまま残ります。</translation>
    </message>
    <message>
        <source>Updating %1...</source>
        <translation>%1 をアップデートしています…</translation>
    </message>
    <message>
        <source>This usually takes less than a minute.</source>
        <translation>通常は 1 分もかかりません。</translation>
    </message>
    <message>
        <source>Update Complete</source>
        <translation>アップデート完了</translation>
    </message>
    <message>
        <source>%1 %2 is installed and starts as before.</source>
        <translation>%1 %2 がインストールされ、これまでどおり起動します。</translation>
    </message>
    <message>
        <source>A Newer Node.js Is Needed</source>
        <translation>新しい Node.js が必要です</translation>
    </message>
    <message>
        <source>Update Stopped</source>
        <translation>アップデートを中止しました</translation>
    </message>
    <message>
        <source>Update Failed</source>
        <translation>アップデートに失敗しました</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>表示中</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>非表示</translation>
    </message>
</context>
<context>
    <name>qf::WelcomeView</name>
    <message>
        <source>Choose a Tool</source>
        <translation>ツールを選択</translation>
    </message>
    <message>
        <source>Quillforge</source>
        <translation>Quillforge</translation>
    </message>
    <message>
        <source>Set up AI coding assistants the easy way</source>
        <translation>AI コーディングアシスタントを簡単にセットアップ</translation>
    </message>
    <message>
        <source>Choose a tool to install:</source>
        <translation>インストールするツールを選択してください：</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
</context>
<context>
    <name>qf::WhatIsAICodingCard</name>
    <message>
        <source>New to AI Coding?</source>
        <translation>AI コーディングははじめてですか？</translation>
    </message>
    <message>
        <source>AI coding assistants are tools that help you write, understand, and debug code using artificial intelligence.</source>
        <translation>AI コーディングアシスタントは、人工知能を使ってコードの作成、理解、デバッグを手伝ってくれるツールです。</translation>
    </message>
    <message>
        <source>Conversational</source>
        <translation>会話形式</translation>
    </message>
    <message>
        <source>Describe what you want in plain English and the AI writes the code</source>
        <translation>作りたいものをふだんの言葉で説明すると、AI がコードを書きます</translation>
    </message>
    <message>
        <source>Code Understanding</source>
        <translation>コードの理解</translation>
    </message>
    <message>
        <source>Ask questions about any codebase and get clear explanations</source>
        <translation>どんなコードベースについても質問でき、わかりやすい説明が得られます</translation>
    </message>
    <message>
        <source>Debugging Help</source>
        <translation>デバッグのサポート</translation>
    </message>
    <message>
        <source>Paste error messages and get solutions, not just explanations</source>
        <translation>エラーメッセージをペーストすれば、説明だけでなく解決策も得られます</translation>
    </message>
    <message>
        <source>Learning Partner</source>
        <translation>学習パートナー</translation>
    </message>
    <message>
        <source>Perfect for learning new languages or frameworks at your own pace</source>
        <translation>新しい言語やフレームワークを自分のペースで学ぶのに最適です</translation>
    </message>
    <message>
        <source>No prior coding experience? That&apos;s okay! AI assistants can help you learn as you build.</source>
        <translation>コーディングの経験がなくても大丈夫！ AI アシスタントが、作りながら学ぶのを手伝ってくれます。</translation>
    </message>
</context>
<context>
    <name>qf::ui::ActivityIndicator</name>
    <message>
        <source>In progress</source>
        <translation>実行中</translation>
    </message>
</context>
<context>
    <name>qf::ui::CopiedToast</name>
    <message>
        <source>Copied to clipboard</source>
        <translation>クリップボードにコピーしました</translation>
    </message>
</context>
<context>
    <name>qf::ui::CopyButton</name>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy Log</source>
        <translation>ログをコピー</translation>
    </message>
    <message>
        <source>Copy the whole log</source>
        <translation>ログ全体をコピー</translation>
    </message>
</context>
<context>
    <name>qf::ui::DisclosureCard</name>
    <message>
        <source>Expanded</source>
        <translation>展開</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>折りたたみ</translation>
    </message>
</context>
<context>
    <name>qf::ui::LogView</name>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
</context>
<context>
    <name>qf::ui::TerminalFallbackRow</name>
    <message>
        <source>No terminal window could be opened</source>
        <translation>ターミナルウインドウを開けませんでした</translation>
    </message>
    <message>
        <source>Open a terminal yourself and type this line:</source>
        <translation>ご自身でターミナルを開き、次の行を入力してください：</translation>
    </message>
    <message>
        <source>Copy the line to type</source>
        <translation>入力する行をコピー</translation>
    </message>
</context>
</TS>
