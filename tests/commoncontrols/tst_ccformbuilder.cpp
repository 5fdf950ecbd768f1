// VoCc::FormBuilder: the entries of the list-like widgets through .ui text and back.
#include <nui/CommonControls/CcComboBox.hpp>
#include <nui/CommonControls/CcDrawbackBoxGroup.hpp>
#include <nui/CommonControls/CcFormBuilder.hpp>
#include <nui/CommonControls/CcLineEditEx.hpp>
#include <nui/CommonControls/CcMatrixButtons.hpp>
#include <nui/CommonControls/CcMatrixPopButtons.hpp>
#include <nui/CommonControls/CcPane.hpp>
#include <nui/CommonControls/template/CcOptionButtons.hpp>
#include <nui/CommonControls/template/CcOptionCheckBox.hpp>
#include <nui/CommonControls/template/CcOptionComboBox.hpp>
#include <nui/CommonControls/template/CcOptionRadios.hpp>

#include <QtDesigner/private/ui4_p.h>

#include <QAbstractButton>
#include <QBuffer>
#include <QComboBox>
#include <QFile>
#include <QMenu>
#include <QRegularExpression>
#include <QScopedPointer>
#include <QTest>
#include <QToolButton>
#include <QXmlStreamWriter>

using namespace VoCc;

namespace {

QString saveForm(QWidget *form)
{
    FormBuilder builder;
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    builder.save(&buffer, form);
    return QString::fromUtf8(buffer.data());
}

QWidget *loadForm(const QString &uiText)
{
    FormBuilder builder;
    QBuffer buffer;
    buffer.setData(uiText.toUtf8());
    buffer.open(QIODevice::ReadOnly);
    return builder.load(&buffer);
}

// A form document holding the given widget elements.
QString formText(const QString &body)
{
    return QStringLiteral(
                   "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"Form\">%1</widget></ui>")
            .arg(body);
}

QString elementText(const DomWidget *element)
{
    QString text;
    QXmlStreamWriter writer(&text);
    element->write(writer);
    return text;
}

// Lists padded to one length, as they read back after a round trip.
QStringList padded(QStringList list, int size)
{
    while (list.size() < size)
        list.append(QString());
    return list;
}

const QString okIcon =
        QStringLiteral(":/qt-project.org/styles/commonstyle/images/standardbutton-ok-16.png");

QStringList warnings;
void collectWarnings(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        warnings.append(message);
}

} // namespace

class TestCcFormBuilder : public QObject
{
    Q_OBJECT

private slots:
    void optionWidgetsRoundTrip_data();
    void optionWidgetsRoundTrip();
    void checkableComboBoxRoundTrip();
    void matrixButtonsRoundTrip();
    void matrixPopButtonsRoundTrip();
    void comboBoxAddsOnlyActions();
    void pageGroupRoundTrip();
    void savingTwiceAddsNothing();
    void badAndPartialDataLoadQuietly();
    void refusesWhatQtCannotManage_data();
    void refusesWhatQtCannotManage();
    void limitsGridsNoEditorMakes_data();
    void limitsGridsNoEditorMakes();
    void showsLongTextsCut();
    void exampleFormLoads();
};

void TestCcFormBuilder::optionWidgetsRoundTrip_data()
{
    QTest::addColumn<QString>("className");
    QTest::newRow("option combo box") << QStringLiteral("VoCc::OptionComboBox");
    QTest::newRow("option buttons") << QStringLiteral("VoCc::OptionButtons");
    QTest::newRow("option radios") << QStringLiteral("VoCc::OptionRadios");
    QTest::newRow("option check box") << QStringLiteral("VoCc::OptionCheckBox");
}

void TestCcFormBuilder::optionWidgetsRoundTrip()
{
    QFETCH(QString, className);
    QWidget form;
    form.setObjectName(QStringLiteral("Form"));
    auto *options =
            qobject_cast<AbstractOptions *>(FormBuilder::createCommonControl(className, &form));
    QVERIFY(options);
    options->setObjectName(QStringLiteral("options"));
    const QStringList texts = {QStringLiteral("One"), QString(), QStringLiteral("Three")};
    const QStringList icons = {okIcon, QString(), QStringLiteral("/missing.png")};
    const QStringList tips = {QStringLiteral("first")}; // shorter than the others
    const QStringList data = {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"),
                              QStringLiteral("4")}; // longer
    options->setTextList(texts);
    options->setIconList(icons);
    options->setToolTips(tips);
    options->setDataList(data);
    options->setCurrentIndex(2);

    const QString saved = saveForm(&form);
    // One item per entry (per text), in the form of the default XML: shorter lists are padded,
    // what a longer one holds beyond the entries is not written.
    QCOMPARE(saved.count(QStringLiteral("<item>")) + saved.count(QStringLiteral("<item/>")), 3);
    QVERIFY(saved.contains(QStringLiteral("<string notr=\"true\">3</string>")));
    QVERIFY(!saved.contains(QStringLiteral("<string notr=\"true\">4</string>")));
    QVERIFY(saved.contains(QStringLiteral("<string notr=\"false\">One</string>")));
    QVERIFY(saved.contains(QStringLiteral("<property name=\"toolTip\">")));
    QVERIFY(!saved.contains(QStringLiteral("name=\"action\"")));
    // Inner widgets of the control are not form content.
    QCOMPARE(saved.count(QStringLiteral("<widget ")), 2);

    QScopedPointer<QWidget> loaded(loadForm(saved));
    QVERIFY(loaded);
    auto *back = loaded->findChild<AbstractOptions *>(QStringLiteral("options"));
    QVERIFY(back);
    QCOMPARE(QString::fromLatin1(back->metaObject()->className()), className);
    QCOMPARE(back->textList(), texts);
    QCOMPARE(back->iconList(), icons);
    QCOMPARE(back->toolTips(), padded(tips, 3));
    QCOMPARE(back->dataList(), data.mid(0, 3));
    if (className != QLatin1String("VoCc::OptionCheckBox"))
        QCOMPARE(back->currentIndex(), 2);

    // A second cycle gives the same text.
    QScopedPointer<QWidget> again(loadForm(saveForm(loaded.data())));
    QCOMPARE(saveForm(again.data()), saveForm(loaded.data()));
}

void TestCcFormBuilder::checkableComboBoxRoundTrip()
{
    QWidget form;
    form.setObjectName(QStringLiteral("Form"));
    auto *box = new CheckableTextComboBox(&form);
    box->setObjectName(QStringLiteral("check"));
    box->setItemTextList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    box->setToolTips({QString(), QStringLiteral("bee")});
    const QString saved = saveForm(&form);
    QCOMPARE(saved.count(QStringLiteral("<item>")), 3);
    QScopedPointer<QWidget> loaded(loadForm(saved));
    auto *back = loaded->findChild<CheckableTextComboBox *>(QStringLiteral("check"));
    QVERIFY(back);
    QCOMPARE(back->itemTextList(), box->itemTextList());
    QCOMPARE(back->toolTips(), (QStringList {QString(), QStringLiteral("bee"), QString()}));
}

void TestCcFormBuilder::matrixButtonsRoundTrip()
{
    QWidget form;
    form.setObjectName(QStringLiteral("Form"));
    QList<AbstractMatrixOptions *> matrices = {new MatrixPushButtons(&form),
                                               new MatrixRadioButtons(&form),
                                               new MatrixCheckBoxes(&form)};
    for (int m = 0; m < matrices.size(); ++m) {
        AbstractMatrixOptions *matrix = matrices.at(m);
        matrix->setObjectName(QStringLiteral("matrix%1").arg(m));
        matrix->setRow(3);
        matrix->setColumn(m + 1);
        matrix->setTextList({QStringLiteral("t0"), QStringLiteral("t1")});
        matrix->setIconList({QString(), okIcon});
        matrix->setToolTips({QStringLiteral("tip0")});
        matrix->setActionList({QStringLiteral("a0"), QString(), QStringLiteral("a2")});
    }
    const QString saved = saveForm(&form);
    // The dimensions are written once each, beside the properties the writer saves.
    QCOMPARE(saved.count(QStringLiteral("name=\"row\"")), 3);
    QScopedPointer<QWidget> loaded(loadForm(saved));
    for (int m = 0; m < matrices.size(); ++m) {
        auto *back = loaded->findChild<AbstractMatrixOptions *>(QStringLiteral("matrix%1").arg(m));
        QVERIFY(back);
        QCOMPARE(back->metaObject(), matrices.at(m)->metaObject());
        QCOMPARE(back->row(), 3);
        QCOMPARE(back->column(), m + 1);
        QCOMPARE(back->textList(), padded(matrices.at(m)->textList(), 3));
        QCOMPARE(back->iconList(), padded(matrices.at(m)->iconList(), 3));
        QCOMPARE(back->toolTips(), padded(matrices.at(m)->toolTips(), 3));
        QCOMPARE(back->actionList(), matrices.at(m)->actionList());
        QVERIFY(!back->button(1)->icon().isNull());
    }
}

void TestCcFormBuilder::matrixPopButtonsRoundTrip()
{
    QWidget form;
    form.setObjectName(QStringLiteral("Form"));
    auto *pop = new MatrixPopButtons(&form);
    pop->setObjectName(QStringLiteral("pop"));
    pop->setRow(1);
    pop->setColumn(3);
    pop->setTextList({QStringLiteral("Line"), QStringLiteral("Arc"), QStringLiteral("Spline")});
    pop->setIconList({okIcon});
    pop->setToolTips({QString(), QStringLiteral("arc")});
    pop->setActionList({QStringLiteral("drawLine"), QString(), QStringLiteral("drawSpline")});

    const QString saved = saveForm(&form);
    // The texts live in the textList property only.
    QCOMPARE(saved.count(QStringLiteral("name=\"textList\"")), 1);
    QVERIFY(!saved.contains(QStringLiteral("name=\"text\"")));

    QScopedPointer<QWidget> loaded(loadForm(saved));
    auto *back = loaded->findChild<MatrixPopButtons *>(QStringLiteral("pop"));
    QVERIFY(back);
    QCOMPARE(back->column(), 3);
    QCOMPARE(back->textList(), pop->textList());
    QCOMPARE(back->iconList(), padded(pop->iconList(), 3));
    QCOMPARE(back->toolTips(), padded(pop->toolTips(), 3));
    QCOMPARE(back->actionList(), pop->actionList());
    QCOMPARE(back->menu(2)->actions().value(0)->text(), QStringLiteral("drawSpline"));

    // A hand-written file may keep the texts in the items instead.
    const QString handWritten = formText(QStringLiteral(
            "<widget class=\"VoCc::MatrixPopButtons\" name=\"pop\">"
            " <property name=\"column\"><number>2</number></property>"
            " <item><property name=\"text\"><string>A</string></property></item>"
            " <item><property name=\"text\"><string>B</string></property>"
            "  <property name=\"action\"><string notr=\"true\">doB</string></property></item>"
            "</widget>"));
    QScopedPointer<QWidget> fromItems(loadForm(handWritten));
    auto *itemsPop = fromItems->findChild<MatrixPopButtons *>();
    QCOMPARE(itemsPop->textList(), (QStringList {QStringLiteral("A"), QStringLiteral("B")}));
    QCOMPARE(itemsPop->actionList(), (QStringList {QString(), QStringLiteral("doB")}));
    QCOMPARE(itemsPop->button(1)->text(), QStringLiteral("B"));
}

void TestCcFormBuilder::comboBoxAddsOnlyActions()
{
    QWidget form;
    form.setObjectName(QStringLiteral("Form"));
    auto *combo = new ComboBox(&form);
    combo->setObjectName(QStringLiteral("combo"));
    combo->addItem(QIcon(okIcon), QStringLiteral("Open"));
    combo->addItem(QStringLiteral("Save"));
    combo->addItem(QStringLiteral("Close"));
    combo->setActionList({QStringLiteral("fileOpen"), QString(), QStringLiteral("fileClose")});

    const QString saved = saveForm(&form);
    QCOMPARE(saved.count(QStringLiteral("<item>")), 3);
    QCOMPARE(saved.count(QStringLiteral("name=\"action\"")), 2);
    QScopedPointer<QWidget> loaded(loadForm(saved));
    auto *back = loaded->findChild<ComboBox *>(QStringLiteral("combo"));
    QVERIFY(back);
    QCOMPARE(back->count(), 3);
    QCOMPARE(back->actionList(), combo->actionList());
}

void TestCcFormBuilder::pageGroupRoundTrip()
{
    QWidget form;
    form.setObjectName(QStringLiteral("Form"));
    auto *group = new DrawbackBoxGroup(&form);
    group->setObjectName(QStringLiteral("group"));
    const QStringList titles = {QStringLiteral("Required"), QStringLiteral("Optional"),
                                QStringLiteral("Advanced")};
    for (int i = 0; i < titles.size(); ++i) {
        auto *page = new QWidget;
        page->setObjectName(QStringLiteral("page_%1").arg(i));
        group->addPage(page);
        group->setCurrentIndex(i);
        group->setPageTitle(titles.at(i));
    }
    auto *child = new MatrixPushButtons(group->widget(1));
    child->setObjectName(QStringLiteral("inPage"));
    child->setTextList({QStringLiteral("x")});
    group->setCurrentIndex(1);

    const QString saved = saveForm(&form);
    // The boxes are the group's make-up, not form content.
    QVERIFY(!saved.contains(QStringLiteral("VoCc::DrawbackBox\"")));
    for (const QString &title : titles)
        QVERIFY(saved.contains(QStringLiteral("<string>%1</string>").arg(title)));

    QScopedPointer<QWidget> loaded(loadForm(saved));
    auto *back = loaded->findChild<DrawbackBoxGroup *>(QStringLiteral("group"));
    QVERIFY(back);
    QCOMPARE(back->count(), 3);
    for (int i = 0; i < titles.size(); ++i)
        QCOMPARE(back->pageTitle(i), titles.at(i));
    QCOMPARE(back->currentIndex(), 1);
    auto *inPage = back->widget(1)->findChild<MatrixPushButtons *>(QStringLiteral("inPage"));
    QVERIFY(inPage);
    QCOMPARE(inPage->textList().value(0), QStringLiteral("x"));
    // A second cycle adds no page and keeps the titles and the current page.
    QScopedPointer<QWidget> again(loadForm(saveForm(loaded.data())));
    auto *backAgain = again->findChild<DrawbackBoxGroup *>(QStringLiteral("group"));
    QCOMPARE(backAgain->count(), 3);
    QCOMPARE(backAgain->currentIndex(), 1);
    QCOMPARE(backAgain->pageTitle(2), titles.at(2));
}

void TestCcFormBuilder::savingTwiceAddsNothing()
{
    // Designer calls the save hook on an element it has already filled, and may do so for
    // every save of the form: the element must come out the same each time.
    QWidget form;
    OptionRadios radios(&form);
    radios.setTextList({QStringLiteral("a"), QStringLiteral("b")});
    MatrixPopButtons pop(&form);
    pop.setTextList({QStringLiteral("p")});
    pop.setActionList({QStringLiteral("act")});
    DrawbackBoxGroup group(&form);
    group.addPage(new QWidget);
    const QList<QWidget *> widgets = {&radios, &pop, &group};
    for (QWidget *widget : widgets) {
        DomWidget element;
        element.setAttributeClass(QString::fromLatin1(widget->metaObject()->className()));
        FormBuilder::saveExtraInfo(&element, widget, nullptr);
        const QString once = elementText(&element);
        FormBuilder::saveExtraInfo(&element, widget, nullptr);
        QCOMPARE(elementText(&element), once);
        // Loading what was saved changes nothing either.
        FormBuilder::loadExtraInfo(&element, widget, nullptr);
        FormBuilder::saveExtraInfo(&element, widget, nullptr);
        QCOMPARE(elementText(&element), once);
    }
}

void TestCcFormBuilder::badAndPartialDataLoadQuietly()
{
    const QString body = QStringLiteral(
            // Unequal entries, an empty item, an unknown property, numbers for strings and
            // an icon that does not exist.
            "<widget class=\"VoCc::OptionButtons\" name=\"buttons\">"
            " <item><property name=\"text\"><string>A</string></property>"
            "  <property name=\"colour\"><string>red</string></property>"
            "  <property name=\"icon\"><string>/no/such/icon.png</string></property></item>"
            " <item/>"
            " <item><property name=\"data\"><number>7</number></property></item>"
            " <item><property name=\"toolTip\"/></item>"
            "</widget>"
            // Items on a widget that has none, and a matrix larger than its entries.
            "<widget class=\"VoCc::Angle\" name=\"angle\">"
            " <item><property name=\"text\"><string>ignored</string></property></item>"
            "</widget>"
            "<widget class=\"VoCc::MatrixCheckBoxes\" name=\"matrix\">"
            " <property name=\"row\"><number>4</number></property>"
            " <property name=\"column\"><number>4</number></property>"
            " <item><property name=\"icon\"><iconset><normaloff>/missing.png</normaloff>"
            "/missing.png</iconset></property></item>"
            "</widget>"
            // A page group whose current page does not exist, pop buttons with a bad textList.
            "<widget class=\"VoCc::DrawbackBoxGroup\" name=\"group\">"
            " <property name=\"currentIndex\"><number>5</number></property>"
            " <widget class=\"QWidget\" name=\"page\"/>"
            "</widget>"
            "<widget class=\"VoCc::MatrixPopButtons\" name=\"pop\">"
            " <property name=\"textList\"><string>not a list</string></property>"
            "</widget>"
            "<widget class=\"VoCc::CheckableTextComboBox\" name=\"check\">"
            " <item><property name=\"toolTip\"><string>only a tip</string></property></item>"
            "</widget>");
    QtMessageHandler previous = qInstallMessageHandler(collectWarnings);
    QScopedPointer<QWidget> form(loadForm(formText(body)));
    qInstallMessageHandler(previous);
    QVERIFY(form);
    // What is left out is named once per widget (the unknown item property, the Angle's
    // items); at most one more complaint, about the property of the wrong type; no storm.
    const QString said = warnings.join(QLatin1Char('\n'));
    QVERIFY2(said.contains(QLatin1String("colour")) && said.contains(QLatin1String("VoCc::Angle"))
                     && warnings.size() <= 3,
             qPrintable(said));

    auto *buttons = form->findChild<OptionButtons *>();
    QCOMPARE(buttons->textList(),
             (QStringList {QStringLiteral("A"), QString(), QString(), QString()}));
    QCOMPARE(buttons->dataList().value(2), QStringLiteral("7"));
    QCOMPARE(buttons->iconList().value(0), QStringLiteral("/no/such/icon.png"));
    QVERIFY(buttons->button(0)->icon().isNull());
    QCOMPARE(buttons->toolTips(), (QStringList {QString(), QString(), QString(), QString()}));

    auto *matrix = form->findChild<MatrixCheckBoxes *>();
    QCOMPARE(matrix->buttonCount(), 16);
    QCOMPARE(matrix->iconList(), QStringList {QStringLiteral("/missing.png")});
    QCOMPARE(matrix->button(15)->text(), QString());

    auto *group = form->findChild<DrawbackBoxGroup *>();
    QCOMPARE(group->count(), 1);
    QCOMPARE(group->currentIndex(), 0);

    auto *pop = form->findChild<MatrixPopButtons *>();
    QVERIFY(pop->textList().isEmpty());
    QCOMPARE(pop->buttonCount(), 4);

    auto *check = form->findChild<CheckableTextComboBox *>();
    QCOMPARE(check->itemTextList(), QStringList {QString()});
    QCOMPARE(check->toolTips(), QStringList {QStringLiteral("only a tip")});
}

void TestCcFormBuilder::refusesWhatQtCannotManage_data()
{
    // The <ui> element is the first level.
    const auto nested = [](int widgets) {
        return "<ui version=\"4.0\">"
                + QByteArray("<widget class=\"QWidget\" name=\"w\">").repeated(widgets)
                + QByteArray("</widget>").repeated(widgets) + "</ui>";
    };
    const auto sideBySide = [](const char *className, int widgets) {
        return "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"Form\"><widget class=\""
                + QByteArray(className) + "\" name=\"holder\">"
                + QByteArray("<widget class=\"QWidget\" name=\"w\"/>").repeated(widgets)
                + "</widget></widget></ui>";
    };
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("problem"); // empty: the form loads
    QTest::newRow("nested 512 deep") << nested(511) << QString();
    QTest::newRow("nested 513 deep")
            << nested(512) << QStringLiteral("nested more than 512 levels deep");
    QTest::newRow("10,001 widgets side by side")
            << sideBySide("QWidget", 10001)
            << QStringLiteral("more than 10000 widgets side by side");
    QTest::newRow("10,001 pages") << sideBySide("VoCc::DrawbackBoxGroup", 10001) << QString();
    QTest::newRow("NUL byte")
            << QByteArray("<ui version=\"4.0\">\n<widget class=\"QWidget\" name=\"F@rm\"/></ui>")
                       .replace('@', '\0')
            << QStringLiteral("line 2, column 32: a NUL byte");
}

void TestCcFormBuilder::refusesWhatQtCannotManage()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, problem);
    FormBuilder builder;
    QBuffer buffer(&document);
    buffer.open(QIODevice::ReadOnly);
    if (!problem.isEmpty())
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(problem));
    QScopedPointer<QWidget> form(builder.load(&buffer));
    QCOMPARE(form.isNull(), !problem.isEmpty());
    QVERIFY2(builder.errorString().contains(problem), qPrintable(builder.errorString()));
}

void TestCcFormBuilder::limitsGridsNoEditorMakes_data()
{
    QTest::addColumn<QString>("className");
    QTest::newRow("push buttons") << QStringLiteral("VoCc::MatrixPushButtons");
    QTest::newRow("radio buttons") << QStringLiteral("VoCc::MatrixRadioButtons");
    QTest::newRow("check boxes") << QStringLiteral("VoCc::MatrixCheckBoxes");
    QTest::newRow("pop buttons") << QStringLiteral("VoCc::MatrixPopButtons");
}

void TestCcFormBuilder::limitsGridsNoEditorMakes()
{
    // The editors offer 1 to 99 rows and columns; a form asking for more gets 99.
    QFETCH(QString, className);
    const QString body =
            QStringLiteral("<widget class=\"%1\" name=\"grid\">"
                           " <property name=\"row\"><number>65536</number></property>"
                           " <property name=\"column\"><number>3</number></property>"
                           " <item><property name=\"text\"><string>A</string></property></item>"
                           "</widget>");
    warnings.clear();
    QtMessageHandler previous = qInstallMessageHandler(collectWarnings);
    QScopedPointer<QWidget> form(loadForm(formText(body.arg(className))));
    qInstallMessageHandler(previous);
    QVERIFY(form);
    QCOMPARE(warnings.size(), 1);
    for (const QString &named :
         {className, QStringLiteral("\"grid\""), QStringLiteral("property \"row\" is 65536")})
        QVERIFY2(warnings.first().contains(named), qPrintable(warnings.first()));

    QWidget *grid = form->findChild<QWidget *>(QStringLiteral("grid"));
    const auto button = [grid](int index) -> QAbstractButton * {
        if (auto *matrix = qobject_cast<AbstractMatrixOptions *>(grid))
            return matrix->button(index);
        return qobject_cast<MatrixPopButtons *>(grid)->button(index);
    };
    QCOMPARE(grid->property("row").toInt(), 99);
    QVERIFY(button(99 * 3 - 1));
    QVERIFY(!button(99 * 3));
    QCOMPARE(button(0)->text(), QStringLiteral("A"));
    // Still editable: a size the editors offer is taken as it is.
    QVERIFY(grid->setProperty("row", 4));
    QVERIFY(button(4 * 3 - 1));
    QVERIFY(!button(4 * 3));
    QCOMPARE(warnings.size(), 1);
}

void TestCcFormBuilder::showsLongTextsCut()
{
    // An entry keeps its whole text; widgets show its first 1,000 characters. A combo box's
    // items are its entries, so their texts are cut on loading, with one warning.
    const QString longText = QString(5000, QLatin1Char('x'));
    const QString item =
            QStringLiteral("<item><property name=\"text\"><string>%1</string></property></item>")
                    .arg(longText);
    const QString body =
            QStringLiteral("<widget class=\"VoCc::OptionButtons\" name=\"options\">%1</widget>"
                           "<widget class=\"VoCc::ComboBox\" name=\"combo\">%1%1</widget>")
                    .arg(item);
    warnings.clear();
    QtMessageHandler previous = qInstallMessageHandler(collectWarnings);
    QScopedPointer<QWidget> form(loadForm(formText(body)));
    qInstallMessageHandler(previous);
    auto *options = form->findChild<OptionButtons *>();
    QCOMPARE(options->textList(), QStringList {longText});
    QCOMPARE(options->button(0)->text().size(), 1000);
    QVERIFY(options->button(0)->text().startsWith(QStringLiteral("xxx")));
    QCOMPARE(form->findChild<ComboBox *>()->itemText(1).size(), 1000);
    QCOMPARE(warnings.size(), 1);
    QVERIFY2(warnings.first().contains(
                     QStringLiteral("VoCc::ComboBox \"combo\": property \"text\"")),
             qPrintable(warnings.first()));
}

void TestCcFormBuilder::exampleFormLoads()
{
    QFile file(QStringLiteral(CC_EXAMPLE_FORM));
    QVERIFY(file.open(QIODevice::ReadOnly));
    FormBuilder builder;
    QScopedPointer<QWidget> form(builder.load(&file));
    QVERIFY(form);
    QVERIFY(builder.unknownClassNames().isEmpty());

    // Every class of the library is on it.
    QSet<QString> classes;
    const QList<QWidget *> widgets = form->findChildren<QWidget *>();
    for (const QWidget *widget : widgets)
        classes.insert(QString::fromLatin1(widget->metaObject()->className()));
    classes.insert(QString::fromLatin1(form->metaObject()->className()));
    for (const QString &name : FormBuilder::widgetClassNames())
        QVERIFY2(classes.contains(name), qPrintable(name));

    // Entries that only the form builder reads.
    QCOMPARE(form->findChild<ComboBox *>()->actionList().value(1), QStringLiteral("fileSave"));
    QCOMPARE(form->findChild<MatrixPushButtons *>()->button(5)->text(), QStringLiteral("Paste"));
}

QTEST_MAIN(TestCcFormBuilder)
#include "tst_ccformbuilder.moc"
