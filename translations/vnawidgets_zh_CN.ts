<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Controls::DraggableDialogTitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>Controls::KeypadEditor</name>
    <message>
        <source>Value</source>
        <translation>数值</translation>
    </message>
</context>
<context>
    <name>Controls::TouchNumKeyboard</name>
    <message>
        <source>Numeric keypad</source>
        <translation>数字键盘</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>上页</translation>
    </message>
    <message>
        <source>PgDn</source>
        <translation>下页</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>小数点</translation>
    </message>
    <message>
        <source>Plus minus</source>
        <translation>正负号</translation>
    </message>
    <message>
        <source>Esc</source>
        <comment>key that cancels</comment>
        <translation>取消</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>退格</translation>
    </message>
    <message>
        <source>Step down</source>
        <translation>步进减</translation>
    </message>
    <message>
        <source>Step up</source>
        <translation>步进增</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>光标左移</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>光标右移</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>key that enters</comment>
        <translation>确定</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>确认</translation>
    </message>
</context>
<context>
    <name>DisplayPanel</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>Diagram layout</source>
        <translation>图形布局</translation>
    </message>
    <message>
        <source>One diagram</source>
        <translation>单图</translation>
    </message>
    <message>
        <source>Two side by side</source>
        <translation>左右两图</translation>
    </message>
    <message>
        <source>Two stacked</source>
        <translation>上下两图</translation>
    </message>
    <message>
        <source>Four diagrams</source>
        <translation>四图</translation>
    </message>
</context>
<context>
    <name>LockWidget</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>Screen lock</source>
        <translation>屏幕锁</translation>
    </message>
</context>
<context>
    <name>MarkerStatusItem</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>M1R:</source>
        <translation>M1R:</translation>
    </message>
    <message>
        <source>100.123456789GHz</source>
        <translation>100.123456789GHz</translation>
    </message>
    <message>
        <source>  -100.33dBm</source>
        <translation>  -100.33dBm</translation>
    </message>
    <message>
        <source>Ls=100.000nH</source>
        <translation>Ls=100.000nH</translation>
    </message>
</context>
<context>
    <name>RectangularBottomWidget</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>Start(GraphLabel)</source>
        <translation>起始</translation>
    </message>
    <message>
        <source>: </source>
        <translation>：</translation>
    </message>
    <message>
        <source>1MHz</source>
        <translation>1MHz</translation>
    </message>
    <message>
        <source>Speed: --</source>
        <translation>速度：--</translation>
    </message>
    <message>
        <source>Stop(GraphLabel)</source>
        <translation>终止</translation>
    </message>
    <message>
        <source>2GHz</source>
        <translation>2GHz</translation>
    </message>
</context>
<context>
    <name>SmithReader</name>
    <message>
        <source>No traces.</source>
        <translation>没有轨迹。</translation>
    </message>
    <message>
        <source>Marker %1 on %2</source>
        <translation>%2 上的标记 %1</translation>
    </message>
    <message>
        <source>%1 keeps within its limit.</source>
        <translation>%1 符合限制。</translation>
    </message>
    <message>
        <source>%1 fails its limit from %2 on.</source>
        <translation>%1 从 %2 起超出限制。</translation>
    </message>
    <message>
        <source>Smith chart</source>
        <translation>史密斯圆图</translation>
    </message>
    <message>
        <source>Trace %1</source>
        <translation>轨迹 %1</translation>
    </message>
</context>
<context>
    <name>StepEditWidget</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>步进</translation>
    </message>
</context>
<context>
    <name>SwitchButton</name>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
</context>
<context>
    <name>TraceWords</name>
    <message>
        <source>infinite</source>
        <translation>无穷大</translation>
    </message>
    <message>
        <source>minus infinite</source>
        <translation>负无穷大</translation>
    </message>
    <message>
        <source>Stimulus</source>
        <translation>激励</translation>
    </message>
    <message>
        <source>Resistance</source>
        <translation>电阻</translation>
    </message>
    <message>
        <source>Reactance</source>
        <translation>电抗</translation>
    </message>
    <message>
        <source>Magnitude</source>
        <translation>幅度</translation>
    </message>
    <message>
        <source>Phase (°)</source>
        <translation>相位 (°)</translation>
    </message>
    <message>
        <source>VSWR</source>
        <translation>驻波比</translation>
    </message>
    <message>
        <source>resonance</source>
        <translation>谐振</translation>
    </message>
    <message>
        <source>parallel resonance</source>
        <translation>并联谐振</translation>
    </message>
    <message>
        <source>VSWR of %1</source>
        <translation>驻波比为 %1</translation>
    </message>
    <message>
        <source>edge of the limit</source>
        <translation>限制边缘</translation>
    </message>
    <message>
        <source>marker</source>
        <translation>标记</translation>
    </message>
    <message>
        <source>VSWR %1</source>
        <translation>驻波比 %1</translation>
    </message>
    <message>
        <source>%1 dB more reflection</source>
        <translation>反射增加 %1 dB</translation>
    </message>
    <message>
        <source>%1 dB less reflection</source>
        <translation>反射减少 %1 dB</translation>
    </message>
    <message>
        <source>%1: no points.</source>
        <translation>%1：没有点。</translation>
    </message>
    <message>
        <source>best match at %1 with a VSWR of %2</source>
        <translation>最佳匹配在 %1，驻波比为 %2</translation>
    </message>
    <message>
        <source>VSWR below %1 from %2 to %3, %4 wide</source>
        <translation>驻波比低于 %1 的频段为 %2 至 %3，宽 %4</translation>
    </message>
    <message>
        <source>VSWR nowhere below %1</source>
        <translation>驻波比从不低于 %1</translation>
    </message>
    <message numerus="yes">
        <source>%n loop(s)</source>
        <translation>
            <numerusform>%n 个环</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 from %2 to %3: %4.</source>
        <translation>%1 从 %2 到 %3：%4。</translation>
    </message>
    <message>
        <source>minimum</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>maximum</source>
        <translation>最大值</translation>
    </message>
</context>
</TS>
