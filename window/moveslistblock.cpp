#include "window/moveslistblock.h"

#include "moveslist/lbblock.h"
#include "moveslist/usercontrol1.h"

QByteArray movesListBlock()
{
    // The hashes are the ones the form was saved with.
    PropertyBag bag;
    bag.add({QStringLiteral("_extentx"), PropertyType::Long, 10028, {}, 0x4757F20Bu});
    bag.add({QStringLiteral("_extenty"), PropertyType::Long, 503, {}, 0x4757F20Au});
    bag.add({QStringLiteral("fontname"),
             PropertyType::Text,
             QStringLiteral("MS Sans Serif"),
             {},
             0xB35657BBu});
    bag.add({QStringLiteral("fontsize"), PropertyType::Single, 8.25, {}, 0x9354B93Bu});
    return lbblock::write(bag);
}

void setUpMovesLog(UserControl1& list)
{
    list.DropDownHeight(3750);
    list.Mode(0);
    list.BorderStyle(0);
    list.GridLines(true);
    list.ToolTip(true);
}
