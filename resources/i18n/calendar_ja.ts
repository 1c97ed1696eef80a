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
            <extracomment>the short form of "+%1 more"</extracomment>
            <translation>+%1</translation>
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
            <source>Delete "%1" and all its events? This cannot be undone.</source>
            <translation>「%1」とそのすべてのイベントを削除しますか? この操作は取り消せません。</translation>
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
        <name>EventContextMenu</name>
        <message>
            <source>Edit filter "%1"…</source>
            <translation>フィルター「%1」を編集…</translation>
        </message>
        <message>
            <source>Create Filter from Event…</source>
            <translation>イベントからフィルターを作成…</translation>
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
            <source>Delete "%1"? The events it hides or dims show again.</source>
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
            <source>title is "%1"</source>
            <translation>タイトルが「%1」</translation>
        </message>
        <message>
            <source>title contains "%1"</source>
            <translation>タイトルに「%1」を含む</translation>
        </message>
        <message>
            <source>description contains "%1"</source>
            <translation>説明に「%1」を含む</translation>
        </message>
        <message>
            <source>location contains "%1"</source>
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
            <source>the event "%1"</source>
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
            <source>A range over midnight matches nothing. Make two filters: one for the evening, with only "at or after", and one for the morning.</source>
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
            <source>Add a writable calendar first; then re-import "%1".</source>
            <translation>まず書き込み可能なカレンダーを追加してから、"%1"をもう一度読み込んでください。</translation>
        </message>
        <message>
            <source>Couldn't open "%1" for reading.</source>
            <translation>「%1」を開いて読み取ることができませんでした。</translation>
        </message>
        <message>
            <source>No events found in "%1".</source>
            <translation>「%1」にイベントが見つかりませんでした。</translation>
        </message>
        <message>
            <source>Couldn't open file</source>
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
            <source>"%1" is too large to import.</source>
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
            <source>Import 1 event from "%1" into:</source>
            <translation>「%1」のイベント1件の読み込み先:</translation>
        </message>
        <message>
            <source>Import %1 events from "%2" into:</source>
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
            <source>&amp;Manage Filters…</source>
            <translation>フィルターを管理(&amp;M)…</translation>
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
            <source>Delete "%1"? You can recreate it later.</source>
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
            <source>What's new</source>
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
</TS>
