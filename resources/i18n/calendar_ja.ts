<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>About Quillon Calendar</source>
        <translation>Quillon Calendarについて</translation>
    </message>
    <message>
        <source>Built with</source>
        <translation>使用しているソフトウェア</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>GNU Lesser General Public License, version 3</translation>
    </message>
    <message>
        <source>SIL Open Font License 1.1 (OFL-1.1)</source>
        <translation>SIL Open Font License 1.1 (OFL-1.1)</translation>
    </message>
    <message>
        <source>Apache License 2.0 (Apache-2.0)</source>
        <translation>Apache License 2.0 (Apache-2.0)</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
</context>
<context>
    <name>AccountDetails</name>
    <message>
        <source>Manually</source>
        <translation>手動</translation>
    </message>
    <message numerus="yes">
        <source>Every %n hour(s)</source>
        <translation>
            <numerusform>%n時間ごと</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n minute(s)</source>
        <translation>
            <numerusform>%n分ごと</numerusform>
        </translation>
    </message>
    <message>
        <source>S&amp;ync this account</source>
        <translation>このアカウントを同期(&amp;Y)</translation>
    </message>
    <message>
        <source>E&amp;xclude from cloud sync</source>
        <translation>クラウド同期から除外(&amp;X)</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>サーバー</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Calendars</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>Last sync</source>
        <translation>最終同期</translation>
    </message>
    <message>
        <source>Sync &amp;interval</source>
        <translation>同期の間隔(&amp;I)</translation>
    </message>
    <message>
        <source>C&amp;olor</source>
        <translation>色(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>編集(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>更新(&amp;R)</translation>
    </message>
    <message>
        <source>Remo&amp;ve…</source>
        <translation>削除(&amp;V)…</translation>
    </message>
    <message>
        <source>Enter &amp;Password…</source>
        <translation>パスワードを入力(&amp;P)…</translation>
    </message>
    <message>
        <source>Review &amp;Certificate…</source>
        <translation>証明書を確認(&amp;C)…</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>AccountHealth</name>
    <message>
        <source>On this device</source>
        <translation>このデバイス上</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Certificate changed</source>
        <translation>証明書が変更されました</translation>
    </message>
    <message>
        <source>The server shows a certificate that you have not trusted. Nothing syncs until you have reviewed it.</source>
        <translation>サーバーは、まだ信頼されていない証明書を提示しています。証明書を確認するまで同期は行われません。</translation>
    </message>
    <message>
        <source>The password of this account is not on this device. Nothing syncs until you enter it.</source>
        <translation>このアカウントのパスワードはこのデバイスにありません。パスワードを入力するまで同期は行われません。</translation>
    </message>
    <message>
        <source>Sign in required</source>
        <translation>サインインが必要です</translation>
    </message>
    <message>
        <source>The sign-in of this account has ended.</source>
        <translation>このアカウントのサインインの有効期限が切れました。</translation>
    </message>
    <message>
        <source>Sync failed</source>
        <translation>同期に失敗しました</translation>
    </message>
    <message>
        <source>Last sync: %1</source>
        <translation>最終同期: %1</translation>
    </message>
    <message>
        <source>Not synced yet</source>
        <translation>まだ同期されていません</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>date, time</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Calendars on this device</source>
        <translation>このデバイスのカレンダー</translation>
    </message>
    <message>
        <source>Web feed</source>
        <translation>Webフィード</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>calendars, error</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Password rejected</source>
        <translation>パスワードが拒否されました</translation>
    </message>
</context>
<context>
    <name>AccountPill</name>
    <message numerus="yes">
        <source>%n account(s) need attention</source>
        <translation>
            <numerusform>%n件のアカウントで対応が必要です</numerusform>
        </translation>
    </message>
    <message>
        <source>Click to open Calendar Accounts and resolve the issues.</source>
        <translation>クリックするとカレンダーアカウントを開いて問題を解決できます。</translation>
    </message>
    <message numerus="yes">
        <source>%n account(s) need sign-in</source>
        <translation>
            <numerusform>%n件のアカウントでサインインが必要です</numerusform>
        </translation>
    </message>
    <message>
        <source>Click to open Calendar Accounts and sign in.</source>
        <translation>クリックするとカレンダーアカウントを開いてサインインできます。</translation>
    </message>
    <message numerus="yes">
        <source>%n account(s) need password</source>
        <translation>
            <numerusform>%n件のアカウントでパスワードが必要です</numerusform>
        </translation>
    </message>
    <message>
        <source>Click to open Calendar Accounts and re-enter the password.</source>
        <translation>クリックするとカレンダーアカウントを開いてパスワードを再入力できます。</translation>
    </message>
</context>
<context>
    <name>AccountSetup</name>
    <message>
        <source>CalDAV (%1)</source>
        <translation>CalDAV (%1)</translation>
    </message>
</context>
<context>
    <name>AllDayStrip</name>
    <message>
        <source>All-day events</source>
        <translation>終日のイベント</translation>
    </message>
    <message>
        <source>all-day</source>
        <translation>終日</translation>
    </message>
    <message>
        <source>+%1 more</source>
        <translation>他%1件</translation>
    </message>
    <message>
        <source>+%1</source>
        <extracomment>the short form of &quot;+%1 more&quot;</extracomment>
        <translation>+%1</translation>
    </message>
    <message>
        <source>ddd, MMM d</source>
        <comment>first day of a dragged event</comment>
        <translation>M月d日(ddd)</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Database Error</source>
        <translation>データベースエラー</translation>
    </message>
    <message>
        <source>Failed to initialize the database.

Data directory: %1

Please check file permissions and try again.</source>
        <translation>データベースを初期化できませんでした。

データディレクトリ: %1

ファイルのアクセス権を確認して、もう一度お試しください。</translation>
    </message>
</context>
<context>
    <name>AttendeesEditor</name>
    <message>
        <source>+ Add attendee</source>
        <translation>+ 参加者を追加</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Name of the attendee</source>
        <translation>参加者の名前</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>name@example.com</translation>
    </message>
    <message>
        <source>Address of the attendee</source>
        <translation>参加者のアドレス</translation>
    </message>
    <message>
        <source>Remove attendee</source>
        <translation>参加者を削除</translation>
    </message>
</context>
<context>
    <name>CalDavCertificateDialog</name>
    <message>
        <source>Untrusted certificate</source>
        <translation>信頼されていない証明書</translation>
    </message>
    <message>
        <source>Trust this certificate?</source>
        <translation>この証明書を信頼しますか?</translation>
    </message>
    <message>
        <source>%1:%2 presented a TLS certificate that doesn&apos;t chain to a trusted root. Review it before trusting it, anyone with this fingerprint can impersonate the server.</source>
        <translation>%1:%2が提示したTLS証明書は、信頼されたルート証明書につながっていません。信頼する前に内容を確認してください。このフィンガープリントを持つ者は誰でもサーバーになりすますことができます。</translation>
    </message>
    <message>
        <source>(unknown)</source>
        <translation>(不明)</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>サブジェクト</translation>
    </message>
    <message>
        <source>Issuer</source>
        <translation>発行者</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>有効期間の開始</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>有効期間の終了</translation>
    </message>
    <message>
        <source>SHA-256</source>
        <translation>SHA-256</translation>
    </message>
    <message>
        <source>Previously trusted</source>
        <translation>以前に信頼した証明書</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Only trust this certificate if you control the server and recognize the fingerprint. Trusting a malicious certificate gives attackers full access to your calendar data.</source>
        <translation>この証明書は、サーバーを自分で管理していて、フィンガープリントに見覚えがある場合にのみ信頼してください。悪意のある証明書を信頼すると、攻撃者がカレンダーのすべてのデータにアクセスできるようになります。</translation>
    </message>
    <message>
        <source>Trust certificate</source>
        <translation>証明書を信頼</translation>
    </message>
</context>
<context>
    <name>CalDavClient</name>
    <message>
        <source>The connection was closed before the server answered.</source>
        <translation>サーバーが応答する前に接続が閉じられました。</translation>
    </message>
</context>
<context>
    <name>CalDavConnectionDialog</name>
    <message>
        <source>Add CalDAV Account</source>
        <translation>CalDAVアカウントを追加</translation>
    </message>
    <message>
        <source>Add Calendars</source>
        <translation>カレンダーを追加</translation>
    </message>
    <message>
        <source>Edit CalDAV Account</source>
        <translation>CalDAVアカウントを編集</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>The server&apos;s name, unless you give another</source>
        <translation>指定しない場合はサーバー名</translation>
    </message>
    <message>
        <source>Server &amp;URL</source>
        <translation>サーバーのURL(&amp;U)</translation>
    </message>
    <message>
        <source>User&amp;name</source>
        <translation>ユーザー名(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>パスワード(&amp;P)</translation>
    </message>
    <message>
        <source>Account na&amp;me</source>
        <translation>アカウント名(&amp;M)</translation>
    </message>
    <message>
        <source>Discover Calendars</source>
        <translation>カレンダーを検索</translation>
    </message>
    <message>
        <source>“Discover Calendars” shows what the server has, and lets you pick again.</source>
        <translation>「カレンダーを検索」をクリックすると、サーバーにあるカレンダーが表示され、選び直すことができます。</translation>
    </message>
    <message>
        <source>“Discover Calendars” shows here what the server has.</source>
        <translation>「カレンダーを検索」をクリックすると、サーバーにあるカレンダーがここに表示されます。</translation>
    </message>
    <message>
        <source>&amp;Calendars</source>
        <translation>カレンダー(&amp;C)</translation>
    </message>
    <message>
        <source>Calendars</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>Enter the server URL and your username first.</source>
        <translation>まずサーバーのURLとユーザー名を入力してください。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Found %1 calendar(s). Pick which to have on this device.</source>
        <translation>%1件のカレンダーが見つかりました。このデバイスで使うものを選択してください。</translation>
    </message>
    <message>
        <source>Found %1 calendar(s). Pick which to add.</source>
        <translation>%1件のカレンダーが見つかりました。追加するものを選択してください。</translation>
    </message>
    <message>
        <source>Discover first</source>
        <translation>先に検索してください</translation>
    </message>
    <message>
        <source>Click &quot;Discover Calendars&quot; before saving.</source>
        <translation>保存する前に「カレンダーを検索」をクリックしてください。</translation>
    </message>
    <message>
        <source>Pick at least one</source>
        <translation>1つ以上選択してください</translation>
    </message>
    <message>
        <source>Select one or more calendars to add.</source>
        <translation>追加するカレンダーを1つ以上選択してください。</translation>
    </message>
    <message>
        <source>Already added</source>
        <translation>追加済み</translation>
    </message>
    <message>
        <source>This server is already added as &quot;%1&quot;. Its calendars are already available — no need to add it again.</source>
        <translation>このサーバーはすでに「%1」として追加されています。カレンダーはすでに利用できるため、再度追加する必要はありません。</translation>
    </message>
    <message>
        <source>Remove calendars?</source>
        <translation>カレンダーを削除しますか?</translation>
    </message>
    <message>
        <source>This account was removed in the meantime.</source>
        <translation>このアカウントはすでに削除されています。</translation>
    </message>
    <message>
        <source>Database Error</source>
        <translation>データベースエラー</translation>
    </message>
    <message>
        <source>Could not save the account.</source>
        <translation>アカウントを保存できませんでした。</translation>
    </message>
    <message>
        <source>Saving the password…</source>
        <translation>パスワードを保存中…</translation>
    </message>
    <message>
        <source>Password not saved</source>
        <translation>パスワードは保存されませんでした</translation>
    </message>
    <message>
        <source>The system&apos;s password store cannot be used. Calendars sync until Quillon Calendar is closed; after that you have to enter the password of &quot;%1&quot; again.</source>
        <translation>システムのパスワードストアを使用できません。カレンダーはQuillon Calendarを終了するまで同期されますが、その後は「%1」のパスワードを再入力する必要があります。</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>変更なし</translation>
    </message>
    <message>
        <source>Save anyway?</source>
        <translation>このまま保存しますか？</translation>
    </message>
    <message>
        <source>Save the account all the same?</source>
        <translation>それでもアカウントを保存しますか？</translation>
    </message>
</context>
<context>
    <name>CalDavDiscovery</name>
    <message>
        <source>Enter a CalDAV URL starting with http:// or https://</source>
        <translation>http://またはhttps://で始まるCalDAVのURLを入力してください</translation>
    </message>
    <message>
        <source>The server rejected the username or password.</source>
        <translation>サーバーがユーザー名またはパスワードを拒否しました。</translation>
    </message>
    <message>
        <source>Could not find a CalDAV account on that server. Check the URL.</source>
        <translation>そのサーバーにCalDAVアカウントが見つかりませんでした。URLを確認してください。</translation>
    </message>
    <message>
        <source>Could not reach the server: %1</source>
        <translation>サーバーに接続できませんでした: %1</translation>
    </message>
    <message>
        <source>Lost connection during calendar-home-set discovery: %1</source>
        <translation>カレンダーホーム(calendar-home-set)の検索中に接続が切れました: %1</translation>
    </message>
    <message>
        <source>Server returned HTTP %1 during home-set discovery.</source>
        <translation>カレンダーホームの検索中にサーバーがHTTP %1を返しました。</translation>
    </message>
    <message>
        <source>Lost connection during calendar enumeration: %1</source>
        <translation>カレンダーの一覧の取得中に接続が切れました: %1</translation>
    </message>
    <message>
        <source>Server returned HTTP %1 during calendar enumeration.</source>
        <translation>カレンダーの一覧の取得中にサーバーがHTTP %1を返しました。</translation>
    </message>
    <message>
        <source>No calendars found at the discovered home set.</source>
        <translation>検出されたカレンダーホームにカレンダーが見つかりませんでした。</translation>
    </message>
    <message>
        <source>The server refers to another one, which was not given your password. If you trust it, enter its address instead: %1</source>
        <translation>サーバーは別のサーバーを案内していますが、そのサーバーにパスワードは送信されていません。信頼できる場合は、代わりにそのアドレスを入力してください: %1</translation>
    </message>
    <message>
        <source>The server&apos;s answer was cut off.</source>
        <translation>サーバーの応答が途中で途切れました。</translation>
    </message>
</context>
<context>
    <name>CalDavSyncRun</name>
    <message>
        <source>Network error: %1</source>
        <translation>ネットワークエラー: %1</translation>
    </message>
    <message>
        <source>Server returned HTTP %1 during ctag check</source>
        <translation>ctagの確認中にサーバーがHTTP %1を返しました</translation>
    </message>
    <message>
        <source>Server returned HTTP %1</source>
        <translation>サーバーがHTTP %1を返しました</translation>
    </message>
    <message>
        <source>Network error during task pull: %1</source>
        <translation>タスクの取得中にネットワークエラーが発生しました: %1</translation>
    </message>
    <message>
        <source>Task push error: %1</source>
        <translation>タスクの送信エラー: %1</translation>
    </message>
    <message>
        <source>Server returned HTTP %1 pushing task &quot;%2&quot;</source>
        <translation>タスク「%2」の送信中にサーバーがHTTP %1を返しました</translation>
    </message>
    <message>
        <source>Push error: %1</source>
        <translation>送信エラー: %1</translation>
    </message>
    <message>
        <source>Server returned HTTP %1 pushing &quot;%2&quot;</source>
        <translation>「%2」の送信中にサーバーがHTTP %1を返しました</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was moved to your local task list: this calendar does not accept tasks. Task support has been turned off for it.</source>
        <translation>「%1」をローカルのタスクリストに移動しました: このカレンダーはタスクに対応していません。このカレンダーのタスク機能をオフにしました。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was rejected: this calendar does not accept tasks. Task support has been turned off for it.</source>
        <translation>「%1」は拒否されました: このカレンダーはタスクに対応していません。このカレンダーのタスク機能をオフにしました。</translation>
    </message>
</context>
<context>
    <name>CalendarAccess</name>
    <message>
        <source>The calendar no longer exists.</source>
        <translation>このカレンダーはすでに存在しません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is read-only.</source>
        <translation>「%1」は読み取り専用です。</translation>
    </message>
</context>
<context>
    <name>CalendarChecklist</name>
    <message>
        <source>Calendars</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>その他</translation>
    </message>
</context>
<context>
    <name>CalendarFormDialog</name>
    <message>
        <source>New Calendar</source>
        <translation>新規カレンダー</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>作成</translation>
    </message>
    <message>
        <source>Edit Calendar</source>
        <translation>カレンダーを編集</translation>
    </message>
    <message>
        <source>This calendar is read-only. Its name and color change on this device only.</source>
        <translation>このカレンダーは読み取り専用です。名前と色の変更はこのデバイスにのみ反映されます。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Calendar name</source>
        <translation>カレンダー名</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>名前(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Color</source>
        <translation>色(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>説明(&amp;D)</translation>
    </message>
    <message>
        <source>Enter a name for the calendar.</source>
        <translation>カレンダーの名前を入力してください。</translation>
    </message>
    <message>
        <source>This calendar was deleted in the meantime.</source>
        <translation>このカレンダーはすでに削除されています。</translation>
    </message>
    <message>
        <source>The calendar could not be saved.</source>
        <translation>カレンダーを保存できませんでした。</translation>
    </message>
    <message>
        <source>On this device</source>
        <translation>このデバイス上</translation>
    </message>
    <message>
        <source>&amp;Account</source>
        <translation>アカウント(&amp;A)</translation>
    </message>
    <message>
        <source>Allow tasks on this calendar</source>
        <translation>このカレンダーでタスクを許可</translation>
    </message>
    <message>
        <source>Missing password</source>
        <translation>パスワードがありません</translation>
    </message>
    <message>
        <source>No saved password for this account. Edit the account first to re-enter your credentials.</source>
        <translation>このアカウントのパスワードは保存されていません。まずアカウントを編集して、認証情報を再入力してください。</translation>
    </message>
</context>
<context>
    <name>CalendarListDelegate</name>
    <message>
        <source>Default</source>
        <translation>デフォルト</translation>
    </message>
</context>
<context>
    <name>CalendarListWidget</name>
    <message>
        <source>Calendars</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>default calendar</source>
        <translation>デフォルトのカレンダー</translation>
    </message>
    <message>
        <source>not in the active group</source>
        <translation>現在のグループに含まれていません</translation>
    </message>
    <message>
        <source>Calendar of account %1</source>
        <translation>アカウント%1のカレンダー</translation>
    </message>
</context>
<context>
    <name>CalendarMenu</name>
    <message>
        <source>&amp;Rename</source>
        <translation>名前を変更(&amp;R)</translation>
    </message>
    <message>
        <source>Make &amp;Default</source>
        <translation>デフォルトに設定(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>編集(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Color</source>
        <translation>色(&amp;C)</translation>
    </message>
    <message>
        <source>Show &amp;Only This</source>
        <translation>これだけを表示(&amp;O)</translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation>すべて表示(&amp;A)</translation>
    </message>
    <message>
        <source>De&amp;lete Calendar…</source>
        <translation>カレンダーを削除(&amp;L)…</translation>
    </message>
    <message>
        <source>Delete calendar?</source>
        <translation>カレンダーを削除しますか?</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot; and all its events? This cannot be undone.</source>
        <translation>「%1」とそのすべてのイベントを削除しますか? この操作は取り消せません。</translation>
    </message>
    <message>
        <source>Re&amp;move from This Device…</source>
        <translation>このデバイスから削除(&amp;M)…</translation>
    </message>
</context>
<context>
    <name>CalendarPull</name>
    <message>
        <source>The server&apos;s answer was cut off.</source>
        <translation>サーバーの応答が途中で途切れました。</translation>
    </message>
    <message>
        <source>Some of the calendar could not be stored.</source>
        <translation>カレンダーの一部を保存できませんでした。</translation>
    </message>
    <message>
        <source>The server&apos;s answer is not a list of calendar objects.</source>
        <translation>サーバーの応答はカレンダーオブジェクトの一覧ではありません。</translation>
    </message>
</context>
<context>
    <name>CalendarRemoval</name>
    <message numerus="yes">
        <source>%n change(s) made here have not reached the server yet and will be lost.</source>
        <translation>
            <numerusform>ここで行った%n件の変更はまだサーバーに届いておらず、失われます。</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>Remove %1 from this device? The server keeps what is in it.</source>
        <comment>names of calendars</comment>
        <translation>%1をこのデバイスから削除しますか? 内容はサーバーに残ります。</translation>
    </message>
    <message>
        <source>Remove calendar?</source>
        <translation>カレンダーを削除しますか?</translation>
    </message>
</context>
<context>
    <name>ChoiceDialog</name>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
</context>
<context>
    <name>CollectionJob</name>
    <message>
        <source>Creating calendar on server…</source>
        <translation>サーバーにカレンダーを作成中…</translation>
    </message>
    <message>
        <source>Network error: %1</source>
        <translation>ネットワークエラー: %1</translation>
    </message>
    <message>
        <source>Server refused (HTTP %1). Your account may not have permission to create calendars on this server.</source>
        <translation>サーバーに拒否されました(HTTP %1)。このサーバーでカレンダーを作成する権限がアカウントにない可能性があります。</translation>
    </message>
    <message>
        <source>Server returned success but the new calendar isn&apos;t reachable. This server may not support MKCALENDAR.</source>
        <translation>サーバーは成功と応答しましたが、新しいカレンダーにアクセスできません。このサーバーはMKCALENDARに対応していない可能性があります。</translation>
    </message>
    <message>
        <source>This account was removed in the meantime.</source>
        <translation>このアカウントはすでに削除されています。</translation>
    </message>
    <message>
        <source>Created on server, but couldn&apos;t save locally. Run sync to recover.</source>
        <translation>サーバーには作成されましたが、ローカルに保存できませんでした。同期を実行すると復旧できます。</translation>
    </message>
    <message>
        <source>This calendar was deleted in the meantime.</source>
        <translation>このカレンダーはすでに削除されています。</translation>
    </message>
    <message>
        <source>Checking whether this calendar accepts tasks…</source>
        <translation>このカレンダーがタスクに対応しているか確認中…</translation>
    </message>
    <message>
        <source>Couldn&apos;t verify task support: %1</source>
        <translation>タスクに対応しているか確認できませんでした: %1</translation>
    </message>
    <message>
        <source>This calendar does not accept tasks (server returned HTTP %1).</source>
        <translation>このカレンダーはタスクに対応していません(サーバーがHTTP %1を返しました)。</translation>
    </message>
    <message>
        <source>Saving changes to server…</source>
        <translation>変更をサーバーに保存中…</translation>
    </message>
    <message>
        <source>Server refused (HTTP %1). You may not have permission to rename or recolour this calendar.</source>
        <translation>サーバーに拒否されました(HTTP %1)。このカレンダーの名前や色を変更する権限がない可能性があります。</translation>
    </message>
    <message>
        <source>Saved on server, but couldn&apos;t update locally.</source>
        <translation>サーバーには保存されましたが、ローカルで更新できませんでした。</translation>
    </message>
</context>
<context>
    <name>ColorButton</name>
    <message>
        <source>Blue</source>
        <translation>ブルー</translation>
    </message>
    <message>
        <source>Sky</source>
        <translation>スカイブルー</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>ティール</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>グリーン</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>ライム</translation>
    </message>
    <message>
        <source>Amber</source>
        <translation>アンバー</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>オレンジ</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>レッド</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>ピンク</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>パープル</translation>
    </message>
    <message>
        <source>Indigo</source>
        <translation>インディゴ</translation>
    </message>
    <message>
        <source>Graphite</source>
        <translation>グラファイト</translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation>カスタム…</translation>
    </message>
    <message>
        <source>Color: %1</source>
        <translation>色: %1</translation>
    </message>
</context>
<context>
    <name>ColorField</name>
    <message>
        <source>Use calendar color</source>
        <translation>カレンダーの色を使う</translation>
    </message>
</context>
<context>
    <name>ConflictResolutionDialog</name>
    <message>
        <source>Sync conflicts</source>
        <translation>同期の競合</translation>
    </message>
    <message>
        <source>No conflicts. Run a sync to detect any.</source>
        <translation>競合はありません。同期を実行すると検出されます。</translation>
    </message>
    <message>
        <source>These events were edited both locally and on the server. Pick which version to keep for each one.</source>
        <translation>これらのイベントは、ローカルとサーバーの両方で編集されています。それぞれ残すバージョンを選択してください。</translation>
    </message>
    <message>
        <source>Your version (local)</source>
        <translation>自分のバージョン(ローカル)</translation>
    </message>
    <message>
        <source>Server version</source>
        <translation>サーバーのバージョン</translation>
    </message>
    <message>
        <source>Keep local</source>
        <translation>ローカルを残す</translation>
    </message>
    <message>
        <source>Use server version</source>
        <translation>サーバーのバージョンを使う</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>後で決める</translation>
    </message>
    <message>
        <source>Conflict: %1</source>
        <translation>競合: %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Title:&lt;/b&gt; %1</source>
        <translation>&lt;b&gt;タイトル:&lt;/b&gt; %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;When:&lt;/b&gt; %1</source>
        <translation>&lt;b&gt;日時:&lt;/b&gt; %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Where:&lt;/b&gt; %1</source>
        <translation>&lt;b&gt;場所:&lt;/b&gt; %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Notes:&lt;/b&gt; %1</source>
        <translation>&lt;b&gt;メモ:&lt;/b&gt; %1</translation>
    </message>
</context>
<context>
    <name>DateTimePicker</name>
    <message>
        <source>ddd, MMM d, yyyy</source>
        <extracomment>a date in a form, as a date pattern</extracomment>
        <translation>yyyy年M月d日(ddd)</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1分</translation>
    </message>
    <message>
        <source>%1 hr</source>
        <translation>%1時間</translation>
    </message>
    <message>
        <source>%1 hr %2 min</source>
        <translation>%1時間%2分</translation>
    </message>
</context>
<context>
    <name>DescriptionFormat</name>
    <message>
        <source>Join Microsoft Teams Meeting</source>
        <translation>Microsoft Teams会議に参加</translation>
    </message>
</context>
<context>
    <name>DetailsPopover</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>kind of detail, its text</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>EventActions</name>
    <message>
        <source>Delete event?</source>
        <translation>イベントを削除しますか?</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? You can undo with %2.</source>
        <translation>「%1」を削除しますか? %2で元に戻せます。</translation>
    </message>
</context>
<context>
    <name>EventCanvas</name>
    <message>
        <source>&quot;%1&quot; belongs to a read-only calendar.</source>
        <translation>「%1」は読み取り専用のカレンダーに含まれています。</translation>
    </message>
</context>
<context>
    <name>EventContextMenu</name>
    <message>
        <source>Edit filter &quot;%1&quot;…</source>
        <translation>フィルター「%1」を編集…</translation>
    </message>
    <message>
        <source>Create Filter from Event…</source>
        <translation>イベントからフィルターを作成…</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>編集…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>EventDetailsPopover</name>
    <message>
        <source>%1 (cancelled)</source>
        <comment>date and time</comment>
        <translation>%1(キャンセル済み)</translation>
    </message>
    <message>
        <source>When</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>繰り返し</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>%1 (read-only)</source>
        <translation>%1(読み取り専用)</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>メモ</translation>
    </message>
    <message>
        <source>Video call</source>
        <translation>ビデオ通話</translation>
    </message>
    <message>
        <source>Where (opens a map)</source>
        <translation>場所(地図を開きます)</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>accepted</source>
        <translation>承諾</translation>
    </message>
    <message>
        <source>declined</source>
        <translation>辞退</translation>
    </message>
    <message>
        <source>tentative</source>
        <translation>仮承諾</translation>
    </message>
    <message>
        <source>delegated</source>
        <translation>委任</translation>
    </message>
    <message>
        <source>no answer yet</source>
        <translation>未回答</translation>
    </message>
    <message>
        <source>%1 (organizer)</source>
        <translation>%1(主催者)</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <comment>attendee, answer</comment>
        <translation>%1 – %2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>他%n人</numerusform>
        </translation>
    </message>
    <message>
        <source>Attendees</source>
        <translation>参加者</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>タスク</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>開く…</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>編集…</translation>
    </message>
</context>
<context>
    <name>EventEdits</name>
    <message>
        <source>The event no longer exists.</source>
        <translation>このイベントはすでに存在しません。</translation>
    </message>
    <message>
        <source>Created &quot;%1&quot;</source>
        <translation>「%1」の作成</translation>
    </message>
    <message>
        <source>Moved &quot;%1&quot;</source>
        <translation>「%1」の移動</translation>
    </message>
    <message>
        <source>Resized &quot;%1&quot;</source>
        <translation>「%1」の長さの変更</translation>
    </message>
    <message>
        <source>Deleted &quot;%1&quot;</source>
        <translation>「%1」の削除</translation>
    </message>
    <message>
        <source>Could not save the event.</source>
        <translation>イベントを保存できませんでした。</translation>
    </message>
    <message>
        <source>Changed &quot;%1&quot;</source>
        <translation>「%1」の変更</translation>
    </message>
    <message>
        <source>The other calendar already holds &quot;%1&quot;.</source>
        <translation>移動先のカレンダーにはすでに「%1」があります。</translation>
    </message>
</context>
<context>
    <name>EventFormDialog</name>
    <message>
        <source>New Event</source>
        <translation>新規イベント</translation>
    </message>
    <message>
        <source>Create event</source>
        <translation>イベントを作成</translation>
    </message>
    <message>
        <source>Edit Event</source>
        <translation>イベントを編集</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>変更を保存</translation>
    </message>
    <message>
        <source>New event</source>
        <translation>新規イベント</translation>
    </message>
    <message>
        <source>Edit event</source>
        <translation>イベントを編集</translation>
    </message>
    <message>
        <source>Fill in the basics. Start time and calendar are required.</source>
        <translation>基本情報を入力してください。開始時刻とカレンダーは必須です。</translation>
    </message>
    <message>
        <source>Update the details below and save to apply.</source>
        <translation>以下の内容を変更し、保存すると反映されます。</translation>
    </message>
    <message>
        <source>Changes apply to all events in the series.</source>
        <translation>変更は一連のすべてのイベントに適用されます。</translation>
    </message>
    <message>
        <source>Lunch with Sarah, sprint planning…</source>
        <translation>サラとランチ、スプリント計画…</translation>
    </message>
    <message>
        <source>Event color</source>
        <translation>イベントの色</translation>
    </message>
    <message>
        <source>Address, room, or video link</source>
        <translation>住所、会議室、ビデオ通話のリンク</translation>
    </message>
    <message>
        <source>Notes, agenda, links…</source>
        <translation>メモ、議題、リンク…</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>タイトル(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Calendar</source>
        <translation>カレンダー(&amp;C)</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>色</translation>
    </message>
    <message>
        <source>&amp;Starts</source>
        <translation>開始(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Ends</source>
        <translation>終了(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Repeats</source>
        <translation>繰り返し(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>場所(&amp;L)</translation>
    </message>
    <message>
        <source>Attendees</source>
        <translation>参加者</translation>
    </message>
    <message>
        <source>Re&amp;minders</source>
        <translation>通知(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>メモ(&amp;N)</translation>
    </message>
    <message>
        <source>From template…</source>
        <translation>テンプレートから…</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>開始日</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>開始時刻</translation>
    </message>
    <message>
        <source>End date</source>
        <translation>終了日</translation>
    </message>
    <message>
        <source>End time</source>
        <translation>終了時刻</translation>
    </message>
    <message>
        <source>All &amp;day</source>
        <translation>終日(&amp;D)</translation>
    </message>
    <message>
        <source>Times are shown as your clock has them. The event is planned in %1.</source>
        <translation>時刻はお使いの時計に合わせて表示されます。このイベントは%1で予定されています。</translation>
    </message>
    <message>
        <source>This event belongs to a read-only calendar.</source>
        <translation>このイベントは読み取り専用のカレンダーに含まれています。</translation>
    </message>
    <message>
        <source>No templates</source>
        <translation>テンプレートがありません</translation>
    </message>
    <message>
        <source>You haven&apos;t created any event templates yet. Open Tools → Manage Templates to create one.</source>
        <translation>イベントのテンプレートはまだありません。「ツール」→「テンプレートを管理」を開いて作成してください。</translation>
    </message>
    <message>
        <source>Title required</source>
        <translation>タイトルが必要です</translation>
    </message>
    <message>
        <source>Please enter a title for the event.</source>
        <translation>イベントのタイトルを入力してください。</translation>
    </message>
    <message>
        <source>No calendars</source>
        <translation>カレンダーがありません</translation>
    </message>
    <message>
        <source>Create a calendar first.</source>
        <translation>まずカレンダーを作成してください。</translation>
    </message>
    <message>
        <source>End before start</source>
        <translation>終了が開始より前です</translation>
    </message>
    <message>
        <source>The end time is earlier than the start time.</source>
        <translation>終了時刻が開始時刻より前になっています。</translation>
    </message>
    <message>
        <source>Database Error</source>
        <translation>データベースエラー</translation>
    </message>
    <message>
        <source>This is one event of a series, changed on its own.</source>
        <translation>これは一連のイベントの1つで、個別に変更されています。</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>保存されませんでした</translation>
    </message>
</context>
<context>
    <name>EventText</name>
    <message>
        <source>ddd, MMM d</source>
        <extracomment>weekday and date of an event, as a date pattern</extracomment>
        <translation>M月d日(ddd)</translation>
    </message>
    <message>
        <source>%1, all day</source>
        <extracomment>%1 is a date, or two with a dash</extracomment>
        <translation>%1、終日</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>キャンセル済み</translation>
    </message>
    <message>
        <source>(Untitled)</source>
        <translation>(無題)</translation>
    </message>
    <message>
        <source>h AP</source>
        <extracomment>the label of an hour line, as a time pattern</extracomment>
        <translation>AP h時</translation>
    </message>
</context>
<context>
    <name>EventTimes</name>
    <message>
        <source>The event has no start time.</source>
        <translation>イベントに開始時刻がありません。</translation>
    </message>
    <message>
        <source>The end time is earlier than the start time.</source>
        <translation>終了時刻が開始時刻より前になっています。</translation>
    </message>
    <message>
        <source>The series ends before its first event. Choose a later last day.</source>
        <translation>一連のイベントの終了が最初のイベントより前になっています。もっと後の最終日を選択してください。</translation>
    </message>
</context>
<context>
    <name>EventUndo</name>
    <message>
        <source>The change could not be taken back.</source>
        <translation>変更を元に戻せませんでした。</translation>
    </message>
</context>
<context>
    <name>FilterEventChoice</name>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>(no title)</source>
        <translation>(タイトルなし)</translation>
    </message>
    <message>
        <source>Choose an event</source>
        <translation>イベントを選択</translation>
    </message>
    <message>
        <source>An event that is not on this device</source>
        <translation>このデバイスにないイベント</translation>
    </message>
</context>
<context>
    <name>FilterFormDialog</name>
    <message>
        <source>New Filter</source>
        <translation>新規フィルター</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>作成</translation>
    </message>
    <message>
        <source>Edit Filter</source>
        <translation>フィルターを編集</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>名前(&amp;N)</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Text in the event</source>
        <translation>イベント内のテキスト</translation>
    </message>
    <message>
        <source>Day or start time</source>
        <translation>曜日または開始時刻</translation>
    </message>
    <message>
        <source>All-day events</source>
        <translation>終日のイベント</translation>
    </message>
    <message>
        <source>One event</source>
        <translation>1つのイベント</translation>
    </message>
    <message>
        <source>Only &amp;repeating events</source>
        <translation>繰り返しイベントのみ(&amp;R)</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>&amp;Filter by</source>
        <translation>フィルターの条件(&amp;F)</translation>
    </message>
    <message>
        <source>In all calendars</source>
        <translation>すべてのカレンダー</translation>
    </message>
    <message>
        <source>Only in chosen calendars</source>
        <translation>選択したカレンダーのみ</translation>
    </message>
    <message>
        <source>&amp;Calendars</source>
        <translation>カレンダー(&amp;C)</translation>
    </message>
    <message>
        <source>Hide the events</source>
        <translation>イベントを非表示</translation>
    </message>
    <message>
        <source>Dim the events</source>
        <translation>イベントを薄く表示</translation>
    </message>
    <message>
        <source>&amp;Silence their reminders</source>
        <translation>通知を消音(&amp;S)</translation>
    </message>
    <message>
        <source>Reminders of hidden events are always silent.</source>
        <translation>非表示のイベントの通知は常に消音されます。</translation>
    </message>
    <message>
        <source>Of several filters that match an event, the one with the lowest number decides.</source>
        <translation>複数のフィルターが1つのイベントに一致する場合は、番号が最も小さいものが優先されます。</translation>
    </message>
    <message>
        <source>Filter is &amp;on</source>
        <translation>フィルターを有効にする(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Effect</source>
        <translation>効果(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Priority</source>
        <translation>優先順位(&amp;P)</translation>
    </message>
    <message>
        <source>Filter name</source>
        <translation>フィルター名</translation>
    </message>
    <message>
        <source>Enter at least one text to look for.</source>
        <translation>検索するテキストを1つ以上入力してください。</translation>
    </message>
    <message>
        <source>Choose at least one day or time.</source>
        <translation>曜日または時刻を1つ以上選択してください。</translation>
    </message>
    <message>
        <source>Choose the event that the filter is for.</source>
        <translation>フィルターの対象となるイベントを選択してください。</translation>
    </message>
    <message>
        <source>Choose at least one calendar.</source>
        <translation>カレンダーを1つ以上選択してください。</translation>
    </message>
    <message>
        <source>This filter was deleted in the meantime.</source>
        <translation>このフィルターはすでに削除されています。</translation>
    </message>
    <message>
        <source>The filter could not be saved.</source>
        <translation>フィルターを保存できませんでした。</translation>
    </message>
    <message>
        <source>Delete filter?</source>
        <translation>フィルターを削除しますか?</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? The events it hides or dims show again.</source>
        <translation>「%1」を削除しますか? 非表示または薄く表示されているイベントは通常の表示に戻ります。</translation>
    </message>
</context>
<context>
    <name>FilterPatternEditor</name>
    <message>
        <source>Add Te&amp;xt</source>
        <translation>テキストを追加(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Match upper and lower case</source>
        <translation>大文字と小文字を区別(&amp;M)</translation>
    </message>
    <message>
        <source>Title contains</source>
        <translation>タイトルに含む</translation>
    </message>
    <message>
        <source>Title is exactly</source>
        <translation>タイトルが完全に一致</translation>
    </message>
    <message>
        <source>Description contains</source>
        <translation>説明に含む</translation>
    </message>
    <message>
        <source>Location contains</source>
        <translation>場所に含む</translation>
    </message>
    <message>
        <source>Where to look</source>
        <translation>検索対象</translation>
    </message>
    <message>
        <source>Text to look for</source>
        <translation>検索するテキスト</translation>
    </message>
    <message>
        <source>Remove this text</source>
        <translation>このテキストを削除</translation>
    </message>
</context>
<context>
    <name>FilterPreview</name>
    <message numerus="yes">
        <source>%n event(s) in the next 30 days match</source>
        <translation>
            <numerusform>今後30日間で%n件のイベントが一致</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FilterText</name>
    <message>
        <source>title is &quot;%1&quot;</source>
        <translation>タイトルが「%1」</translation>
    </message>
    <message>
        <source>title contains &quot;%1&quot;</source>
        <translation>タイトルに「%1」を含む</translation>
    </message>
    <message>
        <source>description contains &quot;%1&quot;</source>
        <translation>説明に「%1」を含む</translation>
    </message>
    <message>
        <source>location contains &quot;%1&quot;</source>
        <translation>場所に「%1」を含む</translation>
    </message>
    <message>
        <source> or </source>
        <translation> または </translation>
    </message>
    <message>
        <source>starts at %1</source>
        <translation>%1に開始</translation>
    </message>
    <message>
        <source>starts from %1</source>
        <translation>%1以降に開始</translation>
    </message>
    <message>
        <source>starts until %1</source>
        <translation>%1以前に開始</translation>
    </message>
    <message>
        <source>repeating only</source>
        <translation>繰り返しのみ</translation>
    </message>
    <message>
        <source>the event &quot;%1&quot;</source>
        <translation>イベント「%1」</translation>
    </message>
    <message>
        <source>one event</source>
        <translation>1つのイベント</translation>
    </message>
    <message>
        <source>no calendar of this device</source>
        <translation>このデバイスにないカレンダー</translation>
    </message>
    <message>
        <source>repeating all-day events</source>
        <translation>繰り返しの終日イベント</translation>
    </message>
    <message>
        <source>all-day events</source>
        <translation>終日のイベント</translation>
    </message>
    <message>
        <source>Hides</source>
        <translation>非表示</translation>
    </message>
    <message>
        <source>Dims</source>
        <translation>薄く表示</translation>
    </message>
    <message>
        <source>matches nothing</source>
        <translation>一致なし</translation>
    </message>
</context>
<context>
    <name>FilterTimeEditor</name>
    <message>
        <source>Only &amp;repeating events</source>
        <translation>繰り返しイベントのみ(&amp;R)</translation>
    </message>
    <message>
        <source>Starts e&amp;xactly at</source>
        <translation>ちょうどこの時刻に開始(&amp;X)</translation>
    </message>
    <message>
        <source>Starts at or af&amp;ter</source>
        <translation>この時刻以降に開始(&amp;T)</translation>
    </message>
    <message>
        <source>Starts at or &amp;before</source>
        <translation>この時刻以前に開始(&amp;B)</translation>
    </message>
    <message>
        <source>A range over midnight matches nothing. Make two filters: one for the evening, with only &quot;at or after&quot;, and one for the morning.</source>
        <translation>午前0時をまたぐ範囲は何にも一致しません。「この時刻以降」だけを指定した夜用のフィルターと、朝用のフィルターの2つを作成してください。</translation>
    </message>
</context>
<context>
    <name>FiltersPill</name>
    <message>
        <source>Manage filters</source>
        <translation>フィルターを管理</translation>
    </message>
    <message>
        <source>No filters</source>
        <translation>フィルターなし</translation>
    </message>
    <message numerus="yes">
        <source>%n filter(s) applied</source>
        <translation>
            <numerusform>%n個のフィルターを適用中</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hidden</source>
        <translation>
            <numerusform>%n件を非表示</numerusform>
        </translation>
    </message>
    <message>
        <source>Disable all filters</source>
        <translation>すべてのフィルターを無効にする</translation>
    </message>
    <message>
        <source>Enable all filters</source>
        <translation>すべてのフィルターを有効にする</translation>
    </message>
    <message>
        <source>Add Filter…</source>
        <translation>フィルターを追加…</translation>
    </message>
    <message>
        <source>Manage Filters…</source>
        <translation>フィルターを管理…</translation>
    </message>
</context>
<context>
    <name>FormDialog</name>
    <message>
        <source>Discard changes?</source>
        <translation>変更を破棄しますか?</translation>
    </message>
    <message>
        <source>Your changes have not been saved.</source>
        <translation>変更はまだ保存されていません。</translation>
    </message>
</context>
<context>
    <name>GroupButton</name>
    <message>
        <source>Calendar group</source>
        <translation>カレンダーグループ</translation>
    </message>
    <message>
        <source>Calendar group: %1</source>
        <translation>カレンダーグループ: %1</translation>
    </message>
    <message>
        <source>Add Calendar Group…</source>
        <translation>カレンダーグループを追加…</translation>
    </message>
    <message>
        <source>Edit Current Group…</source>
        <translation>現在のグループを編集…</translation>
    </message>
    <message>
        <source>Delete Current Group</source>
        <translation>現在のグループを削除</translation>
    </message>
</context>
<context>
    <name>GroupMenu</name>
    <message>
        <source>Calendar groups</source>
        <translation>カレンダーグループ</translation>
    </message>
    <message>
        <source>&amp;Next Group</source>
        <translation>次のグループ(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous Group</source>
        <translation>前のグループ(&amp;P)</translation>
    </message>
</context>
<context>
    <name>GroupName</name>
    <message>
        <source>All Calendars</source>
        <translation>すべてのカレンダー</translation>
    </message>
</context>
<context>
    <name>HorizonChip</name>
    <message>
        <source>Days timeline span — Ctrl+Shift+1..5 for 3 / 5 / 7 / 10 / 14 days</source>
        <translation>複数日表示の期間 — Ctrl+Shift+1..5で3 / 5 / 7 / 10 / 14日</translation>
    </message>
    <message>
        <source>Days timeline span</source>
        <translation>複数日表示の期間</translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n日</numerusform>
        </translation>
    </message>
    <message>
        <source>%1d</source>
        <comment>number of days</comment>
        <translation>%1日</translation>
    </message>
</context>
<context>
    <name>IcsImportFlow</name>
    <message>
        <source>Importing… %1%</source>
        <translation>読み込み中… %1%</translation>
    </message>
    <message>
        <source>Reading… %1%</source>
        <translation>ファイルを解析中… %1%</translation>
    </message>
    <message>
        <source>No calendars configured</source>
        <translation>カレンダーが設定されていません</translation>
    </message>
    <message>
        <source>Add a writable calendar first; then re-import &quot;%1&quot;.</source>
        <translation>まず書き込み可能なカレンダーを追加してから、「%1」をもう一度読み込んでください。</translation>
    </message>
    <message>
        <source>Couldn&apos;t open &quot;%1&quot; for reading.</source>
        <translation>「%1」を開いて読み取ることができませんでした。</translation>
    </message>
    <message>
        <source>No events found in &quot;%1&quot;.</source>
        <translation>「%1」にイベントが見つかりませんでした。</translation>
    </message>
    <message>
        <source>Couldn&apos;t open file</source>
        <translation>ファイルを開けませんでした</translation>
    </message>
    <message>
        <source>Nothing to import</source>
        <translation>読み込むものがありません</translation>
    </message>
    <message>
        <source>Imported %1 and updated %2 in %3.</source>
        <translation>%1件を読み込み、%2件を更新しました(%3)。</translation>
    </message>
    <message>
        <source>Updated 1 existing event in %1.</source>
        <translation>%1の既存のイベント1件を更新しました。</translation>
    </message>
    <message>
        <source>Updated %1 existing events in %2.</source>
        <translation>既存のイベント%1件を更新しました(%2)。</translation>
    </message>
    <message>
        <source>Imported 1 event into %1.</source>
        <translation>%1にイベント1件を読み込みました。</translation>
    </message>
    <message>
        <source>Imported %1 events into %2.</source>
        <translation>イベント%1件を読み込みました(%2)。</translation>
    </message>
    <message numerus="yes">
        <source> Skipped %n event(s) without an identifier or a start.</source>
        <translation>
            <numerusform> 識別子または開始日時のないイベント%n件をスキップしました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> %n event(s) could not be stored.</source>
        <translation>
            <numerusform> イベント%n件を保存できませんでした。</numerusform>
        </translation>
    </message>
    <message>
        <source>Import failed</source>
        <translation>インポートに失敗しました</translation>
    </message>
    <message>
        <source>The chosen calendar was deleted in the meantime.</source>
        <translation>選択したカレンダーはその間に削除されました。</translation>
    </message>
    <message>
        <source>Import incomplete</source>
        <translation>インポートは完了していません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to import.</source>
        <translation>「%1」は大きすぎるためインポートできません。</translation>
    </message>
    <message numerus="yes">
        <source> Skipped %n event(s) that are too large.</source>
        <translation>
            <numerusform> 大きすぎるイベント %n 件をスキップしました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Import 1 event from &quot;%1&quot; into:</source>
        <translation>「%1」のイベント1件の読み込み先:</translation>
    </message>
    <message>
        <source>Import %1 events from &quot;%2&quot; into:</source>
        <translation>イベント%1件(「%2」)の読み込み先:</translation>
    </message>
    <message>
        <source>Import 1 event from %1 files into:</source>
        <translation>%1個のファイルのイベント1件の読み込み先:</translation>
    </message>
    <message>
        <source>Import %1 events from %2 files into:</source>
        <translation>イベント%1件(%2個のファイル)の読み込み先:</translation>
    </message>
    <message>
        <source>Import events</source>
        <translation>イベントを読み込む</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>読み込む</translation>
    </message>
</context>
<context>
    <name>KeyboardHelpDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>No shortcut matches.</source>
        <translation>一致するショートカットはありません。</translation>
    </message>
    <message>
        <source>Search shortcuts</source>
        <translation>ショートカットを検索</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>キー</translation>
    </message>
</context>
<context>
    <name>MainMenus</name>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>New &amp;Calendar…</source>
        <translation>新規カレンダー(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Import ICS File…</source>
        <translation>ICSファイルを読み込む(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>設定(&amp;P)…</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>Toggle &amp;Sidebar</source>
        <translation>サイドバーの表示/非表示(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Compact Density</source>
        <translation>コンパクト表示(&amp;C)</translation>
    </message>
    <message>
        <source>Days Timeline S&amp;pan</source>
        <translation>複数日表示の期間(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>移動(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>日(&amp;D)</translation>
    </message>
    <message>
        <source>Da&amp;ys</source>
        <translation>複数日(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>週(&amp;W)</translation>
    </message>
    <message>
        <source>Gr&amp;id</source>
        <translation>グリッド(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>月(&amp;M)</translation>
    </message>
    <message>
        <source>Yea&amp;r</source>
        <translation>年(&amp;R)</translation>
    </message>
    <message>
        <source>Days timeline span</source>
        <translation>複数日表示の期間</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>ナビゲーション</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>今日(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>次へ(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>前へ(&amp;P)</translation>
    </message>
    <message>
        <source>A &amp;Week Later</source>
        <translation>1週間後(&amp;W)</translation>
    </message>
    <message>
        <source>A W&amp;eek Earlier</source>
        <translation>1週間前(&amp;E)</translation>
    </message>
    <message>
        <source>A &amp;Month Later</source>
        <translation>1か月後(&amp;M)</translation>
    </message>
    <message>
        <source>A M&amp;onth Earlier</source>
        <translation>1か月前(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>戻る(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>進む(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Zoom In</source>
        <translation>拡大(&amp;Z)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>ツール(&amp;T)</translation>
    </message>
    <message>
        <source>Add &amp;Filter…</source>
        <translation>フィルターを追加(&amp;F)…</translation>
    </message>
    <message>
        <source>Add Calendar &amp;Group…</source>
        <translation>カレンダーグループを追加(&amp;G)…</translation>
    </message>
    <message>
        <source>Manage Calendar Gr&amp;oups…</source>
        <translation>カレンダーグループを管理(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Calendar Groups</source>
        <translation>カレンダーグループ(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>キーボードショートカット(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;About Quillon Calendar</source>
        <translation>Quillon Calendarについて(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;New Event…</source>
        <translation>新規イベント(&amp;N)…</translation>
    </message>
    <message>
        <source>New &amp;Task…</source>
        <translation>新規タスク(&amp;T)…</translation>
    </message>
    <message>
        <source>Quick &amp;Add…</source>
        <translation>クイック追加(&amp;A)…</translation>
    </message>
    <message>
        <source>Type an event in plain English (&quot;lunch Thursday 1pm&quot;)</source>
        <translation>英語の文でイベントを入力(「lunch Thursday 1pm」)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>Toggle &amp;Tasks Pane</source>
        <translation>タスクペインの表示/非表示(&amp;T)</translation>
    </message>
    <message>
        <source>Manage Fil&amp;ters…</source>
        <translation>フィルターを管理(&amp;T)…</translation>
    </message>
    <message>
        <source>Manage Te&amp;mplates…</source>
        <translation>テンプレートを管理(&amp;M)…</translation>
    </message>
    <message>
        <source>&amp;What&apos;s New</source>
        <translation>新機能(&amp;W)</translation>
    </message>
    <message>
        <source>Send &amp;Feedback…</source>
        <translation>フィードバックを送信(&amp;F)…</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>アップデートを確認(&amp;U)…</translation>
    </message>
    <message>
        <source>Events in the calendar</source>
        <translation>カレンダーのイベント</translation>
    </message>
    <message>
        <source>All-day events that do not all fit</source>
        <translation>表示しきれない終日のイベント</translation>
    </message>
    <message>
        <source>Select the next one or the one before</source>
        <translation>次または前を選択</translation>
    </message>
    <message>
        <source>Open the selected one</source>
        <translation>選択したものを開く</translation>
    </message>
    <message>
        <source>Delete it</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Move it by a day</source>
        <translation>1日移動</translation>
    </message>
    <message>
        <source>Move it by a quarter of an hour</source>
        <translation>15分移動</translation>
    </message>
    <message>
        <source>Let it end later or earlier</source>
        <translation>終了を遅くまたは早くする</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>選択を解除</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>すべて表示</translation>
    </message>
    <message>
        <source>Show the first ones only</source>
        <translation>最初のものだけを表示</translation>
    </message>
    <message>
        <source>Show more or fewer, while none is selected</source>
        <translation>選択していないときに表示数を切り替え</translation>
    </message>
    <message>
        <source>Undo (drag/resize/delete)</source>
        <translation>元に戻す(移動/長さの変更/削除)</translation>
    </message>
    <message>
        <source>Calendar Acc&amp;ounts…</source>
        <translation>カレンダーアカウント(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Sync Now</source>
        <translation>今すぐ同期(&amp;S)</translation>
    </message>
    <message>
        <source>Force F&amp;ull Sync…</source>
        <translation>完全同期を強制実行(&amp;U)…</translation>
    </message>
    <message>
        <source>Re-pull every event from every account, ignoring sync tokens</source>
        <translation>同期トークンを無視して、すべてのアカウントのすべてのイベントを再取得</translation>
    </message>
    <message>
        <source>&amp;Sync Conflicts…</source>
        <translation>同期の競合(&amp;S)…</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quillon Calendar</source>
        <translation>Quillon Calendar</translation>
    </message>
    <message>
        <source>Import ICS file</source>
        <translation>ICSファイルを読み込む</translation>
    </message>
    <message>
        <source>iCalendar files (*.ics);;All files (*)</source>
        <translation>iCalendarファイル (*.ics);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Undid: %1</source>
        <translation>元に戻しました: %1</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>追加しました: %1</translation>
    </message>
    <message>
        <source>Quick-add ignored: no calendars configured.</source>
        <translation>クイック追加を実行できません: カレンダーが設定されていません。</translation>
    </message>
    <message>
        <source>Quick-add couldn&apos;t parse: &quot;%1&quot;</source>
        <translation>クイック追加で解釈できませんでした: 「%1」</translation>
    </message>
    <message>
        <source>Force full sync?</source>
        <translation>完全同期を強制実行しますか?</translation>
    </message>
    <message>
        <source>Re-fetch every event and task from every account, ignoring saved sync tokens. Useful when items look stale or out of date.

Any unsynced local edits will be discarded in favour of the server&apos;s copy. Pending deletions are preserved.

Heavy accounts may take a minute or two and use more bandwidth than usual.</source>
        <translation>保存されている同期トークンを無視して、すべてのアカウントのすべてのイベントとタスクを再取得します。内容が古いままに見える場合に便利です。

まだ同期されていないローカルの変更は破棄され、サーバーの内容に置き換えられます。保留中の削除は維持されます。

データの多いアカウントでは、1〜2分かかり、通常より多くの通信量を使う場合があります。</translation>
    </message>
</context>
<context>
    <name>ManageFiltersDialog</name>
    <message>
        <source>Manage Filters</source>
        <translation>フィルターを管理</translation>
    </message>
    <message>
        <source>No filters yet. A filter hides or dims events on this device; it never changes them.</source>
        <translation>フィルターはまだありません。フィルターは、このデバイス上でイベントを非表示または薄く表示します。イベント自体が変更されることはありません。</translation>
    </message>
</context>
<context>
    <name>ManageSourcesDialog</name>
    <message>
        <source>Calendar Accounts</source>
        <translation>カレンダーアカウント</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>追加(&amp;A)…</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>アカウント</translation>
    </message>
    <message>
        <source>&amp;CalDAV account…</source>
        <translation>CalDAVアカウント(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Local calendar…</source>
        <translation>ローカルカレンダー(&amp;L)…</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; and its calendars from this device? The server keeps what is in them.</source>
        <translation>「%1」とそのカレンダーをこのデバイスから削除しますか? 内容はサーバーに残ります。</translation>
    </message>
    <message>
        <source>Remove account?</source>
        <translation>アカウントを削除しますか?</translation>
    </message>
    <message numerus="yes">
        <source>Discovered %n new calendar(s).</source>
        <translation>
            <numerusform>%n件の新しいカレンダーが見つかりました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ManageTemplatesDialog</name>
    <message>
        <source>Manage Templates</source>
        <translation>テンプレートを管理</translation>
    </message>
    <message>
        <source>No templates yet. A template fills in a new event: title, place, length, reminders.</source>
        <translation>テンプレートはまだありません。テンプレートは、新規イベントのタイトル、場所、長さ、通知をあらかじめ入力します。</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>終日</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <comment>title, length</comment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Delete template?</source>
        <translation>テンプレートを削除しますか?</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? Events made from it stay.</source>
        <translation>「%1」を削除しますか? このテンプレートから作成したイベントは残ります。</translation>
    </message>
</context>
<context>
    <name>ManageViewsDialog</name>
    <message>
        <source>Manage Calendar Groups</source>
        <translation>カレンダーグループを管理</translation>
    </message>
    <message>
        <source>No groups yet. A group shows the calendars you choose, under one name.</source>
        <translation>グループはまだありません。グループは、選択したカレンダーを1つの名前でまとめて表示します。</translation>
    </message>
    <message>
        <source>Delete group?</source>
        <translation>グループを削除しますか?</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? You can recreate it later.</source>
        <translation>「%1」を削除しますか? 後で作成し直すことができます。</translation>
    </message>
    <message>
        <source>All visible calendars</source>
        <translation>表示中のすべてのカレンダー</translation>
    </message>
</context>
<context>
    <name>MiniMonthCalendar</name>
    <message>
        <source>Previous month</source>
        <translation>前の月</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>次の月</translation>
    </message>
    <message>
        <source>Month to pick a day from</source>
        <translation>日付を選択する月</translation>
    </message>
    <message>
        <source>MMMM yyyy</source>
        <extracomment>Title of the small month in the sidebar: a date pattern, M is for month and y for year.</extracomment>
        <translation>yyyy年M月</translation>
    </message>
</context>
<context>
    <name>ModeBar</name>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>週</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>複数日</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>グリッド</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
</context>
<context>
    <name>NoAccountsPage</name>
    <message>
        <source>Add a Quillon Calendar account to store calendars on this device, connect Google or Microsoft, or hook up any CalDAV server (Synology, Nextcloud, Radicale, iCloud).</source>
        <translation>Quillon Calendarアカウントを追加してこのデバイスにカレンダーを保存するか、GoogleまたはMicrosoftに接続するか、任意のCalDAVサーバー(Synology、Nextcloud、Radicale、iCloud)に接続してください。</translation>
    </message>
    <message>
        <source>No accounts configured</source>
        <translation>アカウントが設定されていません</translation>
    </message>
    <message>
        <source>  Add Account…</source>
        <translation>  アカウントを追加…</translation>
    </message>
</context>
<context>
    <name>OptionalDateField</name>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Has a date: %1</source>
        <translation>日付あり: %1</translation>
    </message>
    <message>
        <source>No date</source>
        <translation>日付なし</translation>
    </message>
</context>
<context>
    <name>OrderedListDialog</name>
    <message>
        <source>&amp;Add…</source>
        <translation>追加(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>編集(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>上へ移動(&amp;U)</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>下へ移動(&amp;O)</translation>
    </message>
</context>
<context>
    <name>PasswordField</name>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>パスワードを表示</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>外観(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Calendar</source>
        <translation>カレンダー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>一般(&amp;G)</translation>
    </message>
    <message>
        <source>Like the system</source>
        <translation>システムに合わせる</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>リセット(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>テーマ(&amp;T)</translation>
    </message>
    <message>
        <source>Accent c&amp;olor</source>
        <translation>アクセントカラー(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Font size</source>
        <translation>文字サイズ(&amp;F)</translation>
    </message>
    <message>
        <source>Workday begins</source>
        <translation>勤務日の開始時刻</translation>
    </message>
    <message>
        <source>Workday ends</source>
        <translation>勤務日の終了時刻</translation>
    </message>
    <message>
        <source>12 hours (1:30 PM)</source>
        <translation>12時間(午後1:30)</translation>
    </message>
    <message>
        <source>24 hours (13:30)</source>
        <translation>24時間(13:30)</translation>
    </message>
    <message>
        <source>&amp;First day of the week</source>
        <translation>週の開始曜日(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Workday</source>
        <translation>勤務時間帯(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Time format</source>
        <translation>時刻の形式(&amp;T)</translation>
    </message>
    <message>
        <source>Calendar for &amp;new events</source>
        <translation>新規イベントのカレンダー(&amp;N)</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>The one used last</source>
        <translation>最後に使用したカレンダー</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>A new language takes effect at the next launch.</source>
        <translation>言語の変更は次回の起動時に反映されます。</translation>
    </message>
    <message>
        <source>Start &amp;minimized</source>
        <translation>最小化して起動(&amp;M)</translation>
    </message>
    <message>
        <source>Show week n&amp;umbers</source>
        <translation>週番号を表示(&amp;U)</translation>
    </message>
</context>
<context>
    <name>QuickAdd</name>
    <message>
        <source>There is no such date or time.</source>
        <translation>その日付または時刻は存在しません。</translation>
    </message>
    <message>
        <source>There is no calendar that can be written to. Create one first.</source>
        <translation>書き込み可能なカレンダーがありません。まず作成してください。</translation>
    </message>
</context>
<context>
    <name>QuickAddDialog</name>
    <message>
        <source>Quick Add</source>
        <translation>クイック追加</translation>
    </message>
    <message>
        <source>lunch with Sam tomorrow at 12:30pm for 90 min</source>
        <translation>lunch with Sam tomorrow at 12:30pm for 90 min</translation>
    </message>
    <message>
        <source>What to add, in plain English</source>
        <translation>追加する内容(英語の文)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Creates</source>
        <translation>作成されるもの</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>When</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>Begin with &quot;task:&quot; or &quot;remind me to&quot; for a task or a reminder. #tags become categories of tasks.</source>
        <translation>英語のみに対応しています。タスクは「task:」、リマインダーは「remind me to」で始めてください。#タグはタスクのカテゴリになります。</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>No date</source>
        <translation>日付なし</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>リマインダー</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>タスク</translation>
    </message>
    <message>
        <source>This could not be added.</source>
        <translation>追加できませんでした。</translation>
    </message>
</context>
<context>
    <name>QuillonFeedback::FeedbackDialog</name>
    <message>
        <source>Send Feedback</source>
        <translation>フィードバックを送信</translation>
    </message>
    <message>
        <source>Add these &amp;lines about the program and the system</source>
        <translation>プログラムとシステムに関するこれらの情報を追加(&amp;L)</translation>
    </message>
    <message>
        <source>Your &amp;message</source>
        <translation>メッセージ(&amp;M)</translation>
    </message>
    <message>
        <source>What works well? What went wrong, and what had you expected?</source>
        <translation>良い点は何ですか? 何が問題で、どうなると期待していましたか?</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>送信(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Write E-Mail…</source>
        <translation>メールを作成(&amp;W)…</translation>
    </message>
    <message>
        <source>Copy &amp;Text</source>
        <translation>テキストをコピー(&amp;T)</translation>
    </message>
    <message>
        <source>Only what you see here is sent, to %1.</source>
        <translation>ここに表示されている内容だけが%1に送信されます。</translation>
    </message>
    <message>
        <source>Your mail program opens with the text, for you to read once more and send.</source>
        <translation>メールソフトがこのテキストを入力した状態で開きます。内容を確認して送信してください。</translation>
    </message>
    <message>
        <source>This build has no address for feedback. Copy the text, and send it to whoever gave you the program.</source>
        <translation>このビルドにはフィードバックの送信先がありません。テキストをコピーして、プログラムの提供元に送ってください。</translation>
    </message>
    <message>
        <source>Write a message first.</source>
        <translation>先にメッセージを入力してください。</translation>
    </message>
    <message>
        <source>Feedback on Quillon Calendar</source>
        <translation>Quillon Calendarへのフィードバック</translation>
    </message>
    <message>
        <source>No mail program could be opened. Copy the text instead.</source>
        <translation>メールソフトを開けませんでした。代わりにテキストをコピーしてください。</translation>
    </message>
    <message>
        <source>The text is on the clipboard.</source>
        <translation>テキストをクリップボードにコピーしました。</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>送信中…</translation>
    </message>
    <message>
        <source>Thank you. Your feedback was sent.</source>
        <translation>ありがとうございます。フィードバックを送信しました。</translation>
    </message>
    <message>
        <source>The feedback could not be sent: %1</source>
        <translation>フィードバックを送信できませんでした: %1</translation>
    </message>
</context>
<context>
    <name>QuillonUpdate</name>
    <message>
        <source>Check for Updates</source>
        <translation>アップデートを確認</translation>
    </message>
    <message>
        <source>You&apos;re up to date. %1 %2 is the newest version.</source>
        <translation>最新の状態です。%1 %2が最新バージョンです。</translation>
    </message>
    <message>
        <source>The check for updates failed.

%1</source>
        <translation>アップデートを確認できませんでした。

%1</translation>
    </message>
    <message>
        <source>This copy of %1 does not look for updates. They come from where you got the program, such as your system&apos;s package manager.</source>
        <translation>この%1はアップデートを確認しません。アップデートは、システムのパッケージマネージャーなど、プログラムの入手元から提供されます。</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>アップデートを確認中…</translation>
    </message>
</context>
<context>
    <name>QuillonUpdate::UpdateDialog</name>
    <message>
        <source>Update Available</source>
        <translation>アップデートがあります</translation>
    </message>
    <message>
        <source>%1 %2 is available. You have version %3.</source>
        <translation>%1 %2が利用可能です。現在のバージョンは%3です。</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>新機能</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>後で</translation>
    </message>
</context>
<context>
    <name>RecurrenceButton</name>
    <message>
        <source>Edit…</source>
        <translation>編集…</translation>
    </message>
    <message>
        <source>Do not repeat</source>
        <translation>繰り返しをやめる</translation>
    </message>
    <message>
        <source>Does not repeat</source>
        <translation>繰り返しなし</translation>
    </message>
</context>
<context>
    <name>RecurrenceEditDialog</name>
    <message>
        <source>Repeat</source>
        <translation>繰り返し</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>毎日</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>毎週</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>毎月</translation>
    </message>
    <message>
        <source>Yearly</source>
        <translation>毎年</translation>
    </message>
    <message>
        <source>&amp;Frequency</source>
        <translation>頻度(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Every</source>
        <translation>間隔(&amp;E)</translation>
    </message>
    <message>
        <source>M</source>
        <comment>Monday</comment>
        <translation>月</translation>
    </message>
    <message>
        <source>T</source>
        <comment>Tuesday</comment>
        <translation>火</translation>
    </message>
    <message>
        <source>W</source>
        <comment>Wednesday</comment>
        <translation>水</translation>
    </message>
    <message>
        <source>T</source>
        <comment>Thursday</comment>
        <translation>木</translation>
    </message>
    <message>
        <source>F</source>
        <comment>Friday</comment>
        <translation>金</translation>
    </message>
    <message>
        <source>S</source>
        <comment>Saturday</comment>
        <translation>土</translation>
    </message>
    <message>
        <source>S</source>
        <comment>Sunday</comment>
        <translation>日</translation>
    </message>
    <message>
        <source>On &amp;day of the month</source>
        <translation>日付を指定(&amp;D)</translation>
    </message>
    <message>
        <source>Day of the month</source>
        <translation>月の日付</translation>
    </message>
    <message>
        <source>On the &amp;nth weekday</source>
        <translation>曜日を指定(&amp;N)</translation>
    </message>
    <message>
        <source>Which one</source>
        <translation>第何週</translation>
    </message>
    <message>
        <source>first</source>
        <translation>第1</translation>
    </message>
    <message>
        <source>second</source>
        <translation>第2</translation>
    </message>
    <message>
        <source>third</source>
        <translation>第3</translation>
    </message>
    <message>
        <source>fourth</source>
        <translation>第4</translation>
    </message>
    <message>
        <source>last</source>
        <translation>最終</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>曜日</translation>
    </message>
    <message>
        <source>of every month</source>
        <translation>日(毎月)</translation>
    </message>
    <message>
        <source>Ends</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Ne&amp;ver</source>
        <translation>なし(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;After</source>
        <translation>回数を指定(&amp;A)</translation>
    </message>
    <message>
        <source>Number of occurrences</source>
        <translation>繰り返しの回数</translation>
    </message>
    <message>
        <source>&amp;On</source>
        <translation>終了日(&amp;O)</translation>
    </message>
    <message>
        <source>MMM d, yyyy</source>
        <extracomment>the last day of a series, as a date pattern</extracomment>
        <translation>yyyy年M月d日</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>最終日</translation>
    </message>
    <message>
        <source>occurrences</source>
        <translation>回</translation>
    </message>
    <message numerus="yes">
        <source>day(s)</source>
        <translation>
            <numerusform>日</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>week(s)</source>
        <translation>
            <numerusform>週間</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>month(s)</source>
        <translation>
            <numerusform>か月</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>year(s)</source>
        <translation>
            <numerusform>年</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RecurringEditScopeDialog</name>
    <message>
        <source>This event only</source>
        <translation>このイベントのみ</translation>
    </message>
    <message>
        <source>Only this occurrence is changed; the rest of the series stays as it was.</source>
        <translation>この回だけが変更され、他の回はそのまま残ります。</translation>
    </message>
    <message>
        <source>This and following events</source>
        <translation>これ以降のイベント</translation>
    </message>
    <message>
        <source>This occurrence and every later one inherit the change. Past occurrences keep their original times.</source>
        <translation>この回とそれ以降のすべての回に変更が適用されます。過去の回は元の時刻のままです。</translation>
    </message>
    <message>
        <source>All events in the series</source>
        <translation>一連のすべてのイベント</translation>
    </message>
    <message>
        <source>The master event shifts; every occurrence — past and future — moves with it.</source>
        <translation>元のイベントが移動し、過去と今後のすべての回も一緒に移動します。</translation>
    </message>
    <message>
        <source>Edit Recurring Event</source>
        <translation>繰り返しイベントを編集</translation>
    </message>
    <message>
        <source>Edit &quot;%1&quot;</source>
        <translation>「%1」を編集</translation>
    </message>
    <message>
        <source>This event repeats. Apply your changes to:</source>
        <translation>このイベントは繰り返します。変更の適用先:</translation>
    </message>
</context>
<context>
    <name>Reminder</name>
    <message>
        <source>At time of event</source>
        <translation>イベントの開始時刻</translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s) before</source>
        <translation>
            <numerusform>%n分前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s) before</source>
        <translation>
            <numerusform>%n時間前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) before</source>
        <translation>
            <numerusform>%n日前</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 minutes before</source>
        <translation>%1分前</translation>
    </message>
</context>
<context>
    <name>RemindersEditor</name>
    <message>
        <source>At time of event</source>
        <translation>イベントの開始時刻</translation>
    </message>
    <message>
        <source>5 minutes before</source>
        <translation>5分前</translation>
    </message>
    <message>
        <source>10 minutes before</source>
        <translation>10分前</translation>
    </message>
    <message>
        <source>15 minutes before</source>
        <translation>15分前</translation>
    </message>
    <message>
        <source>30 minutes before</source>
        <translation>30分前</translation>
    </message>
    <message>
        <source>1 hour before</source>
        <translation>1時間前</translation>
    </message>
    <message>
        <source>2 hours before</source>
        <translation>2時間前</translation>
    </message>
    <message>
        <source>1 day before</source>
        <translation>1日前</translation>
    </message>
    <message>
        <source>2 days before</source>
        <translation>2日前</translation>
    </message>
    <message>
        <source>1 week before</source>
        <translation>1週間前</translation>
    </message>
    <message>
        <source>%1 minutes before</source>
        <translation>%1分前</translation>
    </message>
    <message>
        <source>%1 hours %2 minutes before</source>
        <translation>%1時間%2分前</translation>
    </message>
    <message>
        <source>%1 hours before</source>
        <translation>%1時間前</translation>
    </message>
    <message>
        <source>%1 days before</source>
        <translation>%1日前</translation>
    </message>
    <message>
        <source>+ Add reminder</source>
        <translation>+ 通知を追加</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Remove reminder</source>
        <translation>通知を削除</translation>
    </message>
</context>
<context>
    <name>RruleFormat</name>
    <message>
        <source>Mon</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>火</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>水</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>木</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>金</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>土</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>日</translation>
    </message>
    <message>
        <source>first</source>
        <translation>第1</translation>
    </message>
    <message>
        <source>second</source>
        <translation>第2</translation>
    </message>
    <message>
        <source>third</source>
        <translation>第3</translation>
    </message>
    <message>
        <source>fourth</source>
        <translation>第4</translation>
    </message>
    <message>
        <source>fifth</source>
        <translation>第5</translation>
    </message>
    <message>
        <source>last</source>
        <translation>最終</translation>
    </message>
    <message>
        <source>second-to-last</source>
        <translation>最後から2番目の</translation>
    </message>
    <message>
        <source>%1th-from-last</source>
        <translation>最後から%1番目の</translation>
    </message>
    <message>
        <source>%1nd</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>%1rd</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>%1th</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Repeats daily</source>
        <translation>毎日</translation>
    </message>
    <message>
        <source>Every %1 days</source>
        <translation>%1日ごと</translation>
    </message>
    <message>
        <source>Repeats weekly</source>
        <translation>毎週</translation>
    </message>
    <message>
        <source>Every %1 weeks</source>
        <translation>%1週間ごと</translation>
    </message>
    <message>
        <source>Repeats monthly</source>
        <translation>毎月</translation>
    </message>
    <message>
        <source>Every %1 months</source>
        <translation>%1か月ごと</translation>
    </message>
    <message>
        <source>Repeats yearly</source>
        <translation>毎年</translation>
    </message>
    <message>
        <source>Every %1 years</source>
        <translation>%1年ごと</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>繰り返しあり</translation>
    </message>
    <message>
        <source>on the %1 %2</source>
        <extracomment>as in &quot;on the second Tue&quot; of a month</extracomment>
        <translation>%1%2曜日</translation>
    </message>
    <message>
        <source>on the %1</source>
        <extracomment>as in &quot;on the 22nd&quot; of a month</extracomment>
        <translation>%1日</translation>
    </message>
    <message numerus="yes">
        <source>%n time(s)</source>
        <translation>
            <numerusform>%n回</numerusform>
        </translation>
    </message>
    <message>
        <source>until %1</source>
        <extracomment>the last day of a series, as a date pattern</extracomment>
        <translation>%1まで</translation>
    </message>
    <message>
        <source>MMM d, yyyy</source>
        <translation>yyyy年M月d日</translation>
    </message>
    <message>
        <source>At time of event</source>
        <translation>イベントの開始時刻</translation>
    </message>
    <message>
        <source>%1 min before</source>
        <translation>%1分前</translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s) before</source>
        <translation>
            <numerusform>%n時間前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) before</source>
        <translation>
            <numerusform>%n日前</numerusform>
        </translation>
    </message>
    <message>
        <source>%1st</source>
        <comment>weekday of a month</comment>
        <translation>%1</translation>
    </message>
    <message>
        <source>%1st</source>
        <comment>day of a month</comment>
        <translation>%1</translation>
    </message>
</context>
<context>
    <name>ServerLookup</name>
    <message>
        <source>Enter the password of this account first.</source>
        <translation>まずこのアカウントのパスワードを入力してください。</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>接続中…</translation>
    </message>
    <message>
        <source>Connection cancelled, certificate not trusted.</source>
        <translation>接続をキャンセルしました。証明書は信頼されていません。</translation>
    </message>
    <message>
        <source>Certificate trusted. Retrying…</source>
        <translation>証明書を信頼しました。再試行中…</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Calendars</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>New calendar</source>
        <translation>新規カレンダー</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>すべて表示</translation>
    </message>
    <message>
        <source>Leave the group: the check boxes decide again what is shown</source>
        <translation>グループを解除: 表示内容は再びチェックボックスで決まります</translation>
    </message>
    <message>
        <source>Showing group “%1”</source>
        <translation>グループ「%1」を表示中</translation>
    </message>
</context>
<context>
    <name>SilenceGuard</name>
    <message>
        <source>The server has stopped answering.</source>
        <translation>サーバーが応答しなくなりました。</translation>
    </message>
</context>
<context>
    <name>SyncScheduler</name>
    <message>
        <source>All caught up, nothing waiting to sync.</source>
        <translation>すべて最新です。同期待ちの項目はありません。</translation>
    </message>
    <message>
        <source>Password missing</source>
        <translation>パスワードがありません</translation>
    </message>
    <message>
        <source>Synced %1 events</source>
        <translation>%1件のイベントを同期しました</translation>
    </message>
    <message>
        <source>Syncing %1 account(s)…</source>
        <translation>%1件のアカウントを同期中…</translation>
    </message>
    <message>
        <source>No sync accounts configured. Add one in Calendar Accounts.</source>
        <translation>同期するアカウントが設定されていません。「カレンダーアカウント」で追加してください。</translation>
    </message>
    <message numerus="yes">
        <source>Discovered %n new calendar(s).</source>
        <translation>
            <numerusform>%n件の新しいカレンダーが見つかりました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Cleared %n calendar sync token(s), running full sync…</source>
        <translation>
            <numerusform>%n件のカレンダーの同期トークンを消去し、完全同期を実行中…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TaskActions</name>
    <message>
        <source>Delete task?</source>
        <translation>タスクを削除しますか?</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;? Its subtasks stay.</source>
        <translation>「%1」を削除しますか? サブタスクは残ります。</translation>
    </message>
    <message>
        <source>Can&apos;t move task</source>
        <translation>タスクを移動できません</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>編集…</translation>
    </message>
    <message>
        <source>Mark as Not Completed</source>
        <translation>未完了にする</translation>
    </message>
    <message>
        <source>Mark as Completed</source>
        <translation>完了にする</translation>
    </message>
    <message>
        <source>Add Subtask…</source>
        <translation>サブタスクを追加…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>TaskDetailsPopover</name>
    <message>
        <source>Categories</source>
        <translation>カテゴリ</translation>
    </message>
    <message>
        <source>Part of</source>
        <translation>親タスク</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>メモ</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>期限</translation>
    </message>
    <message>
        <source>Starts</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>繰り返し</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>優先度</translation>
    </message>
    <message>
        <source>%1, %2%</source>
        <comment>status, progress</comment>
        <translation>%1、%2%</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Not Completed</source>
        <translation>未完了</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>編集…</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>開く…</translation>
    </message>
</context>
<context>
    <name>TaskDropHandler</name>
    <message>
        <source>Task</source>
        <translation>タスク</translation>
    </message>
    <message>
        <source>Set start date for &quot;%1&quot; to %2</source>
        <translation>「%1」の開始日を%2に設定しました</translation>
    </message>
    <message>
        <source>Set due date for &quot;%1&quot; to %2</source>
        <translation>「%1」の期限を%2に設定しました</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>date, time</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Create event from task</source>
        <translation>タスクからイベントを作成</translation>
    </message>
    <message>
        <source>Set start date</source>
        <translation>開始日を設定</translation>
    </message>
    <message>
        <source>Set due date</source>
        <translation>期限を設定</translation>
    </message>
</context>
<context>
    <name>TaskEdits</name>
    <message>
        <source>Couldn&apos;t update task — see log.</source>
        <translation>タスクを更新できませんでした。ログを確認してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot hold tasks.</source>
        <translation>「%1」にはタスクを保存できません。</translation>
    </message>
    <message>
        <source>The task no longer exists.</source>
        <translation>このタスクはすでに存在しません。</translation>
    </message>
    <message>
        <source>The other calendar already holds &quot;%1&quot;.</source>
        <translation>移動先のカレンダーにはすでに「%1」があります。</translation>
    </message>
    <message>
        <source>Subtasks must belong to the same calendar as their parent. Move &quot;%1&quot; to the same calendar first.</source>
        <translation>サブタスクは親タスクと同じカレンダーに含まれている必要があります。まず「%1」を同じカレンダーに移動してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be moved below one of its own subtasks.</source>
        <translation>「%1」を自身のサブタスクの下に移動することはできません。</translation>
    </message>
</context>
<context>
    <name>TaskFormDialog</name>
    <message>
        <source>New Task</source>
        <translation>新規タスク</translation>
    </message>
    <message>
        <source>Create task</source>
        <translation>タスクを作成</translation>
    </message>
    <message>
        <source>Edit Reminder</source>
        <translation>リマインダーを編集</translation>
    </message>
    <message>
        <source>Edit Task</source>
        <translation>タスクを編集</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>変更を保存</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>タイトル(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Calendar</source>
        <translation>カレンダー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Part of</source>
        <translation>親タスク(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Due</source>
        <translation>期限(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Starts</source>
        <translation>開始(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Repeats</source>
        <translation>繰り返し(&amp;R)</translation>
    </message>
    <message>
        <source>Ne&amp;xt date</source>
        <translation>次回の日付(&amp;X)</translation>
    </message>
    <message>
        <source>Re&amp;minders</source>
        <translation>通知(&amp;M)</translation>
    </message>
    <message>
        <source>Pr&amp;iority</source>
        <translation>優先度(&amp;I)</translation>
    </message>
    <message>
        <source>Stat&amp;us</source>
        <translation>状態(&amp;U)</translation>
    </message>
    <message>
        <source>Cate&amp;gories</source>
        <translation>カテゴリ(&amp;G)</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>色</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>メモ(&amp;N)</translation>
    </message>
    <message>
        <source>What is to be done</source>
        <translation>やること</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>期限日</translation>
    </message>
    <message>
        <source>Due time</source>
        <translation>期限時刻</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>開始日</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>開始時刻</translation>
    </message>
    <message>
        <source>From the due date</source>
        <translation>期限日から</translation>
    </message>
    <message>
        <source>From the day of completion</source>
        <translation>完了した日から</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Home, errands</source>
        <translation>家、用事</translation>
    </message>
    <message>
        <source>Task color</source>
        <translation>タスクの色</translation>
    </message>
    <message>
        <source>Notes, links…</source>
        <translation>メモ、リンク…</translation>
    </message>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Progress in percent</source>
        <translation>進捗率(パーセント)</translation>
    </message>
    <message>
        <source>No other task</source>
        <translation>他のタスクなし</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>priority, its number</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>This task belongs to a read-only calendar.</source>
        <translation>このタスクは読み取り専用のカレンダーに含まれています。</translation>
    </message>
    <message>
        <source>Please enter a title for the task.</source>
        <translation>タスクのタイトルを入力してください。</translation>
    </message>
    <message>
        <source>No calendar can hold tasks. Create a local calendar first.</source>
        <translation>タスクを保存できるカレンダーがありません。まずローカルカレンダーを作成してください。</translation>
    </message>
    <message>
        <source>The task is due before it starts.</source>
        <translation>タスクの期限が開始より前になっています。</translation>
    </message>
    <message>
        <source>Could not save the task.</source>
        <translation>タスクを保存できませんでした。</translation>
    </message>
</context>
<context>
    <name>TaskListing</name>
    <message>
        <source>%1 / %2</source>
        <extracomment>account, calendar</extracomment>
        <translation>%1 / %2</translation>
    </message>
</context>
<context>
    <name>TaskText</name>
    <message>
        <source>(Untitled)</source>
        <translation>(無題)</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>進行中</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>キャンセル済み</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>未着手</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>ddd, MMM d</source>
        <extracomment>a date of this year, and one of another, as date patterns</extracomment>
        <translation>M月d日(ddd)</translation>
    </message>
    <message>
        <source>ddd, MMM d, yyyy</source>
        <translation>yyyy年M月d日(ddd)</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is a date, %2 a time</extracomment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>TasksPane</name>
    <message>
        <source>Tasks</source>
        <translation>タスク</translation>
    </message>
    <message>
        <source>Filter tasks</source>
        <translation>タスクを絞り込む</translation>
    </message>
    <message>
        <source>New task</source>
        <translation>新規タスク</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>This week</source>
        <translation>今週</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>期限切れ</translation>
    </message>
    <message>
        <source>Group by calendar</source>
        <translation>カレンダーごとにまとめる</translation>
    </message>
    <message>
        <source>Hide completed</source>
        <translation>完了したタスクを隠す</translation>
    </message>
    <message>
        <source>Show notes</source>
        <translation>メモを表示</translation>
    </message>
    <message>
        <source>Show categories</source>
        <translation>カテゴリを表示</translation>
    </message>
    <message>
        <source>Switch the filter to see other tasks.</source>
        <translation>他のタスクを見るには、フィルターを切り替えてください。</translation>
    </message>
    <message>
        <source>No tasks yet</source>
        <translation>タスクはまだありません</translation>
    </message>
    <message>
        <source>Create a task to track what needs doing.</source>
        <translation>やるべきことを管理するには、タスクを作成してください。</translation>
    </message>
    <message>
        <source>Nothing due today</source>
        <translation>今日が期限のタスクはありません</translation>
    </message>
    <message>
        <source>Nothing due this week</source>
        <translation>今週が期限のタスクはありません</translation>
    </message>
    <message>
        <source>Nothing overdue</source>
        <translation>期限切れのタスクはありません</translation>
    </message>
    <message>
        <source>You&apos;re caught up. Nice.</source>
        <translation>遅れはありません。いい調子です。</translation>
    </message>
    <message>
        <source>+ New Task</source>
        <translation>+ 新規タスク</translation>
    </message>
    <message>
        <source>Filter tasks: %1</source>
        <extracomment>%1 is the name of a filter</extracomment>
        <translation>タスクを絞り込む: %1</translation>
    </message>
</context>
<context>
    <name>TasksPaneRow</name>
    <message>
        <source>due %1</source>
        <comment>date</comment>
        <translation>期限: %1</translation>
    </message>
    <message>
        <source>priority %1</source>
        <translation>優先度: %1</translation>
    </message>
    <message>
        <source>subtask</source>
        <translation>サブタスク</translation>
    </message>
    <message>
        <source>IN PROGRESS</source>
        <translation>進行中</translation>
    </message>
    <message>
        <source>CANCELLED</source>
        <translation>キャンセル済み</translation>
    </message>
    <message>
        <source>↳ subtask</source>
        <translation>↳ サブタスク</translation>
    </message>
    <message>
        <source>Waiting to sync</source>
        <translation>同期待ち</translation>
    </message>
</context>
<context>
    <name>TemplateFormDialog</name>
    <message>
        <source>New Template</source>
        <translation>新規テンプレート</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>作成</translation>
    </message>
    <message>
        <source>Edit Template</source>
        <translation>テンプレートを編集</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Template name</source>
        <translation>テンプレート名</translation>
    </message>
    <message>
        <source>Title of the event</source>
        <translation>イベントのタイトル</translation>
    </message>
    <message>
        <source>Address, room, or video link</source>
        <translation>住所、会議室、ビデオ通話のリンク</translation>
    </message>
    <message>
        <source>Any calendar</source>
        <translation>任意のカレンダー</translation>
    </message>
    <message>
        <source>Event color</source>
        <translation>イベントの色</translation>
    </message>
    <message>
        <source>Te&amp;mplate</source>
        <translation>テンプレート(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>タイトル(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Calendar</source>
        <translation>カレンダー(&amp;C)</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>色</translation>
    </message>
    <message>
        <source>&amp;Length</source>
        <translation>長さ(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Repeats</source>
        <translation>繰り返し(&amp;R)</translation>
    </message>
    <message>
        <source>L&amp;ocation</source>
        <translation>場所(&amp;O)</translation>
    </message>
    <message>
        <source>Rem&amp;inders</source>
        <translation>通知(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>メモ(&amp;N)</translation>
    </message>
    <message>
        <source> hr</source>
        <translation>時間</translation>
    </message>
    <message>
        <source> min</source>
        <translation>分</translation>
    </message>
    <message>
        <source> day(s)</source>
        <translation>日</translation>
    </message>
    <message>
        <source>All &amp;day</source>
        <translation>終日(&amp;D)</translation>
    </message>
    <message>
        <source>Enter a name for the template.</source>
        <translation>テンプレートの名前を入力してください。</translation>
    </message>
    <message>
        <source>This template was deleted in the meantime.</source>
        <translation>このテンプレートはすでに削除されています。</translation>
    </message>
    <message>
        <source>The template could not be saved.</source>
        <translation>テンプレートを保存できませんでした。</translation>
    </message>
</context>
<context>
    <name>TimeFormat</name>
    <message>
        <source>HH:mm</source>
        <extracomment>A time of day with 24 hours, see the Qt documentation of QTime::toString()</extracomment>
        <translation>HH:mm</translation>
    </message>
    <message>
        <source>h:mm AP</source>
        <translation>AP h:mm</translation>
    </message>
</context>
<context>
    <name>TimelineHeader</name>
    <message>
        <source>ddd
MMM d</source>
        <extracomment>weekday and date above a column of the week, as a date pattern in two lines</extracomment>
        <translation>ddd
M月d日</translation>
    </message>
    <message>
        <source>dddd, MMMM d, yyyy</source>
        <extracomment>a whole date, as a date pattern</extracomment>
        <translation>yyyy年M月d日 dddd</translation>
    </message>
</context>
<context>
    <name>TimelineWidget</name>
    <message>
        <source>Events</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1分</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <comment>from, to</comment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>weekday, time</comment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>ViewArea</name>
    <message>
        <source>Previous</source>
        <translation>前へ</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
</context>
<context>
    <name>ViewFormDialog</name>
    <message>
        <source>New Calendar Group</source>
        <translation>新規カレンダーグループ</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>作成</translation>
    </message>
    <message>
        <source>Edit Calendar Group</source>
        <translation>カレンダーグループを編集</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Group name</source>
        <translation>グループ名</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>名前(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Color</source>
        <translation>色(&amp;C)</translation>
    </message>
    <message>
        <source>C&amp;alendars</source>
        <translation>カレンダー(&amp;A)</translation>
    </message>
    <message>
        <source>This group shows all visible calendars, unless you check some here.</source>
        <translation>ここでカレンダーを選択しない限り、このグループは表示中のすべてのカレンダーを表示します。</translation>
    </message>
    <message>
        <source>With none checked, the group shows all visible calendars.</source>
        <translation>何も選択しない場合、グループは表示中のすべてのカレンダーを表示します。</translation>
    </message>
    <message>
        <source>Enter a name for the group.</source>
        <translation>グループの名前を入力してください。</translation>
    </message>
    <message>
        <source>This group was deleted in the meantime.</source>
        <translation>このグループはすでに削除されています。</translation>
    </message>
    <message>
        <source>The group could not be saved.</source>
        <translation>グループを保存できませんでした。</translation>
    </message>
</context>
<context>
    <name>ViewModes</name>
    <message>
        <source>MMM d</source>
        <comment>start of days within one month</comment>
        <translation>yyyy年M月d日</translation>
    </message>
    <message>
        <source>MMM d</source>
        <comment>start of days</comment>
        <translation>yyyy年M月d日</translation>
    </message>
    <message>
        <source>d, yyyy</source>
        <comment>end of days within one month</comment>
        <translation>d日</translation>
    </message>
    <message>
        <source>MMM d, yyyy</source>
        <comment>end of days</comment>
        <translation>M月d日</translation>
    </message>
    <message>
        <source>dddd, MMMM d, yyyy</source>
        <comment>one day</comment>
        <translation>yyyy年M月d日 dddd</translation>
    </message>
    <message>
        <source>Today · %1</source>
        <translation>今日 · %1</translation>
    </message>
    <message>
        <source>yyyy</source>
        <comment>a year</comment>
        <translation>yyyy年</translation>
    </message>
    <message>
        <source>MMMM yyyy</source>
        <comment>a month</comment>
        <translation>yyyy年M月</translation>
    </message>
</context>
<context>
    <name>WelcomeDialog</name>
    <message>
        <source>Welcome</source>
        <translation>ようこそ</translation>
    </message>
    <message>
        <source>Welcome to Quillon Calendar</source>
        <translation>Quillon Calendarへようこそ</translation>
    </message>
    <message>
        <source>Your days at a glance, on your own computer.</source>
        <translation>毎日の予定を一目で、あなたのコンピューターの中に。</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>スキップ(&amp;S)</translation>
    </message>
    <message>
        <source>Everything is kept on this computer, so it works offline.</source>
        <translation>すべてこのコンピューターに保存されるので、オフラインでも使えます。</translation>
    </message>
    <message>
        <source>Filters and groups show what matters, and delete nothing.</source>
        <translation>フィルターとグループで大切なものだけを表示できます。何も削除されません。</translation>
    </message>
    <message>
        <source>Events can be typed in plain English: “lunch Thursday 1pm”.</source>
        <translation>イベントは英語の文で入力できます: 「lunch Thursday 1pm」</translation>
    </message>
    <message>
        <source>As you like it</source>
        <translation>お好みの設定</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>テーマ(&amp;T)</translation>
    </message>
    <message>
        <source>Time &amp;format</source>
        <translation>時刻の形式(&amp;F)</translation>
    </message>
    <message>
        <source>Your calendars</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>&amp;Import a calendar file…</source>
        <translation>カレンダーファイルを読み込む(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Add a calendar…</source>
        <translation>カレンダーを追加(&amp;A)…</translation>
    </message>
    <message>
        <source>A first calendar is there already. You can do all of this later.</source>
        <translation>最初のカレンダーはすでに用意されています。これらはすべて後でも設定できます。</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>完了(&amp;N)</translation>
    </message>
    <message>
        <source>First day of the &amp;week</source>
        <translation>週の開始曜日(&amp;W)</translation>
    </message>
</context>
<context>
    <name>WhatsNewDialog</name>
    <message>
        <source>What&apos;s New</source>
        <translation>新機能</translation>
    </message>
    <message>
        <source>What&apos;s new in %1</source>
        <translation>%1の新機能</translation>
    </message>
    <message>
        <source>This build carries no release notes.</source>
        <translation>このビルドにはリリースノートが含まれていません。</translation>
    </message>
</context>
</TS>
