#include "moveslist/listerror.h"
#include "moveslist/usercontrol1.h"

#include <QFile>
#include <QPluginLoader>
#include <QUiLoader>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <gtest/gtest.h>

#include <memory>

namespace {

using Settings = std::vector<std::pair<const char*, QVariant>>;

void expectSettings(const QObject& list, const Settings& settings)
{
    for (const auto& [name, value] : settings)
        EXPECT_EQ(list.property(name), value) << name;
}

} // namespace

// Designer's widget box offers "Tavok list" in the group "Tavok"; a new one on a form
// has the stored properties at the defaults of a block without them.
TEST(DesignerPlugin, OffersTheListWithItsStoredDefaults)
{
    QPluginLoader loader(QStringLiteral(TAVOK_DESIGNER_PLUGIN));
    auto* plugin = qobject_cast<QDesignerCustomWidgetInterface*>(loader.instance());
    ASSERT_NE(plugin, nullptr) << loader.errorString().toStdString();
    EXPECT_EQ(plugin->name(), QStringLiteral("UserControl1"));
    EXPECT_EQ(plugin->group(), QStringLiteral("Tavok"));
    EXPECT_TRUE(plugin->domXml().contains(QLatin1String("displayname=\"Tavok list\"")));
    const std::unique_ptr<QWidget> made(plugin->createWidget(nullptr));
    expectSettings(*made, {{"Enabled", false},
                           {"ForeColor", int(0x80000008)},
                           {"GridLines", false},
                           {"BorderStyle", 1},
                           {"DropDownHeight", 0},
                           {"Mode", 0},
                           {"RowHeight", 0},
                           {"DrawStyle", 0},
                           {"BackColor", int(0x8000000F)},
                           {"GridColor", 0},
                           {"ToolTip", false}});
    // What Designer's property editor may type beyond the control's range leaves the
    // property as it was.
    made->setProperty("RowHeight", 300);
    made->setProperty("RowHeight", 0);
    made->setProperty("BorderStyle", 2);
    expectSettings(*made, {{"RowHeight", 300}, {"BorderStyle", 1}});
    // A row height kept from a refused write too large for a whole number reads as 0.
    auto* list = qobject_cast<UserControl1*>(made.get());
    ASSERT_NE(list, nullptr);
    EXPECT_THROW(list->RowHeight(1e10), ListError);
    EXPECT_EQ(made->property("RowHeight"), 0);
}

TEST(DesignerPlugin, AFormSavedWithTheListLoadsWithItsSettings)
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QStringLiteral(TAVOK_DESIGNER_PLUGINS));
    QFile form(QStringLiteral(TAVOK_DESIGNER_FORM));
    ASSERT_TRUE(form.open(QIODevice::ReadOnly));
    const std::unique_ptr<QWidget> top(loader.load(&form));
    ASSERT_NE(top, nullptr) << loader.errorString().toStdString();
    auto* list = top->findChild<UserControl1*>(QStringLiteral("movesList"));
    ASSERT_NE(list, nullptr);
    EXPECT_FALSE(list->designTime());
    expectSettings(*list, {{"Enabled", true},
                           {"ForeColor", 255},
                           {"GridLines", true},
                           {"BorderStyle", 0},
                           {"DropDownHeight", 2000},
                           {"Mode", 1},
                           {"RowHeight", 300},
                           {"DrawStyle", 2},
                           {"BackColor", 0x00FFFFFF},
                           {"GridColor", 0x0000FF00},
                           {"ToolTip", true}});
}
