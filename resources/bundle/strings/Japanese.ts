<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Print Setting</source>
        <translation>印刷設定</translation>
    </message>
    <message>
        <source>Color Setting</source>
        <translation>カラー設定</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>機種名</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>する</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>しない</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Unsupported Paper Title</source>
        <translation>この用紙サイズは使用できません</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG1</source>
        <translation>設定された用紙サイズは、このプリンターでは給紙できません。</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG2</source>
        <translation>1. 別の用紙サイズを選択してください。</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG3</source>
        <translation>2. そのサイズの用紙をセットしてください。</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG4</source>
        <translation>3. もう一度印刷してください。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>advancedItem</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>ImproveOutput</source>
        <translation>印刷結果の改善</translation>
    </message>
    <message>
        <source>QXQuietMode</source>
        <translation>静音モード</translation>
    </message>
    <message>
        <source>OtherOption</source>
        <translation>その他の設定</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_RECOMMEND_INSTRUCTIONS</source>
        <translation>この用紙にきれいに印刷するには、次のようにしてください。</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_REQUEST_INSTRUCTIONS</source>
        <translation>ラベル紙に印刷するときは、必ず次のようにしてください。</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_SELECT_MP</source>
        <translation>「給紙方法」を設定できるときは、「多目的トレイ」または「手差し」を選びます。</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_USEMP</source>
        <translation>プリンター前面の多目的トレイまたは手差し口に用紙をセットします。</translation>
    </message>
    <message>
        <source>STR_MES_TRAY_USEMP_ONESHEET</source>
        <translation>プリンター前面の多目的トレイまたは手差し口に、用紙を 1 枚ずつセットします。</translation>
    </message>
    <message>
        <source>DLG_TITLE_BACKCOVER</source>
        <translation>プリンターの背面カバーを開けてください</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_RECOMMEND_INSTRUCTIONS</source>
        <translation>この用紙に合わせて、プリンターを準備してください。</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_OPEN</source>
        <translation>背面カバーを開けます。</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_PULLDOWN_GRAY</source>
        <translation>カバーの内側の左右にある、灰色のレバーを 2 つとも下げます。</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_STARTPRINT</source>
        <translation>そのあと、印刷を開始します。</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_NOTE_USEMP</source>
        <translation>ラベル紙は、プリンター前面の多目的トレイまたは手差し口にセットしてください。</translation>
    </message>
    <message>
        <source>STR_MES_BACKCOVER_NOTE_DUPLEX</source>
        <translation>この用紙には片面ずつ印刷します。両面印刷はオフになりました。</translation>
    </message>
    <message>
        <source>DLG_BACKCOVER_INSTRUCTION_NOTE</source>
        <translation>封筒は片面だけに印刷できます。両面印刷はオフになりました。</translation>
    </message>
</context>
</TS>
