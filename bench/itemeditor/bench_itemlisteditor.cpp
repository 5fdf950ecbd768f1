// Times an item list editor with 10,000 items (fill, set up, select 100 rows in turn) against
// filling a bare QListWidget with the same items, both measured in this run. Prints the
// medians of several repetitions and their ratio.

#include "designertestcore.h"

#include "designerpropertymanager.h"
#include "itemlisteditor.h"

#include <QtDesigner/private/qdesigner_utils_p.h>

#include <QApplication>
#include <QDesignerFormWindowInterface>
#include <QElapsedTimer>
#include <QListWidget>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

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

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// Milliseconds of one run of work, including the layout and paint it causes.
double timeIt(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    QApplication::processEvents();
    return timer.nsecsElapsed() / 1e6;
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

    std::vector<double> bare, editorFill, editorSetup, editorSelect, editorTotal;
    for (int r = 0; r < repetitions; ++r) {
        {
            QListWidget list;
            list.resize(300, 300);
            list.show();
            bare.push_back(timeIt([&] { fill(&list); }));
        }
        {
            ItemListEditor editor(form, nullptr);
            editor.setPropertyBrowserVisible(true);
            editor.show();
            QApplication::processEvents();
            const double f = timeIt([&] { fill(editor.listWidget()); });
            const double s = timeIt([&] { editor.setupEditor(object, itemProperties); });
            const double c = timeIt([&] {
                for (int row = 0; row < selectedRows; ++row)
                    editor.listWidget()->setCurrentRow(row);
            });
            editorFill.push_back(f);
            editorSetup.push_back(s);
            editorSelect.push_back(c);
            editorTotal.push_back(f + s + c);
        }
    }
    const double baseline = median(bare);
    std::printf("item list editor, %d items, %d repetitions (medians, ms)\n", itemCount,
                repetitions);
    std::printf("  bare QListWidget fill        %8.2f\n", baseline);
    std::printf("  editor fill                  %8.2f\n", median(editorFill));
    std::printf("  editor setupEditor           %8.2f\n", median(editorSetup));
    std::printf("  editor select %d rows       %8.2f\n", selectedRows, median(editorSelect));
    std::printf("  editor total                 %8.2f\n", median(editorTotal));
    std::printf("ratio editor total / bare fill: %.2f (target <= 2.00)\n",
                median(editorTotal) / baseline);
    CcTest::closeFormWindow(form);
    return 0;
}
