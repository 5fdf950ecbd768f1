#include "qtvariantproperty.h"

#include "dialogvalueeditor_p.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFontDialog>
#include <QHash>
#include <QKeySequenceEdit>
#include <QLineEdit>
#include <QPointer>
#include <QSpinBox>

#include <functional>

using CcPropertyBrowserDetail::DialogValueEditor;

namespace {

// A check box filling the value cell: a click anywhere in the cell toggles it, not only
// on the box or its text.
class CellCheckBox : public QCheckBox
{
public:
    using QCheckBox::QCheckBox;

protected:
    bool hitButton(const QPoint &pos) const override { return rect().contains(pos); }
};

} // namespace

// An editor made by the factory stays bound to its property: it shows every new value and
// attribute of it, and writes what the user enters through the manager.
class QtVariantEditorFactoryPrivate
{
public:
    struct Binding
    {
        QtProperty *property = nullptr;
        std::function<void(const QVariant &)> showValue;
        std::function<void()> showAttributes;
    };

    void bind(QWidget *editor, QtProperty *property,
              std::function<void(const QVariant &)> showValue,
              std::function<void()> showAttributes = {});
    void unbind(QWidget *editor);
    void commit(QWidget *editor, const QVariant &value);

    void valueChanged(QtProperty *property, const QVariant &value);
    void attributeChanged(QtProperty *property);
    void propertyDestroyed(QtProperty *property);

    QWidget *createBoolEditor(QtVariantProperty *property, QWidget *parent);
    QWidget *createIntEditor(QtVariantProperty *property, QWidget *parent);
    QWidget *createDoubleEditor(QtVariantProperty *property, QWidget *parent);
    QWidget *createStringEditor(QtVariantProperty *property, QWidget *parent);
    QWidget *createEnumEditor(QtVariantProperty *property, QWidget *parent);
    QWidget *createKeySequenceEditor(QtVariantProperty *property, QWidget *parent);
    QWidget *createColorEditor(QtVariantProperty *property, QWidget *parent);
    QWidget *createFontEditor(QtVariantProperty *property, QWidget *parent);

    QtVariantEditorFactory *q_ptr = nullptr;
    QHash<QWidget *, Binding> m_bindings;
    QHash<QtProperty *, QList<QWidget *>> m_propertyEditors;
    QHash<QtVariantPropertyManager *, QList<QMetaObject::Connection>> m_managerConnections;
};

void QtVariantEditorFactoryPrivate::bind(QWidget *editor, QtProperty *property,
                                         std::function<void(const QVariant &)> showValue,
                                         std::function<void()> showAttributes)
{
    editor->setAutoFillBackground(true);
    m_bindings.insert(editor, {property, std::move(showValue), std::move(showAttributes)});
    m_propertyEditors[property].append(editor);
    QObject::connect(editor, &QObject::destroyed, q_ptr, [this, editor] { unbind(editor); });
}

void QtVariantEditorFactoryPrivate::unbind(QWidget *editor)
{
    // Only the address is used: the editor may be half destroyed.
    auto binding = m_bindings.find(editor);
    if (binding == m_bindings.end())
        return;
    auto editors = m_propertyEditors.find(binding->property);
    if (editors != m_propertyEditors.end()) {
        editors->removeOne(editor);
        if (editors->isEmpty())
            m_propertyEditors.erase(editors);
    }
    m_bindings.erase(binding);
}

void QtVariantEditorFactoryPrivate::commit(QWidget *editor, const QVariant &value)
{
    const Binding binding = m_bindings.value(editor);
    if (!binding.property)
        return;
    if (QtVariantPropertyManager *manager = q_ptr->propertyManager(binding.property))
        manager->setValue(binding.property, value);
}

void QtVariantEditorFactoryPrivate::valueChanged(QtProperty *property, const QVariant &value)
{
    const QList<QWidget *> editors = m_propertyEditors.value(property);
    for (QWidget *editor : editors) {
        const Binding binding = m_bindings.value(editor);
        if (binding.showValue) {
            const QSignalBlocker blocker(editor);
            binding.showValue(value);
        }
    }
}

void QtVariantEditorFactoryPrivate::attributeChanged(QtProperty *property)
{
    QtVariantPropertyManager *manager = q_ptr->propertyManager(property);
    if (!manager)
        return;
    const QList<QWidget *> editors = m_propertyEditors.value(property);
    for (QWidget *editor : editors) {
        const Binding binding = m_bindings.value(editor);
        const QSignalBlocker blocker(editor);
        if (binding.showAttributes)
            binding.showAttributes();
        if (binding.showValue)
            binding.showValue(manager->value(property));
    }
}

void QtVariantEditorFactoryPrivate::propertyDestroyed(QtProperty *property)
{
    // The editors may outlive the property for a moment (their view deletes them later);
    // from now on they write nowhere.
    const QList<QWidget *> editors = m_propertyEditors.take(property);
    for (QWidget *editor : editors)
        m_bindings.remove(editor);
}

QWidget *QtVariantEditorFactoryPrivate::createBoolEditor(QtVariantProperty *property,
                                                         QWidget *parent)
{
    auto *editor = new CellCheckBox(parent);
    auto show = [editor, property](const QVariant &value) {
        editor->setChecked(value.toBool());
        editor->setText(property->valueText());
    };
    show(property->value());
    bind(editor, property, show);
    QObject::connect(editor, &QCheckBox::toggled, q_ptr,
                     [this, editor](bool checked) { commit(editor, checked); });
    return editor;
}

QWidget *QtVariantEditorFactoryPrivate::createIntEditor(QtVariantProperty *property,
                                                        QWidget *parent)
{
    auto *editor = new QSpinBox(parent);
    editor->setKeyboardTracking(false);
    auto showAttributes = [editor, property] {
        editor->setRange(property->attributeValue(QStringLiteral("minimum")).toInt(),
                         property->attributeValue(QStringLiteral("maximum")).toInt());
        editor->setSingleStep(property->attributeValue(QStringLiteral("singleStep")).toInt());
    };
    auto show = [editor](const QVariant &value) { editor->setValue(value.toInt()); };
    showAttributes();
    show(property->value());
    bind(editor, property, show, showAttributes);
    QObject::connect(editor, QOverload<int>::of(&QSpinBox::valueChanged), q_ptr,
                     [this, editor](int value) { commit(editor, value); });
    return editor;
}

QWidget *QtVariantEditorFactoryPrivate::createDoubleEditor(QtVariantProperty *property,
                                                           QWidget *parent)
{
    auto *editor = new QDoubleSpinBox(parent);
    editor->setKeyboardTracking(false);
    auto showAttributes = [editor, property] {
        editor->setDecimals(property->attributeValue(QStringLiteral("decimals")).toInt());
        editor->setRange(property->attributeValue(QStringLiteral("minimum")).toDouble(),
                         property->attributeValue(QStringLiteral("maximum")).toDouble());
        editor->setSingleStep(property->attributeValue(QStringLiteral("singleStep")).toDouble());
    };
    auto show = [editor](const QVariant &value) { editor->setValue(value.toDouble()); };
    showAttributes();
    show(property->value());
    bind(editor, property, show, showAttributes);
    QObject::connect(editor, QOverload<double>::of(&QDoubleSpinBox::valueChanged), q_ptr,
                     [this, editor](double value) { commit(editor, value); });
    return editor;
}

QWidget *QtVariantEditorFactoryPrivate::createStringEditor(QtVariantProperty *property,
                                                           QWidget *parent)
{
    auto *editor = new QLineEdit(parent);
    auto show = [editor](const QVariant &value) {
        if (editor->text() != value.toString())
            editor->setText(value.toString());
    };
    show(property->value());
    bind(editor, property, show);
    // Written when the user is done (Enter, or leaving the field), not on every key.
    QObject::connect(editor, &QLineEdit::editingFinished, q_ptr,
                     [this, editor] { commit(editor, editor->text()); });
    return editor;
}

QWidget *QtVariantEditorFactoryPrivate::createEnumEditor(QtVariantProperty *property,
                                                         QWidget *parent)
{
    auto *editor = new QComboBox(parent);
    editor->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    editor->setMinimumContentsLength(1);
    auto showAttributes = [editor, property] {
        editor->clear();
        const QStringList names =
                property->attributeValue(QStringLiteral("enumNames")).toStringList();
        const QtIconMap icons =
                property->attributeValue(QStringLiteral("enumIcons")).value<QtIconMap>();
        for (int i = 0; i < names.size(); ++i)
            editor->addItem(icons.value(i), names.at(i));
    };
    auto show = [editor](const QVariant &value) { editor->setCurrentIndex(value.toInt()); };
    showAttributes();
    show(property->value());
    bind(editor, property, show, showAttributes);
    QObject::connect(editor, QOverload<int>::of(&QComboBox::currentIndexChanged), q_ptr,
                     [this, editor](int index) {
                         if (index >= 0)
                             commit(editor, index);
                     });
    return editor;
}

QWidget *QtVariantEditorFactoryPrivate::createKeySequenceEditor(QtVariantProperty *property,
                                                                QWidget *parent)
{
    auto *editor = new QKeySequenceEdit(parent);
    auto show = [editor](const QVariant &value) {
        editor->setKeySequence(value.value<QKeySequence>());
    };
    show(property->value());
    bind(editor, property, show);
    QObject::connect(editor, &QKeySequenceEdit::editingFinished, q_ptr, [this, editor] {
        commit(editor, QVariant::fromValue(editor->keySequence()));
    });
    return editor;
}

// The dialog is a child of the editor, so that the view does not take the dialog's focus
// for the end of the edit and close the editor under it. The value is written through the
// manager directly: the editor may be gone by the time the dialog returns.
template<class AskForValue>
static void connectDialog(DialogValueEditor *editor, QtVariantProperty *property,
                          QtVariantEditorFactory *factory, AskForValue askForValue)
{
    QObject::connect(editor, &DialogValueEditor::buttonClicked, factory,
                     [editor, property, factory, askForValue] {
                         QPointer<QtVariantPropertyManager> manager =
                                 factory->propertyManager(property);
                         if (!manager)
                             return;
                         const QVariant value = askForValue(editor, property->value());
                         if (value.isValid() && manager && manager->properties().contains(property))
                             manager->setValue(property, value);
                     });
}

QWidget *QtVariantEditorFactoryPrivate::createColorEditor(QtVariantProperty *property,
                                                          QWidget *parent)
{
    auto *editor = new DialogValueEditor(parent);
    auto show = [editor, property](const QVariant &) {
        editor->setValue(property->valueIcon(), property->valueText());
    };
    show(property->value());
    bind(editor, property, show);
    connectDialog(editor, property, q_ptr, [](QWidget *dialogParent, const QVariant &current) {
        const QColor color = QColorDialog::getColor(current.value<QColor>(), dialogParent,
                                                    QtVariantEditorFactory::tr("Select Color"),
                                                    QColorDialog::ShowAlphaChannel);
        return color.isValid() ? QVariant(color) : QVariant();
    });
    return editor;
}

QWidget *QtVariantEditorFactoryPrivate::createFontEditor(QtVariantProperty *property,
                                                         QWidget *parent)
{
    auto *editor = new DialogValueEditor(parent);
    auto show = [editor, property](const QVariant &) {
        editor->setValue(property->valueIcon(), property->valueText());
    };
    show(property->value());
    bind(editor, property, show);
    connectDialog(editor, property, q_ptr, [](QWidget *dialogParent, const QVariant &current) {
        bool ok = false;
        const QFont font = QFontDialog::getFont(&ok, current.value<QFont>(), dialogParent,
                                                QtVariantEditorFactory::tr("Select Font"));
        return ok ? QVariant(font) : QVariant();
    });
    return editor;
}

QtVariantEditorFactory::QtVariantEditorFactory(QObject *parent)
    : QtAbstractEditorFactory<QtVariantPropertyManager>(parent),
      d_ptr(new QtVariantEditorFactoryPrivate)
{
    d_ptr->q_ptr = this;
}

QtVariantEditorFactory::~QtVariantEditorFactory()
{
    // Editors still open write nowhere once the factory is gone.
    const QList<QWidget *> editors = d_ptr->m_bindings.keys();
    for (QWidget *editor : editors)
        QObject::disconnect(editor, nullptr, this, nullptr);
}

void QtVariantEditorFactory::connectPropertyManager(QtVariantPropertyManager *manager)
{
    QtVariantEditorFactoryPrivate *d = d_ptr.data();
    d->m_managerConnections.insert(
            manager,
            {
                    connect(manager, &QtVariantPropertyManager::valueChanged, this,
                            [d](QtProperty *property, const QVariant &value) {
                                d->valueChanged(property, value);
                            }),
                    connect(manager, &QtVariantPropertyManager::attributeChanged, this,
                            [d](QtProperty *property) { d->attributeChanged(property); }),
                    connect(manager, &QtAbstractPropertyManager::propertyDestroyed, this,
                            [d](QtProperty *property) { d->propertyDestroyed(property); }),
            });
}

void QtVariantEditorFactory::disconnectPropertyManager(QtVariantPropertyManager *manager)
{
    const QList<QMetaObject::Connection> connections = d_ptr->m_managerConnections.take(manager);
    for (const QMetaObject::Connection &connection : connections)
        disconnect(connection);
    // Editors of that manager's properties stop writing to it.
    const QList<QtProperty *> properties = d_ptr->m_propertyEditors.keys();
    for (QtProperty *property : properties) {
        if (property->propertyManager() == manager)
            d_ptr->propertyDestroyed(property);
    }
}

QWidget *QtVariantEditorFactory::createEditor(QtVariantPropertyManager *manager,
                                              QtProperty *property, QWidget *parent)
{
    QtVariantProperty *variantProperty = manager->variantProperty(property);
    if (!variantProperty)
        return nullptr;
    using Create = QWidget *(QtVariantEditorFactoryPrivate::*)(QtVariantProperty *, QWidget *);
    static const QHash<int, Create> creators = {
            {QMetaType::Bool, &QtVariantEditorFactoryPrivate::createBoolEditor},
            {QMetaType::Int, &QtVariantEditorFactoryPrivate::createIntEditor},
            {QMetaType::Double, &QtVariantEditorFactoryPrivate::createDoubleEditor},
            {QMetaType::QString, &QtVariantEditorFactoryPrivate::createStringEditor},
            {QMetaType::QKeySequence, &QtVariantEditorFactoryPrivate::createKeySequenceEditor},
            {QMetaType::QColor, &QtVariantEditorFactoryPrivate::createColorEditor},
            {QMetaType::QFont, &QtVariantEditorFactoryPrivate::createFontEditor},
            {QtVariantPropertyManager::enumTypeId(),
             &QtVariantEditorFactoryPrivate::createEnumEditor},
    };
    const Create create = creators.value(manager->propertyType(property));
    return create ? (d_ptr.data()->*create)(variantProperty, parent) : nullptr;
}
