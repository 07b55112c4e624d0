<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Panel::CartesianView</name>
    <message>
        <source>Cartesian diagram</source>
        <translation>直角坐标图</translation>
    </message>
    <message>
        <source>ref %1</source>
        <translation>参考 %1</translation>
    </message>
</context>
<context>
    <name>Panel::ChartGestures</name>
    <message>
        <source>Two taps on the title, or Esc, show all diagrams again.</source>
        <translation>双击标题或按 Esc 可重新显示所有图表。</translation>
    </message>
</context>
<context>
    <name>Panel::CircleEditor</name>
    <message>
        <source>There is one limit circle for all Smith charts.</source>
        <translation>所有史密斯圆图共用一个限制圆。</translation>
    </message>
    <message>
        <source>VSWR %1</source>
        <translation>VSWR %1</translation>
    </message>
    <message>
        <source>Γ %1 ∠ %2°, radius %3</source>
        <translation>Γ %1 ∠ %2°，半径 %3</translation>
    </message>
</context>
<context>
    <name>Panel::DiagramReader</name>
    <message>
        <source>%1 from %2 to %3: highest %4 at %5, lowest %6 at %7.</source>
        <translation>%1 从 %2 到 %3：最高 %4（%5），最低 %6（%7）。</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>频率</translation>
    </message>
    <message>
        <source>Magnitude (dB)</source>
        <translation>幅度 (dB)</translation>
    </message>
    <message>
        <source>Marker %1 on %2: %3</source>
        <translation>%2 上的标记 %1：%3</translation>
    </message>
</context>
<context>
    <name>Panel::DiagramView</name>
    <message>
        <source>All traces are hidden</source>
        <translation>所有轨迹均已隐藏</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n 个文件</numerusform>
        </translation>
    </message>
    <message>
        <source>Port %1: %2</source>
        <translation>端口 %1：%2</translation>
    </message>
    <message>
        <source>to %1</source>
        <translation>归一至 %1</translation>
    </message>
    <message>
        <source>smoothed %1 %</source>
        <translation>平滑 %1 %</translation>
    </message>
    <message>
        <source>own scale: %1</source>
        <translation>独立刻度：%1</translation>
    </message>
</context>
<context>
    <name>Panel::DisplayKeys</name>
    <message>
        <source>Impedance</source>
        <translation>阻抗</translation>
    </message>
    <message>
        <source>Admittance</source>
        <translation>导纳</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>两者</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>简略</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>Detailed</source>
        <translation>详细</translation>
    </message>
    <message>
        <source>All traces</source>
        <translation>所有轨迹</translation>
    </message>
    <message>
        <source>Active only</source>
        <translation>仅激活轨迹</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Ohms</source>
        <translation>欧姆</translation>
    </message>
    <message>
        <source>Normalised</source>
        <translation>归一化</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>线性</translation>
    </message>
    <message>
        <source>Logarithmic</source>
        <translation>对数</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>圆</translation>
    </message>
</context>
<context>
    <name>Panel::EmptyPage</name>
    <message>
        <source>Open file…</source>
        <translation>打开文件…</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>无数据</translation>
    </message>
    <message>
        <source>Open a Touchstone file (.s1p, .s2p, .ts) to see it.</source>
        <translation>打开 Touchstone 文件（.s1p、.s2p、.ts）即可查看。</translation>
    </message>
</context>
<context>
    <name>Panel::Exports</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>无法创建文件夹 %1。</translation>
    </message>
    <message>
        <source>Nothing can be written to %1 (%2).</source>
        <translation>无法写入 %1（%2）。</translation>
    </message>
    <message>
        <source>The picture cannot be written.</source>
        <translation>无法写入图片。</translation>
    </message>
</context>
<context>
    <name>Panel::FileController</name>
    <message>
        <source>Reading %1</source>
        <translation>正在读取 %1</translation>
    </message>
    <message numerus="yes">
        <source>Reading %n files</source>
        <translation>
            <numerusform>正在读取 %n 个文件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>(%n more)</source>
        <translation>
            <numerusform>（另有 %n 条）</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is gone; the panel keeps what it read.</source>
        <translation>%1 已不存在；面板保留已读取的数据。</translation>
    </message>
    <message numerus="yes">
        <source>%n files are gone; the panel keeps what it read.</source>
        <translation>
            <numerusform>%n 个文件已不存在；面板保留已读取的数据。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 has changed on disk.</source>
        <translation>%1 在磁盘上已更改。</translation>
    </message>
    <message numerus="yes">
        <source>%n files have changed on disk.</source>
        <translation>
            <numerusform>%n 个文件在磁盘上已更改。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Panel::FileDialog</name>
    <message>
        <source>Open Touchstone files</source>
        <translation>打开 Touchstone 文件</translation>
    </message>
    <message>
        <source>Folders and Touchstone files</source>
        <translation>文件夹和 Touchstone 文件</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message numerus="yes">
        <source>Picked: %n</source>
        <translation>
            <numerusform>已选：%n</numerusform>
        </translation>
    </message>
    <message>
        <source>This folder cannot be read</source>
        <translation>此文件夹无法读取</translation>
    </message>
    <message>
        <source>Tap files to pick them</source>
        <translation>点按文件以选择</translation>
    </message>
    <message>
        <source>No Touchstone files here</source>
        <translation>此处没有 Touchstone 文件</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Show them beside the files on show</source>
        <translation>与已显示的文件一起显示</translation>
    </message>
</context>
<context>
    <name>Panel::FileNotes</name>
    <message>
        <source>%1 holds a single point, at %2: set a marker to see it.</source>
        <translation>%1 只含一个点（%2）：设置标记即可看到。</translation>
    </message>
    <message>
        <source>%1: %2 holds no values.</source>
        <translation>%1：%2 没有数值。</translation>
    </message>
    <message>
        <source>Each file is shown in its own reference: %1.</source>
        <translation>各文件按各自的参考阻抗显示：%1。</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1：%2。</translation>
    </message>
    <message>
        <source>%1 is not in %2.</source>
        <translation>%2 中没有 %1。</translation>
    </message>
    <message>
        <source>%1 are not in %2.</source>
        <translation>%2 中没有 %1。</translation>
    </message>
</context>
<context>
    <name>Panel::FitOffer</name>
    <message>
        <source>%1 lies above: fit</source>
        <translation>%1 在上方：调整</translation>
    </message>
    <message>
        <source>%1 lies below: fit</source>
        <translation>%1 在下方：调整</translation>
    </message>
</context>
<context>
    <name>Panel::FolderBrowser</name>
    <message>
        <source>↑ Up</source>
        <translation>↑ 上级</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>主目录</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>示例</translation>
    </message>
    <message>
        <source>Shipped samples</source>
        <translation>自带示例</translation>
    </message>
</context>
<context>
    <name>Panel::HelpDialog</name>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>go through all keys; Space or Return presses</source>
        <translation>遍历所有按键；空格键或回车键按下</translation>
    </message>
    <message>
        <source>Ctrl + PgUp, PgDn</source>
        <translation>Ctrl + PgUp, PgDn</translation>
    </message>
    <message>
        <source>turn the page of soft keys</source>
        <translation>翻动软键页</translation>
    </message>
    <message>
        <source>magnify a diagram, or show all of it</source>
        <translation>放大图形，或显示全图</translation>
    </message>
    <message>
        <source>move the view</source>
        <translation>移动视图</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>remove the selected marker</source>
        <translation>删除所选标记</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Ctrl + O</source>
        <translation>Ctrl + O</translation>
    </message>
    <message>
        <source>open files</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>Ctrl + P</source>
        <translation>Ctrl + P</translation>
    </message>
    <message>
        <source>take a screenshot</source>
        <translation>截屏</translation>
    </message>
    <message>
        <source>Ctrl + L</source>
        <translation>Ctrl + L</translation>
    </message>
    <message>
        <source>Ctrl + T</source>
        <translation>Ctrl + T</translation>
    </message>
    <message>
        <source>dark or light</source>
        <translation>深色或浅色</translation>
    </message>
    <message>
        <source>Ctrl + ,</source>
        <translation>Ctrl + ,</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>show what the drawing costs</source>
        <translation>显示绘图耗时</translation>
    </message>
    <message>
        <source>full screen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Ctrl + Q</source>
        <translation>Ctrl + Q</translation>
    </message>
    <message>
        <source>quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>move the selected marker, with Ctrl by a point; or the view</source>
        <translation>移动所选标记，按住 Ctrl 移动一个点；或移动视图</translation>
    </message>
    <message>
        <source>G, M, k</source>
        <translation>G, M, k</translation>
    </message>
    <message>
        <source>finish a typed number in GHz, MHz or kHz</source>
        <translation>以 GHz、MHz 或 kHz 完成输入</translation>
    </message>
    <message>
        <source>lock the panel, or unlock it</source>
        <translation>锁定或解锁面板</translation>
    </message>
    <message>
        <source>Ctrl + Z</source>
        <translation>Ctrl + Z</translation>
    </message>
    <message>
        <source>undo; with Shift, do it again</source>
        <translation>撤销；加 Shift 重做</translation>
    </message>
    <message>
        <source>F2, Home, End</source>
        <translation>F2、Home、End</translation>
    </message>
    <message>
        <source>walk along the active trace, hear and read what is where</source>
        <translation>沿活动轨迹行走，听到并读出各处的值</translation>
    </message>
    <message>
        <source>walking: ← →</source>
        <translation>行走时：← →</translation>
    </message>
    <message>
        <source>by a point, with Ctrl to the next feature, as the wheel does</source>
        <translation>移动一个点，按 Ctrl 到下一个特征点，滚轮亦可</translation>
    </message>
    <message>
        <source>PgUp, PgDn</source>
        <translation>PgUp、PgDn</translation>
    </message>
    <message>
        <source>by a tenth of the view; ↑ ↓ to another trace</source>
        <translation>移动视图的十分之一；↑ ↓ 换到另一条轨迹</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>回车</translation>
    </message>
    <message>
        <source>set a marker there; Esc ends the walk</source>
        <translation>在该处设置标记；Esc 结束行走</translation>
    </message>
    <message>
        <source>read the selected marker over its whole diagram</source>
        <translation>在整个图上大字显示所选标记</translation>
    </message>
    <message>
        <source>hear the active trace, or stop</source>
        <translation>听当前轨迹，或停止</translation>
    </message>
    <message>
        <source>editing limits: Tab</source>
        <translation>编辑限制时：Tab</translation>
    </message>
    <message>
        <source>from handle to handle, which arrows move; Del removes the limit</source>
        <translation>在手柄间切换，方向键移动手柄；Del 删除限制</translation>
    </message>
    <message>
        <source>select none, then show all diagrams; leave an entry without changing it</source>
        <translation>取消选择，再显示所有图表；放弃输入，不作更改</translation>
    </message>
</context>
<context>
    <name>Panel::InstrumentDialog</name>
    <message>
        <source>small analyser, text shell</source>
        <translation>小型分析仪，文本命令行</translation>
    </message>
    <message>
        <source>analyser program</source>
        <translation>分析仪程序</translation>
    </message>
    <message>
        <source>bench analyser, SCPI</source>
        <translation>台式分析仪，SCPI</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Instruments</source>
        <translation>仪器</translation>
    </message>
    <message>
        <source>Serial ports, and instruments used before</source>
        <translation>串口和以前用过的仪器</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>No instrument is connected. Tap one, or type its address.</source>
        <translation>没有连接仪器。请点选一台，或输入其地址。</translation>
    </message>
    <message>
        <source>Connecting to %1…</source>
        <translation>正在连接 %1…</translation>
    </message>
    <message>
        <source>It says nothing of a calibration of its own.</source>
        <translation>它未说明自身的校准状态。</translation>
    </message>
    <message>
        <source>Calibrated by itself: %1</source>
        <translation>由仪器自身校准：%1</translation>
    </message>
    <message>
        <source>No serial port, and none used before.</source>
        <translation>没有串口，也没有以前用过的仪器。</translation>
    </message>
</context>
<context>
    <name>Panel::LetterKeys</name>
    <message>
        <source>Shift</source>
        <translation>上档</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空格</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>Panel::LimitKeys</name>
    <message>
        <source>below</source>
        <translation>低于</translation>
    </message>
    <message>
        <source>above</source>
        <translation>高于</translation>
    </message>
    <message>
        <source>A polar diagram has no limits.</source>
        <translation>极坐标图没有限制。</translation>
    </message>
    <message>
        <source>Two taps on a free place of the diagram add a limit.</source>
        <translation>在图中空白处双击可添加限制。</translation>
    </message>
    <message>
        <source>outside</source>
        <translation>圆外</translation>
    </message>
    <message>
        <source>inside</source>
        <translation>圆内</translation>
    </message>
</context>
<context>
    <name>Panel::LimitSheet</name>
    <message>
        <source>A limit line is what the trace must stay below, or above.</source>
        <translation>限制线规定轨迹必须低于或高于的界限。</translation>
    </message>
    <message>
        <source>Add a line</source>
        <translation>添加一条</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>全部移除</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>below</source>
        <translation>低于</translation>
    </message>
    <message>
        <source>above</source>
        <translation>高于</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>起始</translation>
    </message>
    <message>
        <source>Value at start</source>
        <translation>起始值</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>终止</translation>
    </message>
    <message>
        <source>Value at stop</source>
        <translation>终止值</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Limit lines of %1 %2, %3</source>
        <translation>%1 %2 的限制线，%3</translation>
    </message>
</context>
<context>
    <name>Panel::LineEditor</name>
    <message numerus="yes">
        <source>A trace can have %n limit line(s).</source>
        <translation>
            <numerusform>一条轨迹最多可有 %n 条限制线。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2
%3</source>
        <translation>%1 至 %2
%3</translation>
    </message>
</context>
<context>
    <name>Panel::LinkAddress</name>
    <message>
        <source>An instrument is written as nanovna:PORT, librevna:HOST or scpi:HOST, not &quot;%1&quot;.</source>
        <translation>仪器应写作 nanovna:PORT、librevna:HOST 或 scpi:HOST，而不是“%1”。</translation>
    </message>
</context>
<context>
    <name>Panel::LinkSource</name>
    <message>
        <source>%1 is connected again.</source>
        <translation>%1 已重新连接。</translation>
    </message>
</context>
<context>
    <name>Panel::LinkedMeasurement</name>
    <message>
        <source>%1 does not take this sweep, but goes from %2 to %3 Hz with %4 points.</source>
        <translation>%1 不接受此扫描，而是从 %2 到 %3 Hz，%4 个点。</translation>
    </message>
    <message>
        <source>%1: the log cannot be written.</source>
        <translation>%1：无法写入日志。</translation>
    </message>
    <message>
        <source>The measurement was cancelled.</source>
        <translation>测量已取消。</translation>
    </message>
</context>
<context>
    <name>Panel::MarkerController</name>
    <message>
        <source>Maximum</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>Next peak left</source>
        <translation>左侧下一峰值</translation>
    </message>
    <message>
        <source>Next peak right</source>
        <translation>右侧下一峰值</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>中心</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>起始</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>终止</translation>
    </message>
    <message>
        <source>Trace %1 has all its %2 markers: remove one to set another.</source>
        <translation>轨迹 %1 已有全部 %2 个标记：请先删除一个。</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>全部删除</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Trace %1 has no further peak of %2 that way.</source>
        <translation>轨迹 %1 在该方向没有更多 %2 的峰值。</translation>
    </message>
    <message>
        <source>M%1 stands at the end of the data.</source>
        <translation>M%1 位于数据末端。</translation>
    </message>
    <message>
        <source>Value left…</source>
        <translation>左侧目标值…</translation>
    </message>
    <message>
        <source>Value right…</source>
        <translation>右侧目标值…</translation>
    </message>
    <message>
        <source>Reference level</source>
        <translation>参考电平</translation>
    </message>
    <message>
        <source>Port delay</source>
        <translation>端口延时</translation>
    </message>
    <message>
        <source>Value, %1</source>
        <translation>目标值，%1</translation>
    </message>
    <message>
        <source>Trace %1 does not reach %2 that way.</source>
        <translation>轨迹 %1 在该方向未达到 %2。</translation>
    </message>
    <message>
        <source>Highest peaks</source>
        <translation>最高峰值</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>固定</translation>
    </message>
</context>
<context>
    <name>Panel::MarkerReading</name>
    <message>
        <source>Bandwidth %1 dB</source>
        <translation>带宽 %1 dB</translation>
    </message>
    <message>
        <source>centre %1</source>
        <translation>中心 %1</translation>
    </message>
    <message>
        <source>%1: its edges are not in the data</source>
        <translation>%1：边沿不在数据内</translation>
    </message>
    <message>
        <source>marker %1</source>
        <translation>标记 %1</translation>
    </message>
    <message>
        <source>loss %1</source>
        <translation>损耗 %1</translation>
    </message>
    <message>
        <source>Bandwidth %1 dB (absorbed power)</source>
        <translation>带宽 %1 dB（吸收功率）</translation>
    </message>
    <message>
        <source>%1: only its upper edge is in the data, %2</source>
        <translation>%1：数据中只有上边沿，%2</translation>
    </message>
    <message>
        <source>%1: only its lower edge is in the data, %2</source>
        <translation>%1：数据中只有下边沿，%2</translation>
    </message>
</context>
<context>
    <name>Panel::MarkerRows</name>
    <message>
        <source>Marker</source>
        <translation>标记</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>轨迹</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>频率</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>Value %1</source>
        <translation>值 %1</translation>
    </message>
</context>
<context>
    <name>Panel::MarkerTable</name>
    <message>
        <source>Tap a trace twice to set a marker.</source>
        <translation>双击轨迹以设置标记。</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>标记</translation>
    </message>
</context>
<context>
    <name>Panel::MathKeys</name>
    <message>
        <source>Data to memory</source>
        <translation>数据存入存储</translation>
    </message>
    <message>
        <source>Clear memory</source>
        <translation>清除存储</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>All ports</source>
        <translation>所有端口</translation>
    </message>
    <message>
        <source>Port %1</source>
        <translation>端口 %1</translation>
    </message>
    <message>
        <source>Normalize to data</source>
        <translation>以当前数据归一化</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>数据</translation>
    </message>
</context>
<context>
    <name>Panel::MessageBar</name>
    <message>
        <source>Close message</source>
        <translation>关闭消息</translation>
    </message>
</context>
<context>
    <name>Panel::NameDialog</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>Panel::NumericDialog</name>
    <message>
        <source>Step</source>
        <translation>步进</translation>
    </message>
    <message>
        <source>1-2-5</source>
        <translation>1-2-5</translation>
    </message>
    <message>
        <source>Not a value</source>
        <translation>无效数值</translation>
    </message>
    <message>
        <source>%1: %2 is out of range, limited to %3.</source>
        <translation>%1：%2 超出范围，已限制为 %3。</translation>
    </message>
    <message>
        <source>Highest value: %1</source>
        <translation>最大值：%1</translation>
    </message>
    <message>
        <source>Lowest value: %1</source>
        <translation>最小值：%1</translation>
    </message>
</context>
<context>
    <name>Panel::NumericKeys</name>
    <message>
        <source>Scale/</source>
        <translation>刻度/</translation>
    </message>
    <message>
        <source>Scale, %1/</source>
        <translation>刻度，%1/</translation>
    </message>
    <message>
        <source>Stop moved along, to %1.</source>
        <translation>终止频率随之移至 %1。</translation>
    </message>
    <message>
        <source>Start moved along, to %1.</source>
        <translation>起始频率随之移至 %1。</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
</context>
<context>
    <name>Panel::PanelController</name>
    <message>
        <source>The language changes with the next start of the panel.</source>
        <translation>语言将在下次启动程序时更改。</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>重新读取</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>已保存 %1</translation>
    </message>
    <message>
        <source>Diagram as PDF</source>
        <translation>图表存为 PDF</translation>
    </message>
    <message>
        <source>Diagram as SVG</source>
        <translation>图表存为 SVG</translation>
    </message>
    <message>
        <source>Picture to clipboard</source>
        <translation>图片到剪贴板</translation>
    </message>
    <message>
        <source>Copied the picture</source>
        <translation>已复制图片</translation>
    </message>
    <message>
        <source>%1 It is tried again.</source>
        <translation>%1 正在重试。</translation>
    </message>
    <message>
        <source>Print the diagram…</source>
        <translation>打印图表…</translation>
    </message>
    <message>
        <source>Printed the diagram</source>
        <translation>已打印图表</translation>
    </message>
    <message>
        <source>The printer does not take the diagram.</source>
        <translation>打印机不接受该图表。</translation>
    </message>
    <message>
        <source>Select a marker to read it large.</source>
        <translation>请先选择要放大显示的标记。</translation>
    </message>
    <message>
        <source>Save as Touchstone</source>
        <translation>另存为 Touchstone</translation>
    </message>
    <message>
        <source>Save as CSV</source>
        <translation>另存为 CSV</translation>
    </message>
    <message>
        <source>Save the diagram as PDF</source>
        <translation>将图表保存为 PDF</translation>
    </message>
    <message>
        <source>Save the diagram as SVG</source>
        <translation>将图表保存为 SVG</translation>
    </message>
    <message>
        <source>Save, remove…</source>
        <translation>保存、移除…</translation>
    </message>
</context>
<context>
    <name>Panel::PanelKeys</name>
    <message>
        <source>Stimulus</source>
        <translation>激励</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>起始</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>终止</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>中心</translation>
    </message>
    <message>
        <source>Span</source>
        <translation>扫宽</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点数</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>轨迹</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>刻度</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>参考</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>存储</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>可见</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>标记</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Marker to</source>
        <translation>标记设为</translation>
    </message>
    <message>
        <source>Read-out</source>
        <translation>读数</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>密度</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>指针</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>扫描</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>数据源</translation>
    </message>
    <message>
        <source>Resonance</source>
        <translation>谐振</translation>
    </message>
    <message>
        <source>Timing</source>
        <translation>耗时</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>截屏</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Whole view</source>
        <translation>全图</translation>
    </message>
    <message>
        <source>Autoscale</source>
        <translation>自动刻度</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>限值</translation>
    </message>
    <message>
        <source>VSWR circle</source>
        <translation>驻波比圆</translation>
    </message>
    <message>
        <source>VSWR limit</source>
        <translation>驻波比限值</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>标注</translation>
    </message>
    <message>
        <source>Keyboard help</source>
        <translation>键盘帮助</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>带宽</translation>
    </message>
    <message>
        <source>Math</source>
        <translation>运算</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>平滑</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Port delay</source>
        <translation>端口延时</translation>
    </message>
    <message>
        <source>Port impedance</source>
        <translation>端口阻抗</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Limit lines</source>
        <translation>限制线</translation>
    </message>
    <message>
        <source>Set-ups</source>
        <translation>设置集</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>仪器</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>单次</translation>
    </message>
    <message>
        <source>IF bandwidth</source>
        <translation>中频带宽</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>功率</translation>
    </message>
    <message>
        <source>Averages</source>
        <translation>平均次数</translation>
    </message>
    <message>
        <source>Frequency axis</source>
        <translation>频率轴</translation>
    </message>
    <message>
        <source>Reference position</source>
        <translation>参考位置</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>跟踪</translation>
    </message>
    <message>
        <source>Couple</source>
        <translation>耦合</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>表格</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Limit radius</source>
        <translation>限值半径</translation>
    </message>
    <message>
        <source>Center Re</source>
        <translation>圆心实部</translation>
    </message>
    <message>
        <source>Center Im</source>
        <translation>圆心虚部</translation>
    </message>
    <message>
        <source>From file</source>
        <translation>所属文件</translation>
    </message>
    <message>
        <source>Diagram</source>
        <translation>图表</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
</context>
<context>
    <name>Panel::PanelState</name>
    <message>
        <source>The state of the last time cannot be read.</source>
        <translation>上次的状态无法读取。</translation>
    </message>
    <message>
        <source>The state of the last time is damaged and not used.</source>
        <translation>上次的状态已损坏，未予采用。</translation>
    </message>
    <message>
        <source>The state of the last time is of another version and not used.</source>
        <translation>上次的状态来自其他版本，未予采用。</translation>
    </message>
</context>
<context>
    <name>Panel::PanelWindow</name>
    <message>
        <source>Vector network analyser</source>
        <translation>矢量网络分析仪</translation>
    </message>
    <message>
        <source>VNA</source>
        <translation>VNA</translation>
    </message>
    <message>
        <source>Dark or light</source>
        <translation>深色或浅色</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>截屏</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>锁定</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n 个文件</numerusform>
        </translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>打开…</translation>
    </message>
    <message>
        <source>Simulated: %1</source>
        <translation>模拟：%1</translation>
    </message>
    <message>
        <source>Sample: %1</source>
        <translation>示例：%1</translation>
    </message>
    <message>
        <source>Only files of this computer can be opened.</source>
        <translation>只能打开本机上的文件。</translation>
    </message>
    <message>
        <source>This is a sample. The folder above opens your own files.</source>
        <translation>这是示例。点上方的文件夹打开自己的文件。</translation>
    </message>
    <message>
        <source>What you set cannot be kept: %1 cannot be written.</source>
        <translation>设置无法保存：无法写入 %1。</translation>
    </message>
    <message>
        <source>Old: %1</source>
        <translation>旧数据：%1</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>已锁定</translation>
    </message>
    <message>
        <source>Unlocked</source>
        <translation>已解锁</translation>
    </message>
    <message>
        <source>The panel is locked: tap the padlock or press Ctrl + L.</source>
        <translation>面板已锁定：轻触挂锁或按 Ctrl + L。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Load a file</source>
        <translation>打开文件</translation>
    </message>
</context>
<context>
    <name>Panel::ParameterMatrix</name>
    <message>
        <source>Parameter</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>From port %1 to port %2</source>
        <translation>从端口 %1 到端口 %2</translation>
    </message>
</context>
<context>
    <name>Panel::PolarView</name>
    <message>
        <source>Polar diagram</source>
        <translation>极坐标图</translation>
    </message>
    <message>
        <source>full scale %1</source>
        <translation>满刻度 %1</translation>
    </message>
</context>
<context>
    <name>Panel::ReadOuts</name>
    <message>
        <source>Markers</source>
        <translation>标记</translation>
    </message>
    <message>
        <source>Tap a trace twice to set a marker.</source>
        <translation>双击轨迹以设置标记。</translation>
    </message>
</context>
<context>
    <name>Panel::SaveDialog</name>
    <message>
        <source>Folders and files</source>
        <translation>文件夹和文件</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>使用此文件夹</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>%1 is there already.</source>
        <translation>%1 已存在。</translation>
    </message>
</context>
<context>
    <name>Panel::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Markers on measured points only</source>
        <translation>标记仅取测量点</translation>
    </message>
    <message>
        <source>Saved files go to</source>
        <translation>保存到</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>高对比度</translation>
    </message>
    <message>
        <source>Dashes tell traces apart</source>
        <translation>用虚线区分轨迹</translation>
    </message>
    <message>
        <source>Sound along a walk and under the pointer</source>
        <translation>沿轨迹行走时和指针处发声</translation>
    </message>
    <message>
        <source>Nothing can be written to this folder.</source>
        <translation>无法写入此文件夹。</translation>
    </message>
</context>
<context>
    <name>Panel::SetupDialog</name>
    <message>
        <source>A set-up keeps files, traces, scales, limits and markers.</source>
        <translation>设置集保存文件、轨迹、刻度、限制和标记。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Recall</source>
        <translation>调用</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Set-ups</source>
        <translation>设置集</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
</context>
<context>
    <name>Panel::Setups</name>
    <message>
        <source>Set-up %1</source>
        <translation>设置 %1</translation>
    </message>
    <message>
        <source>A set-up needs a name.</source>
        <translation>设置集需要名称。</translation>
    </message>
    <message>
        <source>The set-up cannot be written to %1.</source>
        <translation>无法将设置集写入 %1。</translation>
    </message>
    <message>
        <source>Saved the set-up %1</source>
        <translation>已保存设置集 %1</translation>
    </message>
    <message>
        <source>The set-up %1 cannot be removed.</source>
        <translation>无法移除设置集 %1。</translation>
    </message>
    <message>
        <source>There is no set-up %1.</source>
        <translation>没有设置集 %1。</translation>
    </message>
    <message>
        <source>The set-up %1 is of another version and not used.</source>
        <translation>设置集 %1 属于其他版本，未使用。</translation>
    </message>
    <message>
        <source>The set-up %1 is damaged and not used.</source>
        <translation>设置集 %1 已损坏，未使用。</translation>
    </message>
    <message>
        <source>Recalled %1</source>
        <translation>已调用 %1</translation>
    </message>
    <message>
        <source>%1 needs %2, which cannot be read.</source>
        <translation>%1 需要 %2，但无法读取。</translation>
    </message>
</context>
<context>
    <name>Panel::SmithView</name>
    <message>
        <source>Smith chart</source>
        <translation>史密斯圆图</translation>
    </message>
    <message>
        <source>VSWR %1</source>
        <translation>驻波比 %1</translation>
    </message>
    <message>
        <source>normalised, Tr%1 to %2</source>
        <translation>归一化，Tr%1 至 %2</translation>
    </message>
    <message>
        <source>Z₀ %1</source>
        <translation>Z₀ %1</translation>
    </message>
</context>
<context>
    <name>Panel::Source</name>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Antenna</source>
        <translation>天线</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>滤波器</translation>
    </message>
    <message>
        <source>Long cable</source>
        <translation>长电缆</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>仪器</translation>
    </message>
</context>
<context>
    <name>Panel::SourceKeys</name>
    <message>
        <source>Choose…</source>
        <translation>选择…</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>正在连接…</translation>
    </message>
    <message>
        <source>Not there</source>
        <translation>不在线</translation>
    </message>
</context>
<context>
    <name>Panel::SweepBar</name>
    <message>
        <source>Sweep</source>
        <translation>扫描</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>保持</translation>
    </message>
    <message>
        <source>Speed: %1 sweeps/s</source>
        <translation>速度：%1 次/秒</translation>
    </message>
    <message>
        <source>Old data</source>
        <translation>旧数据</translation>
    </message>
</context>
<context>
    <name>Panel::TcpWire</name>
    <message>
        <source>nothing answers at this port</source>
        <translation>此端口没有应答</translation>
    </message>
    <message>
        <source>there is no host of this name</source>
        <translation>没有此名称的主机</translation>
    </message>
    <message>
        <source>there is no way to this host</source>
        <translation>无法到达此主机</translation>
    </message>
</context>
<context>
    <name>Panel::TimingLine</name>
    <message>
        <source>Timing</source>
        <translation>耗时</translation>
    </message>
    <message>
        <source>%1 points drawn · new data %2 · replot %3</source>
        <translation>已绘 %1 点 · 新数据 %2 · 重绘 %3</translation>
    </message>
</context>
<context>
    <name>Panel::Touchstone</name>
    <message>
        <source>the reading was cancelled</source>
        <translation>读取已取消</translation>
    </message>
    <message>
        <source>the last point has %1 of %2 numbers</source>
        <translation>最后一个点只有 %2 个数中的 %1 个</translation>
    </message>
    <message>
        <source>the file holds no data</source>
        <translation>文件不含数据</translation>
    </message>
    <message>
        <source>the option line comes after data</source>
        <translation>选项行出现在数据之后</translation>
    </message>
    <message>
        <source>the reference resistance after R must be a number above zero</source>
        <translation>R 之后的参考电阻必须是大于零的数</translation>
    </message>
    <message>
        <source>%1 is no option of a Touchstone file</source>
        <translation>%1 不是 Touchstone 文件的选项</translation>
    </message>
    <message>
        <source>%1 stands where a finite number belongs</source>
        <translation>应为有限数值之处出现 %1</translation>
    </message>
    <message>
        <source>a line of noise data has %1 numbers, not %2</source>
        <translation>噪声数据每行应有 %1 个数，而不是 %2 个</translation>
    </message>
    <message>
        <source>the frequency falls back in the noise data</source>
        <translation>噪声数据中的频率回退</translation>
    </message>
    <message>
        <source>the frequency must not be below zero nor beyond all bounds</source>
        <translation>频率不得小于零，也不得为无穷大</translation>
    </message>
    <message>
        <source>the frequency falls back</source>
        <translation>频率回退</translation>
    </message>
    <message>
        <source>a value is beyond all bounds</source>
        <translation>数值超出一切界限</translation>
    </message>
    <message>
        <source>this is no ordinary file</source>
        <translation>这不是普通文件</translation>
    </message>
    <message>
        <source>the file is larger than %1 MB</source>
        <translation>文件大于 %1 MB</translation>
    </message>
    <message>
        <source>the file cannot be read (%1)</source>
        <translation>文件无法读取（%1）</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>没有此文件</translation>
    </message>
    <message>
        <source>this is a folder, not a file</source>
        <translation>这是文件夹，不是文件</translation>
    </message>
    <message>
        <source>%1, line %2: %3.</source>
        <translation>%1，第 %2 行：%3。</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1：%2。</translation>
    </message>
    <message>
        <source>the file has more than %1 points</source>
        <translation>文件超过 %1 个点</translation>
    </message>
    <message>
        <source>R has no number, and 50 ohms are assumed</source>
        <translation>R 之后没有数，按 50 欧姆处理</translation>
    </message>
    <message>
        <source>%1 stands twice</source>
        <translation>%1 出现两次</translation>
    </message>
    <message>
        <source>%1 is no value for %2</source>
        <translation>%1 不是 %2 的有效值</translation>
    </message>
    <message>
        <source>version %1 of the format is not known</source>
        <translation>未知的格式版本 %1</translation>
    </message>
    <message>
        <source>version 1 has no keywords, and their meaning in version 2 is assumed</source>
        <translation>第 1 版没有关键字，按第 2 版的含义处理</translation>
    </message>
    <message>
        <source>a reference must be a number above zero, and not %1</source>
        <translation>参考阻抗必须是大于零的数，而不是 %1</translation>
    </message>
    <message>
        <source>%1 is no mode such as S1, D2,3 or C2,3</source>
        <translation>%1 不是 S1、D2,3 或 C2,3 这样的模式</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>缺少 %1</translation>
    </message>
    <message>
        <source>a network of %1 ports, and at most %2 ports are read</source>
        <translation>%1 端口网络，最多支持 %2 个端口</translation>
    </message>
    <message>
        <source>only two-ports have G and H parameters</source>
        <translation>只有双端口才有 G 和 H 参数</translation>
    </message>
    <message>
        <source>%1 is missing, and 21_12 is assumed</source>
        <translation>缺少 %1，按 21_12 处理</translation>
    </message>
    <message>
        <source>%1 references for %2 ports</source>
        <translation>%2 个端口却有 %1 个参考阻抗</translation>
    </message>
    <message>
        <source>only S parameters can have a complex reference</source>
        <translation>只有 S 参数可以有复数参考阻抗</translation>
    </message>
    <message>
        <source>mixed modes are read of S parameters, and of Z and Y in ohms</source>
        <translation>混合模式仅支持 S 参数以及以欧姆为单位的 Z 和 Y 参数</translation>
    </message>
    <message>
        <source>the mixed modes name a port that does not exist</source>
        <translation>混合模式中出现不存在的端口</translation>
    </message>
    <message>
        <source>the mixed modes name port %1 twice</source>
        <translation>混合模式中端口 %1 出现两次</translation>
    </message>
    <message>
        <source>the ports %1 and %2 of a mixed mode have different references</source>
        <translation>同一混合模式的端口 %1 和 %2 参考阻抗不同</translation>
    </message>
    <message>
        <source>the mixed modes do not name port %1 once as S or as D and C of one pair</source>
        <translation>混合模式没有把端口 %1 列为一次 S 或同一对的 D 和 C</translation>
    </message>
    <message>
        <source>%1 does not stand where it belongs</source>
        <translation>%1 的位置不对</translation>
    </message>
    <message>
        <source>the line is longer than %1 MB</source>
        <translation>该行超过 %1 MB</translation>
    </message>
    <message>
        <source>%1 is no keyword of a Touchstone file</source>
        <translation>%1 不是 Touchstone 文件的关键字</translation>
    </message>
    <message>
        <source>only two-ports have noise data</source>
        <translation>只有双端口才有噪声数据</translation>
    </message>
    <message>
        <source>the first point has %1 numbers, and no number of ports has so many</source>
        <translation>第一个点有 %1 个数，与任何端口数都不符</translation>
    </message>
    <message>
        <source>the point has more than %1 numbers</source>
        <translation>该点的数值多于 %1 个</translation>
    </message>
    <message>
        <source>%1 of the %2 announced frequencies are there</source>
        <translation>声明了 %2 个频率，实有 %1 个</translation>
    </message>
    <message>
        <source>there are more than the %1 announced frequencies</source>
        <translation>频率多于所声明的 %1 个</translation>
    </message>
    <message>
        <source>only the first %1 MB of its comments are kept</source>
        <translation>注释仅保留前 %1 MB</translation>
    </message>
    <message>
        <source>the file has more than %1 numbers</source>
        <translation>文件超过 %1 个数</translation>
    </message>
    <message>
        <source>the parameters of this point have no S parameters</source>
        <translation>该点的参数没有对应的 S 参数</translation>
    </message>
    <message>
        <source>the name of a network&apos;s file ends in .s1p, .s2p and so on, .ts or .csv</source>
        <translation>网络文件名应以 .s1p、.s2p 等，.ts 或 .csv 结尾</translation>
    </message>
    <message>
        <source>the name of a file with %1 ports ends in .s%1p</source>
        <translation>%1 端口的文件名应以 .s%1p 结尾</translation>
    </message>
    <message>
        <source>there is such a file already</source>
        <translation>已有此文件</translation>
    </message>
    <message>
        <source>the file that is there is newer than what was to be saved</source>
        <translation>现有文件比要保存的内容更新</translation>
    </message>
    <message>
        <source>the file cannot be written (%1)</source>
        <translation>文件无法写入（%1）</translation>
    </message>
    <message>
        <source>the name of a Touchstone file ends in .s1p, .s2p and so on, or in .ts</source>
        <translation>Touchstone 文件名应以 .s1p、.s2p 等或 .ts 结尾</translation>
    </message>
    <message>
        <source>Touchstone files have no complex references</source>
        <translation>Touchstone 文件不支持复数参考阻抗</translation>
    </message>
    <message>
        <source>the noise data is not complete</source>
        <translation>噪声数据不完整</translation>
    </message>
    <message>
        <source>version 1 has no room for this noise data</source>
        <translation>第 1 版无法容纳这些噪声数据</translation>
    </message>
    <message>
        <source>the network holds no data</source>
        <translation>网络不含数据</translation>
    </message>
    <message>
        <source>%1 has no finite value at %2 Hz</source>
        <translation>%1 在 %2 Hz 处没有有限数值</translation>
    </message>
    <message>
        <source>its data refer to the port impedances in its comments, but are shown as if to %1 Ω: impedances read from them are not true</source>
        <translation>数据以注释中的端口阻抗为参考，但按 %1 Ω 显示：由此读出的阻抗不准确</translation>
    </message>
</context>
<context>
    <name>Panel::TraceBar</name>
    <message>
        <source>%1 (hidden)</source>
        <translation>%1（已隐藏）</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>轨迹</translation>
    </message>
    <message>
        <source>Add a trace</source>
        <translation>添加轨迹</translation>
    </message>
</context>
<context>
    <name>Panel::TraceController</name>
    <message>
        <source>This trace</source>
        <translation>当前轨迹</translation>
    </message>
    <message>
        <source>All traces</source>
        <translation>所有轨迹</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>顶部</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>底部</translation>
    </message>
    <message>
        <source>Name of Tr%1</source>
        <translation>Tr%1 的名称</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
</context>
<context>
    <name>Panel::TraceFormat</name>
    <message>
        <source>Smith</source>
        <translation>史密斯</translation>
    </message>
    <message>
        <source>LogM</source>
        <translation>对数幅度</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>相位</translation>
    </message>
    <message>
        <source>VSWR</source>
        <translation>驻波比</translation>
    </message>
    <message>
        <source>As the grid</source>
        <translation>与网格一致</translation>
    </message>
    <message>
        <source>Mag / phase</source>
        <translation>幅度 / 相位</translation>
    </message>
    <message>
        <source>dB / phase</source>
        <translation>dB / 相位</translation>
    </message>
    <message>
        <source>LinM</source>
        <translation>线性幅度</translation>
    </message>
    <message>
        <source>Real</source>
        <translation>实部</translation>
    </message>
    <message>
        <source>Imag</source>
        <translation>虚部</translation>
    </message>
    <message>
        <source>Unwrapped</source>
        <translation>展开相位</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>群时延</translation>
    </message>
    <message>
        <source>Polar</source>
        <translation>极坐标</translation>
    </message>
</context>
<context>
    <name>Panel::TraceMath</name>
    <message>
        <source>Memory</source>
        <translation>存储</translation>
    </message>
    <message>
        <source>Data / memory</source>
        <translation>数据 / 存储</translation>
    </message>
    <message>
        <source>Data − memory</source>
        <translation>数据 − 存储</translation>
    </message>
    <message>
        <source>Data + memory</source>
        <translation>数据 + 存储</translation>
    </message>
    <message>
        <source>Data and memory</source>
        <translation>数据和存储</translation>
    </message>
</context>
<context>
    <name>Panel::TraceWalker</name>
    <message>
        <source>Marker %1 is set at %2.</source>
        <translation>标记 %1 已设在 %2。</translation>
    </message>
    <message>
        <source>changed by %1</source>
        <translation>变化 %1</translation>
    </message>
</context>
<context>
    <name>Panel::Trouble</name>
    <message>
        <source>%1 cannot be reached: %2.</source>
        <translation>无法连接 %1：%2。</translation>
    </message>
    <message>
        <source>%1 cannot be opened: there is no permission to use it.</source>
        <translation>无法打开 %1：没有使用权限。</translation>
    </message>
    <message>
        <source>%1 cannot be opened: there is no such port.</source>
        <translation>无法打开 %1：没有此端口。</translation>
    </message>
    <message>
        <source>%1 cannot be opened: another program uses it.</source>
        <translation>无法打开 %1：另一个程序正在使用它。</translation>
    </message>
    <message>
        <source>%1 does not answer.</source>
        <translation>%1 没有应答。</translation>
    </message>
    <message>
        <source>%1 sends too slowly.</source>
        <translation>%1 发送太慢。</translation>
    </message>
    <message>
        <source>%1 has ended the connection.</source>
        <translation>%1 已断开连接。</translation>
    </message>
    <message>
        <source>%1 sends %2 bytes where %3 are due.</source>
        <translation>%1 发送了 %2 字节，应为 %3 字节。</translation>
    </message>
    <message>
        <source>%1 sends %2 points where %3 are due.</source>
        <translation>%1 发送了 %2 个点，应为 %3 个点。</translation>
    </message>
    <message>
        <source>%1 sends values that are no numbers.</source>
        <translation>%1 发送的值不是数字。</translation>
    </message>
    <message>
        <source>%1 sends what cannot be understood: &quot;%2&quot;.</source>
        <translation>无法理解 %1 发送的内容：“%2”。</translation>
    </message>
    <message>
        <source>%1 refuses &quot;%2&quot;: %3.</source>
        <translation>%1 拒绝“%2”：%3。</translation>
    </message>
    <message>
        <source>%1 is no instrument whose commands are known: &quot;%2&quot;.</source>
        <translation>%1 不是已知命令的仪器：“%2”。</translation>
    </message>
    <message>
        <source>%1 is another instrument than before: %2 in place of %3.</source>
        <translation>%1 与之前的仪器不同：是 %2，而不是 %3。</translation>
    </message>
    <message>
        <source>%1 answers, but has no device connected.</source>
        <translation>%1 有应答，但没有连接设备。</translation>
    </message>
    <message>
        <source>%1 speaks another protocol than the text shell.</source>
        <translation>%1 使用的协议不是文本命令行。</translation>
    </message>
    <message>
        <source>This panel was built without serial ports.</source>
        <translation>此面板构建时不含串口支持。</translation>
    </message>
    <message>
        <source>%1 does not finish its sweep.</source>
        <translation>%1 没有完成扫描。</translation>
    </message>
</context>
<context>
    <name>Panel::Verdict</name>
    <message>
        <source>PASS</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>FAIL</source>
        <translation>不合格</translation>
    </message>
    <message>
        <source>Limits: pass</source>
        <translation>限制线：合格</translation>
    </message>
    <message>
        <source>Limits: fail, %1</source>
        <translation>限制线：不合格，%1</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1 自 %2</translation>
    </message>
</context>
</TS>
