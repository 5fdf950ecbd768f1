// The variant property manager on its own: values and their texts, compound values and
// their sub-properties, attributes, the property tree, and a subclass adding a type.

#include "propertymetatypes.h"
#include "qtvariantproperty.h"
#include "temperaturepropertymanager.h"

#include <QColor>
#include <QFont>
#include <QKeySequence>
#include <QSignalSpy>
#include <QSizePolicy>
#include <QTest>

class TestVariantPropertyManager : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { registerPropertyMetaTypes(); }
    void valuesAndTexts_data();
    void valuesAndTexts();
    void changeSignals();
    void fontSubProperties();
    void flagSubProperties();
    void enumProperties();
    void rangeAttributes();
    void compoundSubProperties();
    void propertyTree();
    void stateFlags();
    void managerLifetime();
    void subclassAddsType();
};

static QStringList names(const QList<QtProperty *> &properties)
{
    QStringList result;
    for (const QtProperty *property : properties)
        result.append(property->propertyName());
    return result;
}

void TestVariantPropertyManager::valuesAndTexts_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("bool") << int(QMetaType::Bool) << QVariant(true) << "True";
    QTest::newRow("int") << int(QMetaType::Int) << QVariant(-42) << "-42";
    QTest::newRow("double") << int(QMetaType::Double) << QVariant(3.14159) << "3.14";
    QTest::newRow("string") << int(QMetaType::QString) << QVariant(QStringLiteral("Hello"))
                            << "Hello";
    QTest::newRow("color") << int(QMetaType::QColor) << QVariant(QColor(255, 10, 0, 128))
                           << "[255, 10, 0] (128)";
    QTest::newRow("size") << int(QMetaType::QSize) << QVariant(QSize(10, 20)) << "10 x 20";
    QTest::newRow("point") << int(QMetaType::QPoint) << QVariant(QPoint(3, -4)) << "(3, -4)";
    QTest::newRow("rect") << int(QMetaType::QRect) << QVariant(QRect(1, 2, 30, 40))
                          << "[(1, 2), 30 x 40]";
    QTest::newRow("key sequence")
            << int(QMetaType::QKeySequence)
            << QVariant::fromValue(QKeySequence(Qt::CTRL | Qt::Key_S))
            << QKeySequence(Qt::CTRL | Qt::Key_S).toString(QKeySequence::NativeText);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    policy.setHorizontalStretch(3);
    QTest::newRow("size policy") << int(QMetaType::QSizePolicy) << QVariant::fromValue(policy)
                                 << "[Expanding, Fixed, 3, 0]";
    // Convertible values are taken in the property's own type.
    QTest::newRow("int from string")
            << int(QMetaType::Int) << QVariant(QStringLiteral("17")) << "17";
}

void TestVariantPropertyManager::valuesAndTexts()
{
    QFETCH(int, type);
    QFETCH(QVariant, value);
    QFETCH(QString, text);

    QtVariantPropertyManager manager;
    QVERIFY(manager.isPropertyTypeSupported(type));
    QtVariantProperty *property = manager.addProperty(type, QStringLiteral("p"));
    QVERIFY(property);
    QCOMPARE(property->propertyType(), type);
    QCOMPARE(property->valueType(), type);
    QCOMPARE(property->value().userType(), type);
    QCOMPARE(manager.variantProperty(property), property);

    property->setValue(value);
    QCOMPARE(property->valueText(), text);
    QVERIFY(property->hasValue());
    QVariant expected = value;
    QVERIFY(expected.convert(type));
    QCOMPARE(property->value(), expected);
}

void TestVariantPropertyManager::changeSignals()
{
    QtVariantPropertyManager manager;
    QtVariantProperty *property = manager.addProperty(QMetaType::QString, QStringLiteral("text"));
    QSignalSpy values(&manager, &QtVariantPropertyManager::valueChanged);
    QSignalSpy changes(&manager, &QtAbstractPropertyManager::propertyChanged);

    property->setValue(QStringLiteral("a"));
    QCOMPARE(values.count(), 1);
    QCOMPARE(values.at(0).at(0).value<QtProperty *>(), property);
    QCOMPARE(values.at(0).at(1).value<QVariant>(), QVariant(QStringLiteral("a")));
    QCOMPARE(changes.count(), 1);

    // The same value again changes nothing.
    property->setValue(QStringLiteral("a"));
    QCOMPARE(values.count(), 1);
    // A value that cannot become a string is refused.
    property->setValue(QVariant::fromValue(QSize(1, 2)));
    QCOMPARE(property->value().toString(), QStringLiteral("a"));
    QCOMPARE(values.count(), 1);

    // Unsupported types are not made, and the group type has no value.
    QVERIFY(!manager.addProperty(QMetaType::QUrl, QStringLiteral("url")));
    QtVariantProperty *group =
            manager.addProperty(QtVariantPropertyManager::groupTypeId(), QStringLiteral("group"));
    QVERIFY(group);
    QVERIFY(!group->hasValue());
    QCOMPARE(group->valueType(), int(QMetaType::UnknownType));
    group->setValue(5);
    QVERIFY(!group->value().isValid());

    // A font equal in every attribute but set differently is a change: what a font sets
    // decides what is written to a form.
    QtVariantProperty *fontProperty = manager.addProperty(QMetaType::QFont, QStringLiteral("font"));
    QFont font = fontProperty->value().value<QFont>();
    QFont explicitFont = font;
    explicitFont.setBold(font.bold());
    QVERIFY(explicitFont.resolve() != font.resolve());
    values.clear();
    fontProperty->setValue(explicitFont);
    QVERIFY(!values.isEmpty());
    QCOMPARE(fontProperty->value().value<QFont>().resolve(), explicitFont.resolve());
}

void TestVariantPropertyManager::fontSubProperties()
{
    QtVariantPropertyManager manager;
    QtVariantProperty *fontProperty = manager.addProperty(QMetaType::QFont, QStringLiteral("font"));
    const QList<QtProperty *> subs = fontProperty->subProperties();
    QCOMPARE(names(subs),
             QStringList({"Family", "Point Size", "Bold", "Italic", "Underline", "Strikeout",
                          "Kerning"}));
    auto sub = [&](int i) { return manager.variantProperty(subs.at(i)); };
    for (int i = 0; i < subs.size(); ++i)
        QVERIFY2(sub(i), "every sub-property is a variant property of the same manager");
    QCOMPARE(sub(0)->propertyType(), QtVariantPropertyManager::enumTypeId());
    QCOMPARE(sub(1)->propertyType(), int(QMetaType::Int));
    QCOMPARE(sub(2)->propertyType(), int(QMetaType::Bool));

    // Font to sub-properties.
    QFont font;
    font.setFamily(QStringLiteral("NoSuchFamilyAnywhere"));
    font.setPointSize(17);
    font.setBold(true);
    font.setUnderline(true);
    fontProperty->setValue(font);
    QCOMPARE(sub(0)->valueText(), QStringLiteral("NoSuchFamilyAnywhere"));
    QVERIFY(sub(0)->attributeValue(QStringLiteral("enumNames"))
                    .toStringList()
                    .contains(QStringLiteral("NoSuchFamilyAnywhere")));
    QCOMPARE(sub(1)->value().toInt(), 17);
    QCOMPARE(sub(2)->value().toBool(), true);
    QCOMPARE(sub(3)->value().toBool(), false);
    QCOMPARE(sub(4)->value().toBool(), true);
    QCOMPARE(fontProperty->valueText(), QStringLiteral("[NoSuchFamilyAnywhere, 17]"));

    // Sub-properties to font: each edit is one change of the font value.
    QSignalSpy values(&manager, &QtVariantPropertyManager::valueChanged);
    sub(3)->setValue(true);
    QFont changed = fontProperty->value().value<QFont>();
    QVERIFY(changed.italic());
    QVERIFY(changed.bold());
    QVERIFY(changed.resolve() & QFont::StyleResolved);
    int fontChanges = 0;
    for (const QList<QVariant> &signal : qAsConst(values))
        fontChanges += signal.at(0).value<QtProperty *>() == fontProperty;
    QCOMPARE(fontChanges, 1);

    sub(1)->setValue(9);
    QCOMPARE(fontProperty->value().value<QFont>().pointSize(), 9);
    sub(1)->setValue(0); // clamped to the smallest size
    QCOMPARE(fontProperty->value().value<QFont>().pointSize(), 1);
    sub(5)->setValue(true);
    QVERIFY(fontProperty->value().value<QFont>().strikeOut());
    sub(6)->setValue(false);
    QVERIFY(!fontProperty->value().value<QFont>().kerning());

    const QStringList families = sub(0)->attributeValue(QStringLiteral("enumNames")).toStringList();
    const int other = families.indexOf(QStringLiteral("NoSuchFamilyAnywhere")) == 0 ? 1 : 0;
    if (families.size() > 1) {
        sub(0)->setValue(other);
        QCOMPARE(fontProperty->value().value<QFont>().family(), families.at(other));
    }

    // Deleting the font deletes the sub-properties it made.
    QCOMPARE(manager.properties().size(), 8);
    delete fontProperty;
    QVERIFY(manager.properties().isEmpty());
}

void TestVariantPropertyManager::flagSubProperties()
{
    QtVariantPropertyManager manager;
    QtVariantProperty *flags =
            manager.addProperty(QtVariantPropertyManager::flagTypeId(), QStringLiteral("flags"));
    QCOMPARE(flags->valueType(), int(QMetaType::Int));
    QVERIFY(flags->subProperties().isEmpty());

    flags->setAttribute(QStringLiteral("flagNames"), QStringList({"A", "B", "C"}));
    QCOMPARE(names(flags->subProperties()), QStringList({"A", "B", "C"}));
    flags->setValue(5);
    QCOMPARE(flags->valueText(), QStringLiteral("A|C"));
    auto bit = [&](int i) { return manager.variantProperty(flags->subProperties().at(i)); };
    QCOMPARE(bit(0)->value().toBool(), true);
    QCOMPARE(bit(1)->value().toBool(), false);
    QCOMPARE(bit(2)->value().toBool(), true);

    bit(1)->setValue(true);
    QCOMPARE(flags->value().toInt(), 7);
    QCOMPARE(flags->valueText(), QStringLiteral("A|B|C"));
    bit(0)->setValue(false);
    QCOMPARE(flags->value().toInt(), 6);

    // Bits without a name are dropped.
    flags->setValue(0xff);
    QCOMPARE(flags->value().toInt(), 7);

    // Fewer names: fewer sub-properties, and the value keeps only the named bits.
    QSignalSpy removed(&manager, &QtAbstractPropertyManager::propertyRemoved);
    flags->setAttribute(QStringLiteral("flagNames"), QStringList({"X", "Y"}));
    QCOMPARE(names(flags->subProperties()), QStringList({"X", "Y"}));
    QCOMPARE(removed.count(), 3);
    QCOMPARE(flags->value().toInt(), 3);
    QCOMPARE(flags->valueText(), QStringLiteral("X|Y"));
    QCOMPARE(bit(1)->value().toBool(), true);
    QCOMPARE(manager.properties().size(), 3);
}

void TestVariantPropertyManager::enumProperties()
{
    QtVariantPropertyManager manager;
    QtVariantProperty *property =
            manager.addProperty(QtVariantPropertyManager::enumTypeId(), QStringLiteral("state"));
    QCOMPARE(property->valueType(), int(QMetaType::Int));
    QCOMPARE(property->value().toInt(), -1);
    QCOMPARE(property->valueText(), QString());

    QSignalSpy attributes(&manager, &QtVariantPropertyManager::attributeChanged);
    property->setAttribute(QStringLiteral("enumNames"),
                           QStringList({"Unchecked", "PartiallyChecked", "Checked"}));
    QCOMPARE(attributes.count(), 1);
    QCOMPARE(attributes.at(0).at(1).toString(), QStringLiteral("enumNames"));
    QCOMPARE(property->value().toInt(), 0);
    QCOMPARE(property->valueText(), QStringLiteral("Unchecked"));

    property->setValue(2);
    QCOMPARE(property->valueText(), QStringLiteral("Checked"));
    property->setValue(3); // no such entry
    QCOMPARE(property->value().toInt(), 2);
    property->setValue(-1);
    QCOMPARE(property->value().toInt(), 2);

    QtIconMap icons;
    QPixmap red(8, 8);
    red.fill(Qt::red);
    icons.insert(2, QIcon(red));
    property->setAttribute(QStringLiteral("enumIcons"), QVariant::fromValue(icons));
    QVERIFY(!property->valueIcon().isNull());
    property->setValue(1);
    QVERIFY(property->valueIcon().isNull());

    // Fewer names pull the value into range.
    property->setAttribute(QStringLiteral("enumNames"), QStringList({"Only"}));
    QCOMPARE(property->value().toInt(), 0);
    QCOMPARE(property->valueText(), QStringLiteral("Only"));
}

void TestVariantPropertyManager::rangeAttributes()
{
    QtVariantPropertyManager manager;
    QCOMPARE(manager.attributes(QMetaType::Int), QStringList({"minimum", "maximum", "singleStep"}));
    QCOMPARE(manager.attributeType(QMetaType::Int, QStringLiteral("maximum")), int(QMetaType::Int));
    QCOMPARE(manager.attributeType(QMetaType::Double, QStringLiteral("decimals")),
             int(QMetaType::Int));
    QCOMPARE(manager.attributeType(QtVariantPropertyManager::enumTypeId(),
                                   QStringLiteral("enumNames")),
             int(QMetaType::QStringList));
    QCOMPARE(manager.attributeType(QMetaType::Int, QStringLiteral("nonsense")),
             int(QMetaType::UnknownType));
    QVERIFY(manager.attributes(QMetaType::QString).isEmpty()
            || !manager.attributes(QMetaType::QString).contains(QStringLiteral("minimum")));

    QtVariantProperty *property = manager.addProperty(QMetaType::Int, QStringLiteral("count"));
    property->setValue(50);
    QSignalSpy values(&manager, &QtVariantPropertyManager::valueChanged);
    QSignalSpy attributes(&manager, &QtVariantPropertyManager::attributeChanged);

    property->setAttribute(QStringLiteral("maximum"), 10);
    QCOMPARE(property->attributeValue(QStringLiteral("maximum")).toInt(), 10);
    QCOMPARE(property->value().toInt(), 10);
    QCOMPARE(values.count(), 1);
    QCOMPARE(attributes.count(), 1);

    property->setAttribute(QStringLiteral("minimum"), 20); // drags the maximum along
    QCOMPARE(property->attributeValue(QStringLiteral("maximum")).toInt(), 20);
    QCOMPARE(property->value().toInt(), 20);
    property->setAttribute(QStringLiteral("minimum"), 0);
    property->setValue(-5);
    QCOMPARE(property->value().toInt(), 0);
    property->setValue(30);
    QCOMPARE(property->value().toInt(), 20);

    // Unknown attributes and values of the wrong type are ignored.
    attributes.clear();
    property->setAttribute(QStringLiteral("nonsense"), 1);
    property->setAttribute(QStringLiteral("singleStep"), QVariant::fromValue(QSize(1, 1)));
    QCOMPARE(attributes.count(), 0);
    QVERIFY(!property->attributeValue(QStringLiteral("nonsense")).isValid());

    QtVariantProperty *real = manager.addProperty(QMetaType::Double, QStringLiteral("ratio"));
    real->setAttribute(QStringLiteral("decimals"), 4);
    real->setValue(2.0 / 3.0);
    QCOMPARE(real->valueText(), QStringLiteral("0.6667"));
}

void TestVariantPropertyManager::compoundSubProperties()
{
    QtVariantPropertyManager manager;
    QtVariantProperty *rect = manager.addProperty(QMetaType::QRect, QStringLiteral("geometry"));
    QCOMPARE(names(rect->subProperties()), QStringList({"X", "Y", "Width", "Height"}));
    rect->setValue(QRect(1, 2, 3, 4));
    auto field = [&](QtVariantProperty *parent, int i) {
        return manager.variantProperty(parent->subProperties().at(i));
    };
    QCOMPARE(field(rect, 2)->value().toInt(), 3);
    field(rect, 0)->setValue(10);
    field(rect, 3)->setValue(-7); // sizes are not negative
    QCOMPARE(rect->value().toRect(), QRect(10, 2, 3, 0));

    QtVariantProperty *size = manager.addProperty(QMetaType::QSize, QStringLiteral("size"));
    field(size, 1)->setValue(33);
    QCOMPARE(size->value().toSize(), QSize(0, 33));

    QtVariantProperty *point = manager.addProperty(QMetaType::QPoint, QStringLiteral("pos"));
    point->setValue(QPoint(-3, 8));
    QCOMPARE(field(point, 0)->value().toInt(), -3);
    QCOMPARE(field(point, 1)->value().toInt(), 8);

    QtVariantProperty *policy =
            manager.addProperty(QMetaType::QSizePolicy, QStringLiteral("sizePolicy"));
    QCOMPARE(names(policy->subProperties()),
             QStringList({"Horizontal Policy", "Vertical Policy", "Horizontal Stretch",
                          "Vertical Stretch"}));
    const QStringList policies =
            field(policy, 0)->attributeValue(QStringLiteral("enumNames")).toStringList();
    field(policy, 1)->setValue(policies.indexOf(QStringLiteral("Expanding")));
    field(policy, 2)->setValue(300); // stretch is at most 255
    const QSizePolicy value = policy->value().value<QSizePolicy>();
    QCOMPARE(value.verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(value.horizontalStretch(), 255);
}

void TestVariantPropertyManager::propertyTree()
{
    QtVariantPropertyManager manager;
    QtVariantProperty *group =
            manager.addProperty(QtVariantPropertyManager::groupTypeId(), QStringLiteral("group"));
    QtVariantProperty *a = manager.addProperty(QMetaType::Int, QStringLiteral("a"));
    QtVariantProperty *b = manager.addProperty(QMetaType::Int, QStringLiteral("b"));
    QtVariantProperty *c = manager.addProperty(QMetaType::Int, QStringLiteral("c"));
    QSignalSpy inserted(&manager, &QtAbstractPropertyManager::propertyInserted);
    QSignalSpy removed(&manager, &QtAbstractPropertyManager::propertyRemoved);

    group->addSubProperty(a);
    group->addSubProperty(c);
    group->insertSubProperty(b, a);
    QCOMPARE(names(group->subProperties()), QStringList({"a", "b", "c"}));
    QCOMPARE(inserted.count(), 3);
    QCOMPARE(inserted.at(2).at(2).value<QtProperty *>(), a);
    group->insertSubProperty(c, nullptr); // already there: no second place
    group->addSubProperty(a);
    QCOMPARE(names(group->subProperties()), QStringList({"a", "b", "c"}));
    QCOMPARE(inserted.count(), 3);

    // No property may end up inside itself.
    a->addSubProperty(group);
    group->addSubProperty(group);
    QVERIFY(a->subProperties().isEmpty());

    removed.clear();
    group->removeSubProperty(a);
    QCOMPARE(names(group->subProperties()), QStringList({"b", "c"}));
    QCOMPARE(removed.count(), 1);
    QCOMPARE(removed.at(0).at(1).value<QtProperty *>(), group);

    // A deleted property leaves its parents; a deleted parent leaves its children alone.
    QtVariantProperty *other =
            manager.addProperty(QtVariantPropertyManager::groupTypeId(), QStringLiteral("other"));
    other->addSubProperty(b);
    delete b;
    QCOMPARE(names(group->subProperties()), QStringList({"c"}));
    QVERIFY(other->subProperties().isEmpty());
    delete group;
    QVERIFY(manager.properties().contains(c));
    other->addSubProperty(c);
    QCOMPARE(names(other->subProperties()), QStringList({"c"}));
}

void TestVariantPropertyManager::stateFlags()
{
    // Every descriptive field tells the browsers once per real change.
    QtVariantPropertyManager manager;
    QtVariantProperty *property = manager.addProperty(QMetaType::QString, QStringLiteral("text"));
    QSignalSpy changes(&manager, &QtAbstractPropertyManager::propertyChanged);
    property->setModified(true);
    property->setEnabled(false);
    property->setToolTip(QStringLiteral("tip"));
    property->setStatusTip(QStringLiteral("status"));
    property->setWhatsThis(QStringLiteral("what"));
    property->setPropertyName(QStringLiteral("renamed"));
    QCOMPARE(changes.count(), 6);
    property->setModified(true);
    property->setEnabled(false);
    property->setPropertyName(QStringLiteral("renamed"));
    QCOMPARE(changes.count(), 6);
}

void TestVariantPropertyManager::managerLifetime()
{
    auto *manager = new QtVariantPropertyManager;
    manager->addProperty(QMetaType::QFont, QStringLiteral("font"));
    manager->addProperty(QMetaType::Int, QStringLiteral("int"));
    QtVariantProperty *flags =
            manager->addProperty(QtVariantPropertyManager::flagTypeId(), QStringLiteral("flags"));
    flags->setAttribute(QStringLiteral("flagNames"), QStringList({"A", "B"}));
    const int count = manager->properties().size();
    QCOMPARE(count, 8 + 1 + 3);

    QSignalSpy destroyed(manager, &QtAbstractPropertyManager::propertyDestroyed);
    manager->clear();
    QCOMPARE(destroyed.count(), count);
    QVERIFY(manager->properties().isEmpty());

    manager->addProperty(QMetaType::QFont, QStringLiteral("font"));
    delete manager; // deletes the properties it still has
}

void TestVariantPropertyManager::subclassAddsType()
{
    TemperaturePropertyManager manager;
    const int type = TemperaturePropertyManager::temperatureTypeId();
    QtVariantPropertyManager base;
    QVERIFY(!base.isPropertyTypeSupported(type));
    QVERIFY(!base.addProperty(type, QStringLiteral("t")));

    QtVariantProperty *temperature = manager.addProperty(type, QStringLiteral("temperature"));
    QVERIFY(temperature);
    QCOMPARE(temperature->propertyType(), type);
    QCOMPARE(temperature->valueType(), type);
    QSignalSpy values(&manager, &QtVariantPropertyManager::valueChanged);
    temperature->setValue(QVariant::fromValue(Temperature {21.5}));
    QCOMPARE(values.count(), 1);
    QCOMPARE(temperature->value().value<Temperature>().celsius, 21.5);
    QCOMPARE(temperature->valueText(), QStringLiteral("21.5 C"));
    temperature->setAttribute(QStringLiteral("fahrenheit"), true);
    QCOMPARE(temperature->attributeValue(QStringLiteral("fahrenheit")).toBool(), true);
    QCOMPARE(temperature->valueText(), QStringLiteral("70.7 F"));

    // The base's own types still work in the subclass, and their sub-properties are made
    // through the subclass's addProperty() too.
    QtVariantProperty *font = manager.addProperty(QMetaType::QFont, QStringLiteral("font"));
    QCOMPARE(font->subProperties().size(), 7);
    QCOMPARE(manager.propertiesMade(QMetaType::QFont), 1);
    QCOMPARE(manager.propertiesMade(QMetaType::Bool), 5);
    QCOMPARE(manager.propertiesMade(QMetaType::Int), 1);
    QCOMPARE(manager.propertiesMade(QtVariantPropertyManager::enumTypeId()), 1);
    manager.variantProperty(font->subProperties().at(2))->setValue(true);
    QVERIFY(font->value().value<QFont>().bold());
}

QTEST_MAIN(TestVariantPropertyManager)
#include "tst_variantpropertymanager.moc"
