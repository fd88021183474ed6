// A printer with more choices than the demo printer.
#pragma once

#include <QtCore/QByteArray>

namespace kesto::test {

/// Replaces this line of the demo printer's PPD.
inline const QByteArray fewChoices = "*VariablePaperSize: False";
inline const QByteArray moreChoices = R"(*VariablePaperSize: True
*MaxMediaWidth: "900"
*MaxMediaHeight: "1300"
*HWMargins: 12 12 12 12
*NonUIOrderDependency: 20 AnySetup *CustomPageSize
*CustomPageSize True: "pop pop pop pop pop"
*ParamCustomPageSize Width: 1 points 200 900
*ParamCustomPageSize Height: 2 points 200 1300
*ParamCustomPageSize WidthOffset: 3 points 0 0
*ParamCustomPageSize HeightOffset: 4 points 0 0
*ParamCustomPageSize Orientation: 5 int 0 3
*OpenUI *MediaType/Media Type: PickOne
*DefaultMediaType: Plain
*MediaType Plain/Plain: ""
*MediaType Transparency/Transparency: ""
*MediaType Thick/Thick: ""
*CloseUI: *MediaType
*OpenUI *OutputBin/Output Bin: PickOne
*DefaultOutputBin: Upper
*OutputBin Upper/The shelf: ""
*OutputBin FaceDown/Face Down: ""
*CloseUI: *OutputBin
*OpenUI *OutputMode/Quality: PickOne
*DefaultOutputMode: Normal
*OutputMode Normal/Normal: ""
*OutputMode Best/Best: ""
*CloseUI: *OutputMode
*OpenUI *Booklet/Booklet: Boolean
*DefaultBooklet: False
*Booklet False/Off: ""
*Booklet True/On: ""
*CloseUI: *Booklet
*OpenGroup: Toner/Toner
*OpenUI *TonerSave/Save Toner: Boolean
*DefaultTonerSave: False
*TonerSave False/Off: ""
*TonerSave True/On: ""
*CloseUI: *TonerSave
*CloseGroup: Toner
*UIConstraints: *Duplex DuplexNoTumble *MediaType Transparency
*UIConstraints: *MediaType Transparency *Duplex DuplexNoTumble
*UIConstraints: *OutputBin FaceDown *MediaType Thick
*UIConstraints: *MediaType Thick *OutputBin FaceDown
)";

}  // namespace kesto::test
