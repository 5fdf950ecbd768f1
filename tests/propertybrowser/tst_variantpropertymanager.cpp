// The variant property manager on its own: values and their texts, compound values and
// their sub-properties, attributes, the property tree, and a subclass adding a type.

#include "qtcompat.h"

#include "propertymetatypes.h"
#include "qtvariantproperty.h"
#include "temperaturepropertymanager.h"

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QKeySequence>
#include <QPixmap>
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
    void subPropertiesBothWays();
    void enumsAndAttributes();
    void propertyTree();
    void subclassAddsType();
};

static QStringList names(const QList<QtProperty *> &properties)
{
    QStringList result;
    for (const QtProperty *property : properties)
        result.append(property->propertyName());
    return result;
}

static QtVariantProperty *sub(QtVariantProperty *parent, int index)
{
    auto *manager = static_cast<QtVariantPropertyManager *>(parent->propertyManager());
    return manager->variantProperty(parent->subProperties().at(index));
}

void TestVariantPropertyManager::valuesAndTexts_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("icon");

    QTest::newRow("bool") << int(QMetaType::Bool) << QVariant(true) << "True" << true;
    QTest::newRow("int") << int(QMetaType::Int) << QVariant(-42) << "-42" << false;
    QTest::newRow("double") << int(QMetaType::Double) << QVariant(3.14159) << "3.14" << false;
    QTest::newRow("string") << int(QMetaType::QString) << QVariant(QStringLiteral("Hi")) << "Hi"
                            << false;
    QTest::newRow("color") << int(QMetaType::QColor) << QVariant(QColor(255, 10, 0, 128))
                           << "[255, 10, 0] (128)" << true;
    QTest::newRow("size") << int(QMetaType::QSize) << QVariant(QSize(10, 20)) << "10 x 20" << false;
    QTest::newRow("point") << int(QMetaType::QPoint) << QVariant(QPoint(3, -4)) << "(3, -4)"
                           << false;
    QTest::newRow("rect") << int(QMetaType::QRect) << QVariant(QRect(1, 2, 30, 40))
                          << "[(1, 2), 30 x 40]" << false;
    const QKeySequence keys(Qt::CTRL | Qt::Key_S);
    QTest::newRow("key sequence") << int(QMetaType::QKeySequence) << QVariant::fromValue(keys)
                                  << keys.toString(QKeySequence::NativeText) << false;
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    policy.setHorizontalStretch(3);
    QTest::newRow("size policy") << int(QMetaType::QSizePolicy) << QVariant::fromValue(policy)
                                 << "[Expanding, Fixed, 3, 0]" << false;
    QPixmap pixmap(8, 8);
    pixmap.fill(Qt::red);
    QTest::newRow("pixmap") << int(QMetaType::QPixmap) << QVariant(pixmap) << QString() << true;
    QTest::newRow("icon") << int(QMetaType::QIcon) << QVariant(QIcon(pixmap)) << QString() << true;
    QTest::newRow("int from string")
            << int(QMetaType::Int) << QVariant(QStringLiteral("17")) << "17" << false;
}

void TestVariantPropertyManager::valuesAndTexts()
{
    QFETCH(int, type);
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    QFETCH(bool, icon);

    QtVariantPropertyManager manager;
    QtVariantProperty *property = manager.addProperty(type, QStringLiteral("p"));
    QVERIFY(property);
    property->setValue(value);
    QCOMPARE(property->valueText(), text);
    QCOMPARE(!property->valueIcon().isNull(), icon);
    QCOMPARE(property->value().userType(), type);
    QVariant expected = value;
    QVERIFY(expected.convert(type));
    if (type != QMetaType::QPixmap && type != QMetaType::QIcon) // no equality for these
        QCOMPARE(property->value(), expected);
}

void TestVariantPropertyManager::changeSignals()
{
    QtVariantPropertyManager manager;
    QtVariantProperty *property = manager.addProperty(QMetaType::QString, QStringLiteral("text"));
    QSignalSpy values(&manager, &QtVariantPropertyManager::valueChanged);

    property->setValue(QStringLiteral("a"));
    property->setValue(QStringLiteral("a")); // the same value is no change
    property->setValue(QVariant::fromValue(QSize(1, 2))); // cannot become a string
    QCOMPARE(values.count(), 1);
    QCOMPARE(values.at(0).at(0).value<QtProperty *>(), property);
    QCOMPARE(values.at(0).at(1).value<QVariant>(), QVariant(QStringLiteral("a")));

    QVERIFY(!manager.addProperty(QMetaType::QUrl, QStringLiteral("url")));
    QtVariantProperty *group =
            manager.addProperty(QtVariantPropertyManager::groupTypeId(), QStringLiteral("group"));
    QVERIFY(!group->hasValue());
    group->setValue(5);
    QVERIFY(!group->value().isValid());

    // A font equal in every attribute but set differently is a change: what a font sets
    // decides what is written to a form.
    QtVariantProperty *fontProperty = manager.addProperty(QMetaType::QFont, QStringLiteral("font"));
    const QFont font = fontProperty->value().value<QFont>();
    QFont explicitFont = font;
    explicitFont.setBold(font.bold());
    values.clear();
    fontProperty->setValue(explicitFont);
    QVERIFY(!values.isEmpty());
    QCOMPARE(CcQt::fontResolveMask(fontProperty->value().value<QFont>()),
             CcQt::fontResolveMask(explicitFont));
}

void TestVariantPropertyManager::subPropertiesBothWays()
{
    QtVariantPropertyManager manager;
    QtVariantProperty *font = manager.addProperty(QMetaType::QFont, QStringLiteral("font"));
    QCOMPARE(names(font->subProperties()),
             QStringList({"Family", "Point Size", "Bold", "Italic", "Underline", "Strikeout",
                          "Kerning"}));
    QFont value;
    value.setFamily(QStringLiteral("NoSuchFamilyAnywhere"));
    value.setPointSize(17);
    value.setUnderline(true);
    font->setValue(value);
    QCOMPARE(sub(font, 0)->valueText(), QStringLiteral("NoSuchFamilyAnywhere"));
    QCOMPARE(sub(font, 1)->value().toInt(), 17);
    QCOMPARE(sub(font, 4)->value().toBool(), true);
    QCOMPARE(font->valueText(), QStringLiteral("[NoSuchFamilyAnywhere, 17]"));

    // Each sub-property edit is one change of the font, and marks what it sets.
    QSignalSpy values(&manager, &QtVariantPropertyManager::valueChanged);
    sub(font, 3)->setValue(true);
    QVERIFY(font->value().value<QFont>().italic());
    QVERIFY(CcQt::fontResolveMask(font->value().value<QFont>()) & QFont::StyleResolved);
    int fontChanges = 0;
    for (const QList<QVariant> &signal : qAsConst(values))
        fontChanges += signal.at(0).value<QtProperty *>() == font;
    QCOMPARE(fontChanges, 1);
    sub(font, 1)->setValue(0); // clamped to the smallest size
    sub(font, 5)->setValue(true);
    sub(font, 6)->setValue(false);
    value = font->value().value<QFont>();
    QCOMPARE(value.pointSize(), 1);
    QVERIFY(value.strikeOut() && !value.kerning() && value.underline());
    const QStringList families =
            sub(font, 0)->attributeValue(QStringLiteral("enumNames")).toStringList();
    if (families.size() > 1) {
        const int other = families.indexOf(QStringLiteral("NoSuchFamilyAnywhere")) == 0 ? 1 : 0;
        sub(font, 0)->setValue(other);
        QCOMPARE(font->value().value<QFont>().family(), families.at(other));
    }

    QtVariantProperty *flags =
            manager.addProperty(QtVariantPropertyManager::flagTypeId(), QStringLiteral("flags"));
    flags->setAttribute(QStringLiteral("flagNames"), QStringList({"A", "B", "C"}));
    QCOMPARE(names(flags->subProperties()), QStringList({"A", "B", "C"}));
    flags->setValue(5);
    QCOMPARE(flags->valueText(), QStringLiteral("A|C"));
    QCOMPARE(sub(flags, 1)->value().toBool(), false);
    QCOMPARE(sub(flags, 2)->value().toBool(), true);
    sub(flags, 1)->setValue(true);
    sub(flags, 0)->setValue(false);
    QCOMPARE(flags->value().toInt(), 6);
    flags->setValue(0xff); // bits without a name are dropped
    QCOMPARE(flags->valueText(), QStringLiteral("A|B|C"));
    // Fewer names: fewer sub-properties, and the value keeps only the named bits.
    flags->setAttribute(QStringLiteral("flagNames"), QStringList({"X", "Y"}));
    QCOMPARE(names(flags->subProperties()), QStringList({"X", "Y"}));
    QCOMPARE(flags->value().toInt(), 3);

    QtVariantProperty *rect = manager.addProperty(QMetaType::QRect, QStringLiteral("geometry"));
    rect->setValue(QRect(1, 2, 3, 4));
    QCOMPARE(sub(rect, 2)->value().toInt(), 3);
    sub(rect, 0)->setValue(10);
    sub(rect, 3)->setValue(-7); // sizes are not negative
    QCOMPARE(rect->value().toRect(), QRect(10, 2, 3, 0));

    QtVariantProperty *policy =
            manager.addProperty(QMetaType::QSizePolicy, QStringLiteral("sizePolicy"));
    const QStringList policies =
            sub(policy, 0)->attributeValue(QStringLiteral("enumNames")).toStringList();
    sub(policy, 1)->setValue(policies.indexOf(QStringLiteral("Expanding")));
    sub(policy, 2)->setValue(300); // stretch is at most 255
    QCOMPARE(policy->value().value<QSizePolicy>().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(policy->value().value<QSizePolicy>().horizontalStretch(), 255);

    // Deleting a compound value deletes the sub-properties it made.
    const int before = manager.properties().size();
    delete font;
    QCOMPARE(manager.properties().size(), before - 8);
}

void TestVariantPropertyManager::enumsAndAttributes()
{
    QtVariantPropertyManager manager;
    QtVariantProperty *state =
            manager.addProperty(QtVariantPropertyManager::enumTypeId(), QStringLiteral("state"));
    QCOMPARE(state->value().toInt(), -1);
    QSignalSpy attributes(&manager, &QtVariantPropertyManager::attributeChanged);
    state->setAttribute(QStringLiteral("enumNames"),
                        QStringList({"Unchecked", "PartiallyChecked", "Checked"}));
    QCOMPARE(attributes.count(), 1);
    QCOMPARE(state->valueText(), QStringLiteral("Unchecked"));
    state->setValue(2);
    state->setValue(3); // no such entry
    QCOMPARE(state->valueText(), QStringLiteral("Checked"));

    QtIconMap icons;
    QPixmap red(8, 8);
    red.fill(Qt::red);
    icons.insert(2, QIcon(red));
    state->setAttribute(QStringLiteral("enumIcons"), QVariant::fromValue(icons));
    QVERIFY(!state->valueIcon().isNull());
    state->setValue(1);
    QVERIFY(state->valueIcon().isNull());
    state->setAttribute(QStringLiteral("enumNames"), QStringList({"Only"})); // pulls into range
    QCOMPARE(state->valueText(), QStringLiteral("Only"));

    QtVariantProperty *count = manager.addProperty(QMetaType::Int, QStringLiteral("count"));
    count->setValue(50);
    count->setAttribute(QStringLiteral("maximum"), 10);
    QCOMPARE(count->value().toInt(), 10);
    count->setAttribute(QStringLiteral("minimum"), 20); // drags the maximum along
    QCOMPARE(count->attributeValue(QStringLiteral("maximum")).toInt(), 20);
    QCOMPARE(count->value().toInt(), 20);
    attributes.clear();
    count->setAttribute(QStringLiteral("nonsense"), 1);
    count->setAttribute(QStringLiteral("singleStep"), QVariant::fromValue(QSize(1, 1)));
    QCOMPARE(attributes.count(), 0);

    QtVariantProperty *ratio = manager.addProperty(QMetaType::Double, QStringLiteral("ratio"));
    ratio->setAttribute(QStringLiteral("decimals"), 4);
    ratio->setValue(2.0 / 3.0);
    QCOMPARE(ratio->valueText(), QStringLiteral("0.6667"));
}

void TestVariantPropertyManager::propertyTree()
{
    auto *manager = new QtVariantPropertyManager;
    auto add = [manager](const char *name) {
        return manager->addProperty(QtVariantPropertyManager::groupTypeId(), QLatin1String(name));
    };
    QtVariantProperty *group = add("group");
    QtVariantProperty *a = add("a");
    QtVariantProperty *b = add("b");
    QtVariantProperty *c = add("c");
    QSignalSpy inserted(manager, &QtAbstractPropertyManager::propertyInserted);

    group->addSubProperty(a);
    group->addSubProperty(c);
    group->insertSubProperty(b, a);
    group->insertSubProperty(c, nullptr); // already there: no second place
    a->addSubProperty(group); // no property may end up inside itself
    group->addSubProperty(group);
    QCOMPARE(names(group->subProperties()), QStringList({"a", "b", "c"}));
    QVERIFY(a->subProperties().isEmpty());
    QCOMPARE(inserted.count(), 3);
    QCOMPARE(inserted.at(2).at(2).value<QtProperty *>(), a);

    delete group; // leaves its children alone
    QCOMPARE(manager->properties(), QSet<QtProperty *>({a, b, c}));

    manager->addProperty(QMetaType::QFont, QStringLiteral("font"));
    QSignalSpy destroyed(manager, &QtAbstractPropertyManager::propertyDestroyed);
    const int count = manager->properties().size();
    manager->clear();
    QCOMPARE(destroyed.count(), count);
    QVERIFY(manager->properties().isEmpty());
    manager->addProperty(QMetaType::QFont, QStringLiteral("font"));
    delete manager; // deletes the properties it still has
}

void TestVariantPropertyManager::subclassAddsType()
{
    const int type = TemperaturePropertyManager::temperatureTypeId();
    QVERIFY(!QtVariantPropertyManager().addProperty(type));

    TemperaturePropertyManager manager;
    QtVariantProperty *temperature = manager.addProperty(type, QStringLiteral("temperature"));
    QVERIFY(temperature);
    QCOMPARE(temperature->valueType(), type);
    temperature->setValue(QVariant::fromValue(Temperature {21.5}));
    QCOMPARE(temperature->value().value<Temperature>().celsius, 21.5);
    QCOMPARE(temperature->valueText(), QStringLiteral("21.5 C"));
    temperature->setAttribute(QStringLiteral("fahrenheit"), true);
    QCOMPARE(temperature->valueText(), QStringLiteral("70.7 F"));

    // The base's types work in the subclass, their sub-properties made through its
    // addProperty() too.
    QtVariantProperty *font = manager.addProperty(QMetaType::QFont, QStringLiteral("font"));
    QCOMPARE(manager.propertiesMade(QMetaType::Bool), 5);
    QCOMPARE(manager.propertiesMade(QtVariantPropertyManager::enumTypeId()), 1);
    sub(font, 2)->setValue(true);
    QVERIFY(font->value().value<QFont>().bold());
}

QTEST_MAIN(TestVariantPropertyManager)
#include "tst_variantpropertymanager.moc"
