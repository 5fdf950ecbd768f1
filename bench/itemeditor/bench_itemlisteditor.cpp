// Times an item list editor with 10,000 items (fill, set up, select 100 rows in turn) against
// filling a bare QListWidget with the same items, both measured in this run. Prints the
// medians of several repetitions and their ratio.

#include "benchsupport.h"
#include "designertestcore.h"

#include "designerpropertymanager.h"
#include "itemlisteditor.h"

#include <QtDesigner/private/qdesigner_utils_p.h>

#include <QApplication>
#include <QDesignerFormWindowInterface>
#include <QListWidget>
#include <cstdio>

using namespace qdesigner_internal;

namespace {

const int itemCount = 10000;
const int selectedRows = 100;
const int repetitions = 7;

const PropertyDefinition itemProperties[] = {
        {Qt::DisplayPropertyRole, 0, DesignerPropertyManager::designerStringTypeId, "text"},
        {Qt::DecorationPropertyRole, 0, DesignerPropertyManager::designerIconTypeId, "icon"},
        {Qt::ToolTipPropertyRole, 0, DesignerPropertyManager::designerStringTypeId, "toolTip"},
        {0, 0, nullptr, nullptr}};

// The items a list editor's owner makes from a widget's entries.
void fill(QListWidget *list)
{
    for (int i = 0; i < itemCount; ++i) {
        const QString text = QStringLiteral("Item %1").arg(i);
        auto *item = new QListWidgetItem(text);
        item->setData(Qt::DisplayPropertyRole, QVariant::fromValue(PropertySheetStringValue(text)));
        item->setFlags(item->flags() | Qt::ItemIsEditable);
        list->addItem(item);
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    CcTest::usePluginModulesOnly({});
    QDesignerFormWindowInterface *form = CcTest::createFormWindow(
            CcTest::formXml(QStringLiteral("  <widget class=\"QComboBox\" name=\"combo\"/>\n")));
    QWidget *object = form->mainContainer()->findChild<QWidget *>(QStringLiteral("combo"));

    QList<double> bare, editorFill, editorSetup, editorSelect, editorTotal;
    for (int r = 0; r < repetitions; ++r) {
        {
            QListWidget list;
            list.resize(300, 300);
            list.show();
            bare.append(Bench::timeIt([&] { fill(&list); }));
        }
        {
            ItemListEditor editor(form, nullptr);
            editor.setPropertyBrowserVisible(true);
            editor.show();
            QApplication::processEvents();
            const double f = Bench::timeIt([&] { fill(editor.listWidget()); });
            const double s = Bench::timeIt([&] { editor.setupEditor(object, itemProperties); });
            const double c = Bench::timeIt([&] {
                for (int row = 0; row < selectedRows; ++row)
                    editor.listWidget()->setCurrentRow(row);
            });
            editorFill.append(f);
            editorSetup.append(s);
            editorSelect.append(c);
            editorTotal.append(f + s + c);
        }
    }
    const double baseline = Bench::median(bare);
    std::printf("item list editor, %d items, %d repetitions (medians, ms)\n", itemCount,
                repetitions);
    std::printf("  bare QListWidget fill        %8.2f\n", baseline);
    std::printf("  editor fill                  %8.2f\n", Bench::median(editorFill));
    std::printf("  editor setupEditor           %8.2f\n", Bench::median(editorSetup));
    std::printf("  editor select %d rows       %8.2f\n", selectedRows, Bench::median(editorSelect));
    std::printf("  editor total                 %8.2f\n", Bench::median(editorTotal));
    std::printf("ratio editor total / bare fill: %.2f (target <= 2.00)\n",
                Bench::median(editorTotal) / baseline);
    CcTest::closeFormWindow(form);
    return 0;
}
