#include "moveslist/designer/tavoklistplugin.h"

#include "moveslist/usercontrol1.h"

#include <QIcon>

QString TavokListPlugin::name() const
{
    return QStringLiteral("UserControl1");
}

QString TavokListPlugin::group() const
{
    return QStringLiteral("Tavok");
}

QString TavokListPlugin::toolTip() const
{
    return QStringLiteral("An owner-drawn list with colours, fonts and pictures per row");
}

QString TavokListPlugin::whatsThis() const
{
    return QStringLiteral("Tavok's moves list: rows of text, each in its own colour and font, "
                          "with grid lines, sorting, finding and a drop-down mode.");
}

QString TavokListPlugin::includeFile() const
{
    return QStringLiteral("moveslist/usercontrol1.h");
}

QIcon TavokListPlugin::icon() const
{
    return {};
}

bool TavokListPlugin::isContainer() const
{
    return false;
}

// A new instance on a form, its stored properties at their defaults; at design time in
// Designer, at run time for QUiLoader.
QWidget* TavokListPlugin::createWidget(QWidget* parent)
{
    auto* list = new UserControl1(parent);
    list->setDesignTime(m_core != nullptr);
    list->UserControl_InitProperties();
    return list;
}

QString TavokListPlugin::domXml() const
{
    return QStringLiteral(R"(<ui language="c++" displayname="Tavok list">
 <widget class="UserControl1" name="list">
  <property name="geometry"><rect><x>0</x><y>0</y><width>200</width><height>120</height></rect></property>
 </widget>
</ui>)");
}
