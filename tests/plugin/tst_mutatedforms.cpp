// Forms a hand, a script or another tool may have written: loadable, but odd. Each starts as a
// valid form holding every list-like family and the page group, seeded random mutations bend
// it, and it goes through Designer with the module (load, save, load, save) and through
// VoCc::FormBuilder (load, save). Every value of the mutated form must be in what each saves,
// or a warning must name the widget, the property and the value; every warning must name a
// widget of the form; nothing may crash or hang. A form either road refuses must be refused
// with a reason.
//
// A failing form is shrunk to the mutations and widgets that still fail and printed with the
// command that runs it again. A form taking longer than the time limit, or crashing, prints
// that command before the process ends.
// CC_MUTATED_FORMS (default 300) sets how many forms run, CC_MUTATION_SEED (default 1) the
// seed of the first; form i uses seed + i.

#include "designertestcore.h"
#include "formroundtrip.h"
#include "formvalues.h"
#include "pipeprobe.h"
#include "testpictures.h"

#include <QtTest>
#include <QtXml>

#include <csignal>

#include <unistd.h>

using namespace CcTest;

namespace {

// The widgets of the starting form, by class; a form holds those of its mask.
const char *const familyClasses[] = {
        "VoCc::ComboBox",          "VoCc::CheckableTextComboBox", "VoCc::OptionComboBox",
        "VoCc::OptionButtons",     "VoCc::OptionRadios",          "VoCc::OptionCheckBox",
        "VoCc::MatrixPushButtons", "VoCc::MatrixRadioButtons",    "VoCc::MatrixCheckBoxes",
        "VoCc::MatrixPopButtons",  "VoCc::DrawbackBoxGroup",
};
const int familyCount = int(std::size(familyClasses));
const quint32 allFamilies = (1u << familyCount) - 1;

// Texts an author types, XML's special characters and non-ASCII letters among them.
const char *const words[] = {"x", "Zwölf", "a&b", "<tag>", "\"q\"", "two words", "y'z", "Ende"};

// Paths an icon may name that are no picture; the FIFO would block whoever opens it, and its
// probe tells when something did.
struct OddPaths
{
    PipeProbe pipe;
    QStringList all() const
    {
        return {pipe.dir.path(), QStringLiteral("/dev/zero"), QStringLiteral("/dev/null"),
                pipe.path};
    }
};
OddPaths *oddPaths = nullptr;
QString pictureFile;

enum Kind {
    Retype, // a list or item property as another XML type
    BadNumber, // row, column or current index negative, not a number, huge
    Twice, // a property or a list given twice
    NestedItem, // an item inside an item
    UnknownProperty,
    UnknownAttribute,
    ObjectName, // a widget's or page's name repeated or removed
    Marks, // translation attributes added or removed
    OddIconPath, // a directory, a device, a pipe
    KindCount
};
const char kindLetters[] = "RNTIPAOMC";

struct Mutation
{
    int kind;
    quint32 a, b, c;
};

struct MutatedForm
{
    quint32 seed;
    quint32 families; // mask of familyClasses
    int encoding; // 0 UTF-8, 1 UTF-8 with BOM, 2 UTF-16LE, 3 UTF-16BE, 4 UTF-32LE
    QVector<Mutation> mutations;
};

const char *const encodingNames[] = {"UTF-8", "UTF-8 BOM", "UTF-16LE", "UTF-16BE", "UTF-32LE"};

QString describe(const MutatedForm &form)
{
    QString text = QString::asprintf(
            "seed %u, %s, widgets %#x (mutations R retype, N bad number, T twice, I nested "
            "item, P unknown property, A unknown attribute, O object name, M marks, C odd "
            "icon path):",
            form.seed, encodingNames[form.encoding], form.families);
    for (const Mutation &m : form.mutations)
        text += QString::asprintf(" %c(%u,%u,%u)", kindLetters[m.kind], m.a, m.b, m.c);
    return text;
}

QString word(quint32 n)
{
    return QString::fromUtf8(words[n % std::size(words)]) + QString::number(n % 97);
}

QString escaped(const QString &text) { return text.toHtmlEscaped(); }

QString stringXml(const QString &name, const QString &value, bool notr = false)
{
    return QStringLiteral("<property name=\"%1\"><string%3>%2</string></property>")
            .arg(name, escaped(value), notr ? QStringLiteral(" notr=\"true\"") : QString());
}
QString numberXml(const QString &name, int value)
{
    return QStringLiteral("<property name=\"%1\"><number>%2</number></property>")
            .arg(name)
            .arg(value);
}

// The valid form a mutated form starts from: each family with two to four entries holding
// every value its editor offers, some texts marked for translation, the page group with its
// pages' titles.
QString startingForm(const MutatedForm &form)
{
    QRandomGenerator random(form.seed ^ 0x5eed5eedu);
    QString body;
    int y = 0;
    for (int f = 0; f < familyCount; ++f) {
        if (!(form.families & (1u << f)))
            continue;
        const QString className = QLatin1String(familyClasses[f]);
        const QString name = className.mid(6, 1).toLower() + className.mid(7);
        QString inner = QStringLiteral("<property name=\"geometry\"><rect><x>0</x><y>%1</y>"
                                       "<width>200</width><height>40</height></rect></property>")
                                .arg(y);
        y += 44;
        const int entries = 2 + int(random.bounded(3));
        const auto text = [&](int i) {
            const QString t = QStringLiteral("t%1 ").arg(i) + word(random.generate());
            if (random.bounded(4) == 0)
                return QStringLiteral("<property name=\"text\"><string comment=\"c%1\" "
                                      "extracomment=\"e%1\">%2</string></property>")
                        .arg(i)
                        .arg(escaped(t));
            return stringXml("text", t);
        };
        const auto icon = [&](int i) {
            return stringXml("icon", i == 0 ? pictureFile : QStringLiteral("icons/i%1.png").arg(i),
                             true);
        };
        const auto tip = [&](int i) {
            return stringXml("toolTip", QStringLiteral("tip%1 ").arg(i) + word(random.generate()));
        };
        const auto data = [&](int i) {
            return stringXml("data", QStringLiteral("d%1").arg(i), true);
        };
        const auto action = [&](int i) {
            return stringXml("action", QStringLiteral("act%1").arg(i), true);
        };
        if (className == QLatin1String("VoCc::DrawbackBoxGroup")) {
            for (int i = 0; i < entries; ++i) {
                inner += QStringLiteral("<widget class=\"QWidget\" name=\"page%1\">%2</widget>")
                                 .arg(i)
                                 .arg(stringXml("windowTitle",
                                                QStringLiteral("title%1 ").arg(i)
                                                        + word(random.generate())));
            }
            inner += numberXml("currentIndex", int(random.bounded(entries)));
        } else if (className == QLatin1String("VoCc::MatrixPopButtons")) {
            inner += numberXml("row", 2) + numberXml("column", 2);
            inner += QStringLiteral("<property name=\"textList\"><stringlist>");
            for (int i = 0; i < entries; ++i)
                inner += QStringLiteral("<string>%1</string>")
                                 .arg(escaped(QStringLiteral("p%1 ").arg(i)
                                              + word(random.generate())));
            inner += QStringLiteral("</stringlist></property>");
            for (int i = 0; i < entries; ++i)
                inner += QStringLiteral("<item>%1</item>").arg(icon(i) + tip(i) + action(i));
        } else {
            const bool matrix = className.startsWith(QLatin1String("VoCc::Matrix"));
            if (matrix)
                inner += numberXml("row", 2) + numberXml("column", 2);
            for (int i = 0; i < entries; ++i) {
                QString item;
                if (className == QLatin1String("VoCc::ComboBox"))
                    item = text(i) + action(i);
                else if (className == QLatin1String("VoCc::CheckableTextComboBox"))
                    item = text(i) + tip(i);
                else if (className == QLatin1String("VoCc::OptionComboBox"))
                    item = data(i) + text(i) + icon(i);
                else if (matrix)
                    item = text(i) + icon(i) + tip(i) + action(i);
                else
                    item = data(i) + text(i) + icon(i) + tip(i);
                inner += QStringLiteral("<item>%1</item>").arg(item);
            }
        }
        body += QStringLiteral("<widget class=\"%1\" name=\"%2\">%3</widget>\n")
                        .arg(className, name, inner);
    }
    return formXml(body, pageGroupDeclaration());
}

// The elements of our widgets (and the pages of groups) of the document, in order.
QVector<QDomElement> ourWidgets(const QDomDocument &document, bool pages)
{
    QVector<QDomElement> widgets;
    const QDomNodeList all = document.elementsByTagName(QStringLiteral("widget"));
    for (int i = 0; i < all.size(); ++i) {
        const QDomElement element = all.at(i).toElement();
        const bool ours =
                element.attribute(QStringLiteral("class")).startsWith(QLatin1String("VoCc::"));
        const bool page = element.parentNode().toElement().attribute(QStringLiteral("class"))
                == QLatin1String("VoCc::DrawbackBoxGroup");
        if (ours || (pages && page))
            widgets.append(element);
    }
    return widgets;
}

// The elements of that tag inside any of roots.
QVector<QDomElement> descendants(const QVector<QDomElement> &roots, const char *tag)
{
    QVector<QDomElement> found;
    for (const QDomElement &root : roots) {
        const QDomNodeList all = root.elementsByTagName(QLatin1String(tag));
        for (int i = 0; i < all.size(); ++i)
            found.append(all.at(i).toElement());
    }
    return found;
}

// The properties entries are kept in: those of items, a pop-button matrix's text list and
// a page's title.
QVector<QDomElement> listProperties(const QDomDocument &document)
{
    QVector<QDomElement> found;
    for (const QDomElement &widget : ourWidgets(document, true)) {
        for (const QDomElement &property : descendants({widget}, "property")) {
            const QString name = property.attribute(QStringLiteral("name"));
            if (property.parentNode().nodeName() == QLatin1String("item")
                || name == QLatin1String("textList") || name == QLatin1String("windowTitle"))
                found.append(property);
        }
    }
    return found;
}

QDomElement element(QDomDocument &document, const QString &xml)
{
    QDomDocument piece;
    piece.setContent(xml);
    return document.importNode(piece.documentElement(), true).toElement();
}

void replaceValue(QDomDocument &document, QDomElement property, const QString &valueXml)
{
    while (property.hasChildNodes())
        property.removeChild(property.firstChild());
    property.appendChild(element(document, valueXml));
}

template<class T>
const T &pick(const QVector<T> &list, quint32 n)
{
    return list.at(int(n % quint32(list.size())));
}

void mutate(QDomDocument &document, const Mutation &m)
{
    const QVector<QDomElement> widgets = ourWidgets(document, false);
    if (widgets.isEmpty())
        return;
    switch (m.kind) {
    case Retype: {
        const QVector<QDomElement> properties = listProperties(document);
        if (properties.isEmpty())
            return;
        const QString w = escaped(word(m.b));
        const QString values[] = {
                QStringLiteral("<number>%1</number>").arg(int(m.b % 1000) - 500),
                QStringLiteral("<string>%1</string>").arg(w),
                QStringLiteral("<iconset><normaloff>%1.png</normaloff></iconset>").arg(w),
                QStringLiteral("<pixmap>%1.png</pixmap>").arg(w),
                QStringLiteral("<stringlist><string>%1</string><string>n%2</string></stringlist>")
                        .arg(w)
                        .arg(m.c % 100),
                QStringLiteral("<bool>true</bool>"),
                QStringLiteral("<cstring>%1</cstring>").arg(w),
        };
        replaceValue(document, pick(properties, m.a), values[m.c % std::size(values)]);
        break;
    }
    case BadNumber: {
        const QDomElement widget = pick(widgets, m.a);
        const QString className = widget.attribute(QStringLiteral("class"));
        QString name = QStringLiteral("currentIndex");
        if (className.startsWith(QLatin1String("VoCc::Matrix")))
            name = m.b % 2 ? QStringLiteral("row") : QStringLiteral("column");
        const char *const numbers[] = {"-1",          "-7",         "abc", "99999999999", "0",
                                       "-2147483648", "2147483647", "100", "1e3",         " 3 "};
        const QString number = QLatin1String(numbers[m.c % std::size(numbers)]);
        const QString valueXml = (m.c / 16) % 4 == 0
                ? QStringLiteral("<string>%1</string>").arg(number)
                : QStringLiteral("<number>%1</number>").arg(number);
        QDomElement property;
        for (const QDomElement &p : descendants({widget}, "property")) {
            if (p.parentNode() == widget && p.attribute(QStringLiteral("name")) == name)
                property = p;
        }
        if (property.isNull()) {
            property = document.createElement(QStringLiteral("property"));
            property.setAttribute(QStringLiteral("name"), name);
            QDomElement w = widget;
            w.appendChild(property);
        }
        replaceValue(document, property, valueXml);
        break;
    }
    case Twice: {
        QVector<QDomElement> properties = listProperties(document);
        for (const QDomElement &widget : widgets) {
            for (const QDomElement &p : descendants({widget}, "property")) {
                const QString name = p.attribute(QStringLiteral("name"));
                if (p.parentNode() == widget && name != QLatin1String("geometry"))
                    properties.append(p);
            }
        }
        if (properties.isEmpty())
            return;
        QDomElement original = pick(properties, m.a);
        QDomElement copy = original.cloneNode(true).toElement();
        // The copy holds other values, so that either one can be missed.
        for (QDomElement leaf : descendants({copy}, "string"))
            leaf.firstChild().setNodeValue(leaf.text() + QStringLiteral(" again"));
        for (QDomElement leaf : descendants({copy}, "number")) {
            if (leaf.firstChild().isText())
                leaf.firstChild().setNodeValue(QString::number(1 + m.b % 3));
        }
        original.parentNode().insertAfter(copy, original);
        break;
    }
    case NestedItem: {
        const QVector<QDomElement> items = descendants(widgets, "item");
        if (items.isEmpty())
            return;
        QDomElement outer = pick(items, m.a);
        QDomElement inner = m.c % 2
                ? pick(items, m.b).cloneNode(true).toElement()
                : element(document,
                          QStringLiteral("<item>%1</item>")
                                  .arg(stringXml("text", QStringLiteral("inner ") + word(m.b))));
        outer.appendChild(inner);
        break;
    }
    case UnknownProperty: {
        QDomElement target = pick(widgets, m.a);
        const QVector<QDomElement> items = descendants({target}, "item");
        if (m.c % 2 && !items.isEmpty())
            target = pick(items, m.b);
        target.appendChild(element(document,
                                   stringXml(QStringLiteral("zork%1").arg(m.b % 10),
                                             QStringLiteral("unknown ") + word(m.b))));
        break;
    }
    case UnknownAttribute: {
        // Qt's reader refuses a form with an attribute it does not know on an element it
        // reads attributes of (with a reason); the strings of a string list it reads as plain
        // texts. Mostly the latter, so that most such forms get further than the reader.
        QVector<QDomElement> targets = descendants(descendants(widgets, "stringlist"), "string");
        if (m.c % 8 == 0)
            targets = descendants({pick(widgets, m.a)}, "string");
        if (targets.isEmpty())
            return;
        QDomElement target = pick(targets, m.b);
        target.setAttribute(QStringLiteral("zork"), word(m.c));
        break;
    }
    case ObjectName: {
        const QVector<QDomElement> named = ourWidgets(document, true);
        QDomElement target = pick(named, m.a);
        if (m.c % 3 == 0)
            target.removeAttribute(QStringLiteral("name"));
        else
            target.setAttribute(QStringLiteral("name"),
                                pick(named, m.b).attribute(QStringLiteral("name")));
        break;
    }
    case Marks: {
        QVector<QDomElement> strings;
        for (const QDomElement &property : listProperties(document))
            strings += descendants({property}, "string") + descendants({property}, "stringlist");
        if (strings.isEmpty())
            return;
        QDomElement target = pick(strings, m.a);
        const char *const marks[] = {"notr", "comment", "extracomment", "id"};
        const QString mark = QLatin1String(marks[m.b % std::size(marks)]);
        if (m.c % 3 == 0)
            target.removeAttribute(mark);
        else
            target.setAttribute(mark,
                                mark == QLatin1String("notr") ? QString(m.c % 2 ? "true" : "false")
                                                              : mark.left(1) + word(m.c));
        break;
    }
    case OddIconPath: {
        QVector<QDomElement> items;
        for (const QDomElement &widget : widgets) {
            if (widget.attribute(QStringLiteral("class")) != QLatin1String("VoCc::ComboBox"))
                items += descendants({widget}, "item");
        }
        if (items.isEmpty())
            return;
        QDomElement item = pick(items, m.a);
        for (QDomElement property : descendants({item}, "property")) {
            if (property.attribute(QStringLiteral("name")) == QLatin1String("icon"))
                item.removeChild(property);
        }
        item.appendChild(
                element(document, stringXml("icon", oddPaths->all().at(int(m.b % 4)), true)));
        break;
    }
    default:
        break;
    }
}

QByteArray encoded(const QString &text, int encoding)
{
    if (encoding == 0)
        return text.toUtf8();
    const char *const declared[] = {"UTF-8", "UTF-8", "UTF-16", "UTF-16", "UTF-32"};
    QString document = text;
    document.replace(QRegularExpression(QStringLiteral("encoding=['\"]UTF-8['\"]")),
                     QStringLiteral("encoding=\"%1\"").arg(QLatin1String(declared[encoding])));
    document.prepend(QChar(0xfeff)); // the byte order mark
    if (encoding == 1)
        return document.toUtf8();
    QByteArray bytes;
    const auto put = [&bytes](quint32 unit, int size, bool bigEndian) {
        for (int i = 0; i < size; ++i) {
            const int shift = 8 * (bigEndian ? size - 1 - i : i);
            bytes.append(char((unit >> shift) & 0xff));
        }
    };
    if (encoding == 4) {
        for (uint code : document.toUcs4())
            put(code, 4, false);
    } else {
        for (const QChar c : qAsConst(document))
            put(c.unicode(), 2, encoding == 3);
    }
    return bytes;
}

QByteArray mutatedText(const MutatedForm &form)
{
    QDomDocument document;
    document.setContent(startingForm(form));
    for (const Mutation &m : form.mutations)
        mutate(document, m);
    QString text = document.toString(1);
    return encoded(text, form.encoding);
}

MutatedForm generate(quint32 seed)
{
    QRandomGenerator random(seed);
    MutatedForm form {seed, allFamilies, 0, {}};
    const int encoding = int(random.bounded(10));
    form.encoding = encoding < 5 ? encoding : 0;
    const int count = 1 + int(random.bounded(6));
    for (int i = 0; i < count; ++i)
        form.mutations.append({int(random.bounded(int(KindCount))), random.generate(),
                               random.generate(), random.generate()});
    return form;
}

// The command that runs a form again, printed when the form fails, and by the handler of an
// alarm (the form took longer than the time limit) or of a fatal signal (it crashed).
const unsigned formSeconds = 30;
char rerun[512];

QString rerunCommand(const MutatedForm &form)
{
    return QStringLiteral("CC_MUTATED_FORMS=1 CC_MUTATION_SEED=%1 QT_QPA_PLATFORM=offscreen %2 "
                          "mutatedForms")
            .arg(form.seed)
            .arg(QCoreApplication::applicationFilePath());
}

void fatalSignal(int signal)
{
    const char *what = signal == SIGALRM
            ? "\nA mutated form took longer than the time limit. Run it again with:\n"
            : "\nA mutated form crashed the loader. Run it again with:\n";
    const ssize_t a = write(STDERR_FILENO, what, strlen(what));
    const ssize_t b = write(STDERR_FILENO, rerun, strlen(rerun));
    Q_UNUSED(a)
    Q_UNUSED(b)
    if (signal == SIGALRM)
        std::_Exit(3);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

// How many forms each road refused, and how many warnings they raised, in the last run.
int refusedForms[2] = {};
int warnings[2] = {};

// What is wrong with one road's result for the input, or an empty text.
QString problemsOf(const char *road, const QByteArray &input, const RoundTrip &trip)
{
    const int r = road[0] == 'D' ? 0 : 1;
    refusedForms[r] += trip.loaded ? 0 : 1;
    warnings[r] += int(trip.warnings.size());
    QStringList problems;
    if (!trip.loaded) {
        if (qEnvironmentVariableIsSet("CC_MUTATION_REFUSALS"))
            fprintf(stderr, "refused: %s\n", qPrintable(trip.error));
        // The reader's message names a line.
        if (trip.error.trimmed().isEmpty())
            problems << QStringLiteral("refused without a reason");
    } else {
        for (const FormValues::Value &loss :
             FormValues::unexplainedLosses(input, trip.saved, trip.warnings))
            problems << QStringLiteral("lost without a word: ") + FormValues::describe(loss);
        // A warning has to say which widget it is about: its class and its name in quotes.
        const QStringList widgets =
                FormValues::widgetsOf(input) + FormValues::widgetsOf(trip.saved);
        for (const QString &warning : trip.warnings) {
            if (std::none_of(widgets.cbegin(), widgets.cend(),
                             [&](const QString &widget) { return warning.contains(widget); }))
                problems << QStringLiteral("a warning that names no widget of the form: ")
                                + warning;
        }
    }
    if (problems.isEmpty())
        return QString();
    return QStringLiteral("%1: %2").arg(QLatin1String(road), problems.join(QStringLiteral("\n  ")));
}

QString runForm(const MutatedForm &form)
{
    const QByteArray command =
            QStringLiteral("%1\n(%2)\n").arg(rerunCommand(form), describe(form)).toLocal8Bit();
    qstrncpy(rerun, command.constData(), sizeof rerun);
    alarm(formSeconds);
    const QByteArray input = mutatedText(form);
    oddPaths->pipe.forget();
    // The roads in this order: the pipe is looked at after both.
    QStringList problems = {problemsOf("Designer", input, throughDesigner(input)),
                            problemsOf("VoCc::FormBuilder", input, throughFormBuilder(input)),
                            oddPaths->pipe.wasOpened()
                                    ? QStringLiteral("an icon path naming a FIFO was opened")
                                    : QString()};
    alarm(0);
    problems.removeAll(QString());
    return problems.join(QLatin1Char('\n'));
}

// The smallest form found by leaving out mutations, then widgets, that still fails.
MutatedForm shrink(MutatedForm form)
{
    for (int i = form.mutations.size() - 1; i >= 0; --i) {
        MutatedForm smaller = form;
        smaller.mutations.remove(i);
        if (!runForm(smaller).isEmpty())
            form = smaller;
    }
    if (form.encoding != 0) {
        MutatedForm smaller = form;
        smaller.encoding = 0;
        if (!runForm(smaller).isEmpty())
            form = smaller;
    }
    for (int f = 0; f < familyCount; ++f) {
        MutatedForm smaller = form;
        smaller.families &= ~(1u << f);
        if (smaller.families && !runForm(smaller).isEmpty())
            form = smaller;
    }
    return form;
}

} // namespace

class TestMutatedForms : public QObject
{
    Q_OBJECT
    TestPictures m_pictures;
    OddPaths m_oddPaths;

private slots:
    void initTestCase()
    {
        usePluginModulesOnly({QStringLiteral(CC_PLUGIN_MODULE)});
        QVERIFY(designerCore());
        pictureFile = m_pictures.red;
        oddPaths = &m_oddPaths;
        QVERIFY(!m_oddPaths.pipe.path.isEmpty());
        for (int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGALRM})
            std::signal(signal, fatalSignal);
    }

    void startingFormsLoseNothing()
    {
        // The comparison finds nothing missing in the forms the mutations start from, and
        // finds the values a form really lost: it would otherwise pass any mutated form.
        const MutatedForm plain {1, allFamilies, 0, {}};
        const QByteArray input = mutatedText(plain);
        QVERIFY(FormValues::valuesOf(input).size() > 100);
        QCOMPARE(runForm(plain), QString());
        QByteArray cut = input;
        cut.replace("<string>t1 ", "<string>changed ");
        const QVector<FormValues::Value> losses = FormValues::unexplainedLosses(input, cut, {});
        QVERIFY(!losses.isEmpty());
        QCOMPARE(losses.first().property, QStringLiteral("text"));
        QVERIFY(losses.first().value.startsWith(QLatin1String("t1 ")));
    }

    void comparison_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::addColumn<QString>("warning");
        QTest::addColumn<QStringList>("lost"); // property=value of each unexplained loss
        const auto form = [](const char *className, const QString &inner) {
            return formXml(widgetXml(className, "w", inner));
        };
        const QString a = itemXml(propertyXml("text", "A"));
        const QString b = itemXml(propertyXml("text", "B"));
        QTest::newRow("kept") << form("VoCc::OptionButtons", a + b)
                              << form("VoCc::OptionButtons", a + b) << QString() << QStringList();
        QTest::newRow("dropped") << form("VoCc::OptionButtons", a + b)
                                 << form("VoCc::OptionButtons", b) << QString()
                                 << QStringList {"text=A"};
        QTest::newRow("dropped and named")
                << form("VoCc::OptionButtons", a + b) << form("VoCc::OptionButtons", b)
                << QStringLiteral("VoCc::OptionButtons \"w\": property \"text\" value \"A\"")
                << QStringList();
        QTest::newRow("named for another widget")
                << form("VoCc::OptionButtons", a + b) << form("VoCc::OptionButtons", b)
                << QStringLiteral("VoCc::OptionButtons \"v\": property \"text\" value \"A\"")
                << QStringList {"text=A"};
        QTest::newRow("an entry held twice, kept once")
                << form("VoCc::ComboBox", a + a) << form("VoCc::ComboBox", a) << QString()
                << QStringList {"text=A"};
        QTest::newRow("a property an item holds twice alike")
                << form("VoCc::ComboBox",
                        itemXml(propertyXml("text", "A") + propertyXml("text", "A")))
                << form("VoCc::ComboBox", a) << QString() << QStringList();
        const QString list = QStringLiteral(
                "<property "
                "name=\"textList\"><stringlist><string>A</string></stringlist></property>");
        QTest::newRow("a list a widget holds twice alike")
                << form("VoCc::MatrixPopButtons", list + list)
                << form("VoCc::MatrixPopButtons", list) << QString() << QStringList();
        QTest::newRow("a number as Qt's reader reads it")
                << form("VoCc::MatrixPushButtons", propertyXml("row", "abc", "number"))
                << form("VoCc::MatrixPushButtons", propertyXml("row", "0", "number")) << QString()
                << QStringList();
        QTest::newRow("pop-button texts in items or the list")
                << form("VoCc::MatrixPopButtons", a)
                << form("VoCc::MatrixPopButtons",
                        QStringLiteral("<property name=\"textList\"><stringlist><string>A"
                                       "</string></stringlist></property>"))
                << QString() << QStringList();
        QTest::newRow("a mark dropped")
                << form("VoCc::OptionButtons",
                        itemXml(QStringLiteral("<property name=\"text\"><string comment=\"c\">A"
                                               "</string></property>")))
                << form("VoCc::OptionButtons", a) << QString() << QStringList {"text@comment=c"};
        QTest::newRow("a page title")
                << form("VoCc::DrawbackBoxGroup",
                        widgetXml("QWidget", "p", propertyXml("windowTitle", "T")))
                << form("VoCc::DrawbackBoxGroup", widgetXml("QWidget", "p")) << QString()
                << QStringList {"windowTitle=T"};
        QTest::newRow("Qt's widgets are not counted")
                << form("QComboBox", a) << form("QComboBox", QString()) << QString()
                << QStringList();
    }

    void comparison()
    {
        // What the comparison counts as lost: the cases the mutated forms rely on.
        QFETCH(QString, before);
        QFETCH(QString, after);
        QFETCH(QString, warning);
        QFETCH(QStringList, lost);
        QStringList found;
        const QStringList warnings = warning.isEmpty() ? QStringList() : QStringList {warning};
        for (const FormValues::Value &value :
             FormValues::unexplainedLosses(before.toUtf8(), after.toUtf8(), warnings))
            found << value.property + QLatin1Char('=') + value.value;
        QCOMPARE(found, lost);
    }

    void mutatedForms()
    {
        const int forms = qEnvironmentVariable("CC_MUTATED_FORMS", "300").toInt();
        const quint32 seed = qEnvironmentVariable("CC_MUTATION_SEED", "1").toUInt();
        QElapsedTimer clock;
        clock.start();
        std::fill(std::begin(refusedForms), std::end(refusedForms), 0);
        std::fill(std::begin(warnings), std::end(warnings), 0);
        // CC_MUTATION_FOLDER keeps each form as a file there too, for other tools to read.
        const QDir keep(qEnvironmentVariable("CC_MUTATION_FOLDER"));
        for (int i = 0; i < forms; ++i) {
            const MutatedForm form = generate(seed + quint32(i));
            if (qEnvironmentVariableIsSet("CC_MUTATION_FOLDER")) {
                QFile file(keep.filePath(QStringLiteral("form%1.ui").arg(form.seed)));
                QVERIFY(file.open(QIODevice::WriteOnly));
                file.write(mutatedText(form));
            }
            const QString broken = runForm(form);
            if (!broken.isEmpty()) {
                const MutatedForm small = shrink(form);
                QFAIL(qPrintable(
                        QStringLiteral("%1\nRun it again with: %2\nshrunk to %3\n%4\n%5")
                                .arg(broken, rerunCommand(form), describe(small), runForm(small),
                                     QString::fromUtf8(mutatedText(MutatedForm {
                                             small.seed, small.families, 0, small.mutations})))));
            }
        }
        // Printed whatever QtTest's limit on messages: the suite's time is a figure to watch.
        fprintf(stderr,
                "%d mutated forms from seed %u, %.1f s; refused by Designer %d, by the form "
                "builder %d; warnings %d and %d\n",
                forms, seed, clock.elapsed() / 1000.0, refusedForms[0], refusedForms[1],
                warnings[0], warnings[1]);
    }
};

QTEST_MAIN(TestMutatedForms)
#include "tst_mutatedforms.moc"
