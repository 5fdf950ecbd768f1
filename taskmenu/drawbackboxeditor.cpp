#include "drawbackboxeditor.h"

#include "designerpropertymanager.h"
#include "itemlisteditor.h"
#include "pagetitle.h"

#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>

#include <QtDesigner/private/qdesigner_utils_p.h>
#include <QtDesigner/private/qdesigner_widget_p.h>

#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowInterface>
#include <QDesignerMetaDataBaseInterface>

using qdesigner_internal::DesignerPropertyManager;
using qdesigner_internal::PropertyDefinition;

namespace {

constexpr auto stringType = &DesignerPropertyManager::designerStringTypeId;

// Tool tip and data are offered as on the option editors, though only titles are applied.
const PropertyDefinition pageProperties[] = {{ItemRoles::Text, 0, stringType, "text"},
                                             {ItemRoles::ToolTip, 0, stringType, "tooltip"},
                                             {ItemRoles::Data, 0, stringType, "data"},
                                             {0, 0, nullptr, nullptr}};

// A page's title as Designer keeps it: the page's "windowTitle" in its property sheet, with
// how it is marked for translation; the plain title where the page has no sheet.
QVariant titleOf(QDesignerFormWindowInterface *form, VoCc::DrawbackBoxGroup *group, int index)
{
    const QVariant value = PageTitle::read(form, group->widget(index));
    using qdesigner_internal::PropertySheetStringValue;
    if (value.canConvert<PropertySheetStringValue>()
        && qvariant_cast<PropertySheetStringValue>(value).value() == group->pageTitle(index))
        return value;
    return designerString(group->pageTitle(index));
}

} // namespace

DrawbackBoxEditor::DrawbackBoxEditor(QDesignerFormWindowInterface *form, QWidget *parent)
    : ListItemDialog(form, parent), m_formWindow(form)
{ }

PageGroupContents DrawbackBoxEditor::loadFromWidget(VoCc::DrawbackBoxGroup *group)
{
    m_group = group;
    m_loaded = PageGroupContents();
    m_initialOrder.clear();
    for (int i = 0; i < group->count(); ++i) {
        ItemRecord record;
        if (!group->pageTitle(i).isEmpty())
            record.insert(ItemRoles::Text, titleOf(m_formWindow, group, i));
        m_loaded.items.append(record);
        m_loaded.pages.append(group->box(i));
        m_initialOrder.append(i);
    }
    m_currentOrder = m_initialOrder;
    m_lastId = qMax(0, group->count() - 1);

    qdesigner_internal::ItemListEditor *editor = itemListEditor();
    connect(editor, SIGNAL(itemMovedUp(int)), this, SLOT(itemMoveUp(int)));
    connect(editor, SIGNAL(itemMovedDown(int)), this, SLOT(itemMoveDown(int)));
    connect(editor, SIGNAL(itemInserted(int)), this, SLOT(itemInsert(int)));
    connect(editor, SIGNAL(itemDeleted(int)), this, SLOT(itemDelete(int)));
    fillList(m_loaded.items, group, pageProperties);
    return m_loaded;
}

PageGroupContents DrawbackBoxEditor::contents() const
{
    PageGroupContents result;
    result.items = readList();
    for (const int id : m_currentOrder) {
        if (m_initialOrder.contains(id))
            result.pages.append(m_loaded.pages.value(id));
        else
            result.pages.append(makePage());
    }
    return result;
}

VoCc::DrawbackBox *DrawbackBoxEditor::makePage() const
{
    if (!m_group || !m_formWindow)
        return nullptr;
    // The box waits hidden on the group: it becomes a page when the change is applied and
    // goes back to waiting when it is undone.
    auto *box = new VoCc::DrawbackBox(m_group);
    box->hide();
    auto *page = new QDesignerWidget(m_formWindow, box);
    page->setObjectName(QStringLiteral("page"));
    // In the form's tree already, so several new pages get names distinct from each other.
    m_formWindow->ensureUniqueObjectName(page);
    page->setWindowTitle(QStringLiteral("test"));
    m_formWindow->core()->metaDataBase()->add(page);
    box->setWidget(page);
    return box;
}

void DrawbackBoxEditor::itemMoveUp(int row) { m_currentOrder.swapItemsAt(row, row - 1); }

void DrawbackBoxEditor::itemMoveDown(int row) { m_currentOrder.swapItemsAt(row, row + 1); }

void DrawbackBoxEditor::itemInsert(int row)
{
    // An id no page of this edit ever had, deleted ones included, so that a new row always
    // becomes a new page (an empty group's first new row gets 1).
    m_currentOrder.insert(row, ++m_lastId);
}

void DrawbackBoxEditor::itemDelete(int row) { m_currentOrder.removeAt(row); }
