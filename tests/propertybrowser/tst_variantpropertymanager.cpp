// The variant property manager on its own: values and their texts, compound values and
// their sub-properties, attributes, and the property tree.

#include "qtcompat.h"
#include "qtvariantproperty.h"

#include <QtWidgets>
#include <QtTest>

namespace {

// Counts the properties made through addProperty(), as a subclass adding types sees them.
class CountingManager : public QtVariantPropertyManager
{
public:
    QtVariantProperty *addProperty(int propertyType, const QString &name = QString()) override
    {
        ++made[propertyType];
        return QtVariantPropertyManager::addProperty(propertyType, name);
    }
    QHash<int, int> made;
};

QtVariantProperty *sub(QtVariantProperty *parent, int index)
{
    auto *manager = static_cast<QtVariantPropertyManager *>(parent->propertyManager());
    return manager->variantProperty(parent->subProperties().at(index));
}

QStringList names(const QList<QtProperty *> &properties)
{
    QStringList result;
    for (const QtProperty *property : properties)
        result.append(property->propertyName());
    return result;
}

} // namespace

class TestVariantPropertyManager : public QObject
{
    Q_OBJECT
private slots:
    void valuesAndTexts()
    {
        QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        policy.setHorizontalStretch(3);
        const struct
        {
            int type;
            QVariant value;
            QString text;
            bool icon;
        } cases[] = {
                {QMetaType::Int, -42, "-42", false},
                {QMetaType::QColor, QColor(255, 10, 0, 128), "[255, 10, 0] (128)", true},
                {QMetaType::QRect, QRect(1, 2, 30, 40), "[(1, 2), 30 x 40]", false},
                {QMetaType::QSizePolicy, policy, "[Expanding, Fixed, 3, 0]", false},
                {QMetaType::Int, QStringLiteral("17"), "17", false}, // converted
        };
        QtVariantPropertyManager manager;
        for (const auto &c : cases) {
            QtVariantProperty *property = manager.addProperty(c.type);
            property->setValue(c.value);
            QCOMPARE(property->valueText(), c.text);
            QCOMPARE(!property->valueIcon().isNull(), c.icon);
            QCOMPARE(property->value().userType(), c.type);
        }
    }

    void changes()
    {
        QtVariantPropertyManager manager;
        QtVariantProperty *text = manager.addProperty(QMetaType::QString);
        int changes = 0;
        connect(&manager, &QtVariantPropertyManager::valueChanged, this, [&changes] { ++changes; });
        text->setValue(QStringLiteral("a"));
        text->setValue(QVariant::fromValue(QSize(1, 2))); // cannot become a string
        QCOMPARE(changes, 1);
        QCOMPARE(text->value(), QVariant(QStringLiteral("a")));

        QVERIFY(!manager.addProperty(QMetaType::QUrl));
        QtVariantProperty *group = manager.addProperty(QtVariantPropertyManager::groupTypeId());
        group->setValue(5);
        QVERIFY(!group->value().isValid());

        // A font equal in every attribute but set differently is a change: what a font sets
        // decides what is written to a form.
        QtVariantProperty *fontProperty = manager.addProperty(QMetaType::QFont);
        QFont explicitFont = fontProperty->value().value<QFont>();
        explicitFont.setBold(explicitFont.bold());
        changes = 0;
        fontProperty->setValue(explicitFont);
        QCOMPARE(changes, 1);
        QCOMPARE(CcQt::fontResolveMask(fontProperty->value().value<QFont>()),
                 CcQt::fontResolveMask(explicitFont));
    }

    void compoundValues()
    {
        // A subclass sees every sub-property made, through its own addProperty().
        CountingManager manager;
        QtVariantProperty *font = manager.addProperty(QMetaType::QFont, QStringLiteral("font"));
        QCOMPARE(manager.made.value(QMetaType::Bool), 5);
        QCOMPARE(names(font->subProperties()),
                 QStringList({"Family", "Point Size", "Bold", "Italic", "Underline", "Strikeout",
                              "Kerning"}));
        QFont value;
        value.setFamily(QStringLiteral("NoSuchFamilyAnywhere"));
        value.setUnderline(true);
        font->setValue(value);
        QCOMPARE(sub(font, 0)->valueText(), QStringLiteral("NoSuchFamilyAnywhere"));

        // Each sub-property edit is one change of the font, and marks what it sets.
        int fontChanges = 0;
        connect(&manager, &QtVariantPropertyManager::valueChanged, this,
                [&](QtProperty *property) { fontChanges += property == font; });
        sub(font, 3)->setValue(true);
        QCOMPARE(fontChanges, 1);
        value = font->value().value<QFont>();
        QVERIFY(value.italic());
        QVERIFY(value.underline());
        QVERIFY(CcQt::fontResolveMask(value) & QFont::StyleResolved);
        const QStringList families =
                sub(font, 0)->attributeValue(QStringLiteral("enumNames")).toStringList();
        const int other = families.indexOf(QStringLiteral("NoSuchFamilyAnywhere")) == 0 ? 1 : 0;
        sub(font, 0)->setValue(other);
        QCOMPARE(font->value().value<QFont>().family(), families.value(other));

        QtVariantProperty *flags = manager.addProperty(QtVariantPropertyManager::flagTypeId());
        flags->setAttribute(QStringLiteral("flagNames"), QStringList({"A", "B", "C"}));
        flags->setValue(5);
        QCOMPARE(flags->valueText(), QStringLiteral("A|C"));
        // Fewer names: fewer sub-properties, and the value keeps only the named bits.
        flags->setAttribute(QStringLiteral("flagNames"), QStringList({"X", "Y"}));
        QCOMPARE(names(flags->subProperties()), QStringList({"X", "Y"}));
        QCOMPARE(flags->value().toInt(), 1);
        sub(flags, 1)->setValue(true);
        QCOMPARE(flags->value().toInt(), 3);

        // Deleting a compound value deletes the sub-properties it made.
        const int before = manager.properties().size();
        delete font;
        QCOMPARE(manager.properties().size(), before - 8);
    }

    void attributes()
    {
        QtVariantPropertyManager manager;
        QtVariantProperty *state = manager.addProperty(QtVariantPropertyManager::enumTypeId());
        QCOMPARE(state->value().toInt(), -1);
        state->setAttribute(QStringLiteral("enumNames"), QStringList({"Off", "Partly", "On"}));
        QCOMPARE(state->valueText(), QStringLiteral("Off"));
        state->setValue(2);
        state->setValue(3); // no such entry
        QCOMPARE(state->valueText(), QStringLiteral("On"));
        QPixmap red(8, 8);
        red.fill(Qt::red);
        state->setAttribute(QStringLiteral("enumIcons"),
                            QVariant::fromValue(QtIconMap({{2, red}})));
        QVERIFY(!state->valueIcon().isNull());
        state->setAttribute(QStringLiteral("enumNames"), QStringList({"Only"})); // pulls into range
        QCOMPARE(state->valueText(), QStringLiteral("Only"));

        QtVariantProperty *count = manager.addProperty(QMetaType::Int);
        count->setValue(50);
        count->setAttribute(QStringLiteral("maximum"), 10);
        QCOMPARE(count->value().toInt(), 10);
        count->setAttribute(QStringLiteral("minimum"), 20); // drags the maximum along
        QCOMPARE(count->attributeValue(QStringLiteral("maximum")).toInt(), 20);
        int attributeChanges = 0;
        connect(&manager, &QtVariantPropertyManager::attributeChanged, this,
                [&attributeChanges] { ++attributeChanges; });
        count->setAttribute(QStringLiteral("nonsense"), 1);
        count->setAttribute(QStringLiteral("singleStep"), QVariant::fromValue(QSize(1, 1)));
        QCOMPARE(attributeChanges, 0);

        QtVariantProperty *ratio = manager.addProperty(QMetaType::Double);
        ratio->setAttribute(QStringLiteral("decimals"), 4);
        ratio->setValue(2.0 / 3.0);
        QCOMPARE(ratio->valueText(), QStringLiteral("0.6667"));
    }

    void propertyTree()
    {
        auto *manager = new QtVariantPropertyManager;
        auto add = [manager](const char *name) {
            return manager->addProperty(QtVariantPropertyManager::groupTypeId(),
                                        QLatin1String(name));
        };
        QtVariantProperty *group = add("group");
        QtVariantProperty *a = add("a");
        QtVariantProperty *b = add("b");
        QtVariantProperty *c = add("c");
        group->addSubProperty(a);
        group->addSubProperty(c);
        group->insertSubProperty(b, a);
        group->insertSubProperty(c, nullptr); // already there: no second place
        a->addSubProperty(group); // no property may end up inside itself
        group->addSubProperty(group);
        QCOMPARE(group->subProperties(), QList<QtProperty *>({a, b, c}));
        QVERIFY(a->subProperties().isEmpty());

        delete group; // leaves its children alone
        QCOMPARE(manager->properties(), QSet<QtProperty *>({a, b, c}));
        manager->addProperty(QMetaType::QFont);
        manager->clear();
        QVERIFY(manager->properties().isEmpty());
        manager->addProperty(QMetaType::QFont);
        delete manager; // deletes the properties it still has
    }
};

QTEST_MAIN(TestVariantPropertyManager)
#include "tst_variantpropertymanager.moc"
