// Forms translated by VoCc::FormBuilder: Qt's lupdate reads the example form and a form of Qt's
// own widgets, each message gets a translation, lrelease makes the .qm files, and the loaded
// forms show every text translated, at load and again on a language change. The preview tool
// renders the example form plain and with one of these translations.
#include "linguistmessages.h"

#include <nui/CommonControls/CcCheckableTextComboBox.hpp>
#include <nui/CommonControls/CcFormBuilder.hpp>
#include <nui/CommonControls/CcLineEditEx.hpp>
#include <nui/CommonControls/CcMatrixButtons.hpp>
#include <nui/CommonControls/CcMatrixPopButtons.hpp>
#include <nui/CommonControls/template/CcAbstractOptions.hpp>

#include <QtTest>
#include <QtWidgets>

using namespace VoCc;
using CcTest::Message;

namespace {

const QString exampleForm = QStringLiteral(CC_EXAMPLE_FORM);
const QString qtWidgetsForm = QStringLiteral(CC_QT_WIDGETS_FORM);

// The two translations every message gets.
QString first(const QString &source) { return QStringLiteral("«%1»").arg(source); }
QString second(const QString &source) { return QStringLiteral("‹%1›").arg(source); }

// The texts a form marks notr="true", single strings and string lists alike.
QSet<QString> untranslatedTexts(const QString &form)
{
    QFile file(form);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader reader(&file);
    QSet<QString> texts;
    bool inUntranslatedList = false;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isEndElement() && reader.name() == QLatin1String("stringlist"))
            inUntranslatedList = false;
        if (!reader.isStartElement())
            continue;
        const bool notr = reader.attributes().value(QLatin1String("notr")) == QLatin1String("true");
        if (reader.name() == QLatin1String("stringlist"))
            inUntranslatedList = notr;
        else if (reader.name() == QLatin1String("string") && (notr || inUntranslatedList))
            texts.insert(reader.readElementText());
    }
    return texts;
}

void addProperties(const QObject *object, QStringList &texts)
{
    const QMetaObject *meta = object->metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        if (qstrcmp(property.name(), "objectName") == 0 || !property.isReadable())
            continue;
        if (property.userType() == QMetaType::QString)
            texts.append(property.read(object).toString());
        else if (property.userType() == QMetaType::QStringList)
            texts.append(property.read(object).toStringList());
    }
}

void addModel(const QAbstractItemModel *model, const QModelIndex &parent, QStringList &texts)
{
    const int roles[] = {Qt::DisplayRole, Qt::ToolTipRole, Qt::StatusTipRole, Qt::WhatsThisRole};
    for (int role : roles) {
        if (!parent.isValid()) {
            for (int column = 0; column < model->columnCount(); ++column)
                texts.append(model->headerData(column, Qt::Horizontal, role).toString());
            for (int row = 0; row < model->rowCount(); ++row)
                texts.append(model->headerData(row, Qt::Vertical, role).toString());
        }
        for (int row = 0; row < model->rowCount(parent); ++row) {
            for (int column = 0; column < model->columnCount(parent); ++column)
                texts.append(model->index(row, column, parent).data(role).toString());
        }
    }
    for (int row = 0; row < model->rowCount(parent); ++row) {
        const QModelIndex child = model->index(row, 0, parent);
        if (model->hasChildren(child))
            addModel(model, child, texts);
    }
}

// Every text a loaded form shows or holds for showing: the string properties of each of its
// objects (widgets, the inner widgets of controls, actions), the items of every item view (a
// combo box's included) and their headers, tab and tool box page texts, and the entry lists
// of the library's widgets.
QStringList shownTexts(QWidget *form)
{
    QStringList texts;
    QList<QObject *> objects = form->findChildren<QObject *>();
    objects.prepend(form);
    QSet<const QAbstractItemModel *> models;
    for (QObject *object : qAsConst(objects)) {
        addProperties(object, texts);
        // A combo box makes its list view only when it first shows it.
        const auto *combo = qobject_cast<QComboBox *>(object);
        const auto *view = qobject_cast<QAbstractItemView *>(object);
        const QAbstractItemModel *model = combo ? combo->model() : view ? view->model() : nullptr;
        if (model && !models.contains(model)) {
            models.insert(model);
            addModel(model, QModelIndex(), texts);
        }
        if (auto *tabs = qobject_cast<QTabBar *>(object)) {
            for (int i = 0; i < tabs->count(); ++i)
                texts << tabs->tabText(i) << tabs->tabToolTip(i) << tabs->tabWhatsThis(i);
        } else if (auto *toolBox = qobject_cast<QToolBox *>(object)) {
            for (int i = 0; i < toolBox->count(); ++i)
                texts << toolBox->itemText(i) << toolBox->itemToolTip(i);
        } else if (auto *options = qobject_cast<AbstractOptions *>(object)) {
            texts << options->textList() << options->toolTips();
        } else if (auto *checkCombo = qobject_cast<CheckableTextComboBox *>(object)) {
            texts << checkCombo->itemTextList() << checkCombo->toolTips();
        } else if (auto *matrix = qobject_cast<AbstractMatrixOptions *>(object)) {
            texts << matrix->textList() << matrix->toolTips();
        } else if (auto *popButtons = qobject_cast<MatrixPopButtons *>(object)) {
            texts << popButtons->textList() << popButtons->toolTips();
        }
    }
    texts.removeAll(QString());
    return texts;
}

// The texts the library's widgets on a form show of their own, whatever the form says (the
// colour names of a colour picker, the line styles of a line type box...).
QSet<QString> ownTexts(QWidget *form)
{
    QSet<QString> texts;
    QSet<QString> classes;
    for (QWidget *widget : form->findChildren<QWidget *>())
        classes.insert(QLatin1String(widget->metaObject()->className()));
    for (const QString &className : qAsConst(classes)) {
        QScopedPointer<QWidget> fresh(FormBuilder::createCommonControl(className, nullptr));
        if (fresh) {
            const QStringList shown = shownTexts(fresh.data());
            texts.unite(QSet<QString>(shown.cbegin(), shown.cend()));
        }
    }
    return texts;
}

QStringList describe(const QSet<Message> &messages)
{
    QStringList texts;
    for (const Message &message : messages)
        texts.append(message.context + QLatin1Char('/') + message.source + QLatin1Char('/')
                     + message.comment);
    texts.sort();
    return texts;
}

} // namespace

class TestFormTranslation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The real tools, on the real forms: lupdate writes one .ts for both, each message is
        // translated twice over, and lrelease makes a .qm of each translation.
        QVERIFY(m_folder.isValid());
        const QString ts = m_folder.filePath(QStringLiteral("forms.ts"));
        QString failure = CcTest::runTool(QStringLiteral(CC_LUPDATE),
                                          {exampleForm, qtWidgetsForm, QStringLiteral("-ts"), ts});
        QVERIFY2(failure.isEmpty(), qPrintable(failure));
        m_messages = CcTest::tsMessages(ts);
        QVERIFY(m_messages.size() > 100);

        QFile file(ts);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString untranslated = QString::fromUtf8(file.readAll());
        const QRegularExpression unfinished(
                QStringLiteral("(<source>(.*?)</source>.*?)<translation type=\"unfinished\">"
                               "</translation>"),
                QRegularExpression::DotMatchesEverythingOption);
        for (QTranslator *translator : {&m_first, &m_second}) {
            const bool isFirst = translator == &m_first;
            QString filled = untranslated;
            filled.replace(unfinished,
                           QStringLiteral("\\1<translation>%1</translation>")
                                   .arg((isFirst ? first : second)(QStringLiteral("\\2"))));
            QCOMPARE(filled.count(QStringLiteral("<translation>")), m_messages.size());
            const QString base = m_folder.filePath(QLatin1String(isFirst ? "first" : "second"));
            QFile out(base + QStringLiteral(".ts"));
            QVERIFY(out.open(QIODevice::WriteOnly));
            out.write(filled.toUtf8());
            out.close();
            failure = CcTest::runTool(QStringLiteral(CC_LRELEASE),
                                      {base + QStringLiteral(".ts"), QStringLiteral("-qm"),
                                       base + QStringLiteral(".qm")});
            QVERIFY2(failure.isEmpty(), qPrintable(failure));
            QVERIFY(translator->load(base + QStringLiteral(".qm")));
        }
    }

    void cleanup()
    {
        QCoreApplication::removeTranslator(&m_first);
        QCoreApplication::removeTranslator(&m_second);
        QCoreApplication::processEvents();
    }

    // Both forms, with a switch on and off.
    static void formRows(const char *switchName, const char *off)
    {
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("context");
        QTest::addColumn<bool>(switchName);
        for (const bool on : {true, false}) {
            QTest::newRow(qPrintable(QStringLiteral("library widgets") + (on ? "" : off)))
                    << exampleForm << "AllWidgets" << on;
            QTest::newRow(qPrintable(QStringLiteral("Qt widgets") + (on ? "" : off)))
                    << qtWidgetsForm << "QtWidgetsForm" << on;
        }
    }

    void translatedAtLoad_data() { formRows("enabled", ", translation off"); }

    void translatedAtLoad()
    {
        QFETCH(QString, form);
        QFETCH(QString, context);
        QFETCH(bool, enabled);
        QCoreApplication::installTranslator(&m_first);
        QScopedPointer<QWidget> loaded(load(form, enabled, false));
        QVERIFY(loaded);
        checkShown(form, context, shownTexts(loaded.data()), enabled ? first : nullptr);
    }

    void languageChange_data() { formRows("follow", ", not following"); }

    void languageChange()
    {
        QFETCH(QString, form);
        QFETCH(QString, context);
        QFETCH(bool, follow);
        QCoreApplication::installTranslator(&m_first);
        QScopedPointer<QWidget> loaded(load(form, true, follow));
        QVERIFY(loaded);
        const QStringList before = shownTexts(loaded.data());

        QCoreApplication::removeTranslator(&m_first);
        QCoreApplication::installTranslator(&m_second);
        settle();
        const QStringList after = shownTexts(loaded.data());
        if (!follow) {
            QCOMPARE(after, before);
            return;
        }
        QCOMPARE(after.filter(QStringLiteral("«")), QStringList());
        checkShown(form, context, after, second);
        // The page group's boxes show their pages' new titles.
        if (form == exampleForm) {
            QStringList boxTitles;
            for (QObject *box : loaded->findChildren<QObject *>()) {
                if (box->inherits("VoCc::DrawbackBox"))
                    boxTitles.append(box->property("title").toString());
            }
            QCOMPARE(boxTitles, QStringList({"‹Lists›", "‹Tables›", "‹Notes›"}));
        }
    }
    void translatorAskedForTranslatableTextsOnly()
    {
        // Every translatable text of the forms is asked for in its form's context with its
        // comment, at load and again on a language change; no text marked untranslated and no
        // entry data, icon path or action name ever is.
        QSet<Message> expected;
        for (const Message &message : qAsConst(m_messages))
            expected.insert(message);
        QSet<QString> untranslated =
                untranslatedTexts(exampleForm) + untranslatedTexts(qtWidgetsForm);
        for (const Message &message : qAsConst(m_messages))
            untranslated.remove(message.source);
        QVERIFY(untranslated.contains(QStringLiteral("Iso")));
        QVERIFY(untranslated.contains(QStringLiteral("fileOpen")));

        CcTest::RecordingTranslator recorder;
        QCoreApplication::installTranslator(&recorder);
        QScopedPointer<QWidget> example(load(exampleForm, true, true));
        QScopedPointer<QWidget> qtWidgets(load(qtWidgetsForm, true, true));
        QVERIFY(example);
        QVERIFY(qtWidgets);
        for (int round = 0; round < 2; ++round) {
            QSet<Message> asked;
            for (const Message &message : qAsConst(recorder.asked)) {
                QVERIFY2(!untranslated.contains(message.source), qPrintable(message.source));
                if (message.context == QLatin1String("AllWidgets")
                    || message.context == QLatin1String("QtWidgetsForm"))
                    asked.insert(message);
            }
            QCOMPARE(describe(asked - expected), QStringList());
            QCOMPARE(describe(expected - asked), QStringList());
            // A language change asks again.
            recorder.asked.clear();
            QCoreApplication::removeTranslator(&recorder);
            QCoreApplication::installTranslator(&recorder);
            settle();
        }
        QCoreApplication::removeTranslator(&recorder);
    }

    // The preview tool renders the example form whole: big enough, and with the many colours of
    // real widgets rather than a blank area. With a translation it renders the form translated.
    void previewShowsTheWholeForm()
    {
        const QImage image = preview({});
        QVERIFY2(image.width() >= 800, qPrintable(QString::number(image.width())));
        QVERIFY2(image.height() >= 500, qPrintable(QString::number(image.height())));
        QSet<QRgb> colours;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                colours.insert(image.pixel(x, y));
        }
        QVERIFY2(colours.size() >= 200, qPrintable(QString::number(colours.size())));
        const QImage translated = preview(
                {QStringLiteral("--translation"), m_folder.filePath(QStringLiteral("first.qm"))});
        QVERIFY(!translated.isNull());
        QVERIFY(translated != image);
    }

private:
    // What a form loaded with translator, or without one (null), shows: each of the context's
    // messages translated, and nowhere as it was written (unless a text marked untranslated, or
    // one a widget shows of its own, is the same); a text marked untranslated as written,
    // wherever the form loaded without translation shows it. Without translation: that form.
    void checkShown(const QString &form, const QString &context, const QStringList &shown,
                    QString (*translated)(const QString &))
    {
        QScopedPointer<QWidget> plain(load(form, false, false));
        QVERIFY(plain);
        const QStringList plainTexts = shownTexts(plain.data());
        if (!translated) {
            QCOMPARE(shown, plainTexts);
            return;
        }
        const QSet<QString> untranslated = untranslatedTexts(form);
        QVERIFY(!untranslated.isEmpty());
        const QSet<QString> own = ownTexts(plain.data());
        for (const Message &message : qAsConst(m_messages)) {
            if (message.context != context)
                continue;
            QVERIFY2(shown.contains(translated(message.source)), qPrintable(message.source));
            if (!untranslated.contains(message.source) && !own.contains(message.source))
                QVERIFY2(!shown.contains(message.source), qPrintable(message.source));
        }
        for (const QString &text : untranslated) {
            QVERIFY2(!shown.contains(translated(text)), qPrintable(text));
            QCOMPARE(shown.contains(text), plainTexts.contains(text));
        }
    }

    // The example form as ccpreview renders it with the options given.
    QImage preview(const QStringList &options)
    {
        const QString image = m_folder.filePath(QStringLiteral("preview.png"));
        QFile::remove(image);
        const QString failure = CcTest::runTool(QStringLiteral(CC_PREVIEW),
                                                options + QStringList({exampleForm, image}));
        if (!failure.isEmpty())
            qWarning("%s", qPrintable(failure));
        return QImage(image);
    }

    static QWidget *load(const QString &fileName, bool translate, bool follow)
    {
        QFile file(fileName);
        if (!file.open(QIODevice::ReadOnly))
            return nullptr;
        FormBuilder builder;
        builder.setTranslationEnabled(translate);
        builder.setLanguageChangeEnabled(follow);
        QWidget *form = builder.load(&file);
        settle();
        return form;
    }

    // Delivers the language change events, and lets the controls that fill their inner
    // widgets from the event loop do so.
    static void settle()
    {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
    }

    QTemporaryDir m_folder;
    QVector<Message> m_messages;
    QTranslator m_first;
    QTranslator m_second;
};

QTEST_MAIN(TestFormTranslation)
#include "tst_formtranslation.moc"
