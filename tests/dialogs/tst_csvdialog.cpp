#include "documentopener.h"
#include "testsupport.h"
#include "whenshown.h"

#include <CorvelGui/FileNameValidatingLineEdit>
#include <CorvelGui/PCsvDialog>

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

#include <functional>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace {

QStringList opened;

bool record(const QString& fileName)
{
    opened.append(fileName);
    return true;
}

/// The dialog with hands for its parts.
struct Dialog : PCsvDialog
{
    using PCsvDialog::PCsvDialog;

    template <typename Part>
    Part* part(const QString& name) const
    {
        return findChild<Part*>(name);
    }
    QPushButton* ok() const
    {
        return part<QDialogButtonBox>(u"buttonBox"_s)->button(QDialogButtonBox::Ok);
    }
    QListWidget* columns() const { return part<QListWidget>(u"listWidgetColumns"_s); }
    void setFile(const QString& name) { part<QLineEdit>(u"lineEditExportToFile"_s)->setText(name); }
    void check(const QString& box, bool checked) { part<QCheckBox>(box)->setChecked(checked); }
    void choose(const QString& box, int index) { part<QComboBox>(box)->setCurrentIndex(index); }
    void uncheckColumn(int column) { columns()->item(column)->setCheckState(Qt::Unchecked); }
};

QByteArray contents(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? file.readAll() : "(none)";
}

/// Makes writing the file fail; false if that cannot be done here.
using Spoil = std::function<bool(const QString&)>;

bool write(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write("old") == 3;
}

/// Lets no file grow beyond @p bytes, as a disk that becomes full; 0 ends that.
bool limitFiles([[maybe_unused]] qint64 bytes)
{
#ifdef Q_OS_UNIX
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = bytes ? rlim_t(bytes) : limit.rlim_max;
    return setrlimit(RLIMIT_FSIZE, &limit) == 0;
#else
    return false;
#endif
}

/// A site with two cameras below it, the second hidden, and a roof; all collapsed.
void fill(QTreeWidget& tree)
{
    tree.setHeaderLabels({u"A"_s, u"B"_s, u"C"_s});
    tree.setSelectionMode(QAbstractItemView::ExtendedSelection);
    auto* site = new QTreeWidgetItem(&tree, {u"a1"_s, u"b\"1"_s, u"ä;1"_s});
    new QTreeWidgetItem(site, {u"a2"_s, QString(), u"c\n2"_s});
    (new QTreeWidgetItem(site, {u"a3"_s, u"b3"_s, u"c3"_s}))->setHidden(true);
    new QTreeWidgetItem(&tree, {u"a4"_s, u"b4"_s, u"c4"_s});
    for (QTreeWidgetItemIterator item(&tree); *item; ++item)
        (*item)->setSelected(true);
}

void fill(QTableWidget& table)
{
    table.setColumnCount(3);
    table.setHorizontalHeaderLabels({u"A"_s, u"B"_s, u"C"_s});
    table.setRowCount(4);
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 3; ++column)
            table.setItem(row, column,
                          new QTableWidgetItem(QChar(u'a' + column) + QString::number(row + 1)));
}

} // namespace

class TestCsvDialog : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void startsWithDefaults();
    void writesTree_data();
    void writesTree();
    void writesSelectedCells_data();
    void writesSelectedCells();
    void followsRanges();
    void writesNothingWithoutList();
    void okFollowsTheFile();
    void browses();
    void opensTheFile();
    void keepsTheFileOnFailure_data();
    void keepsTheFileOnFailure();
    void ownerMayGo();

private:
    QString exported(Dialog& dialog);

    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_file;
};

void TestCsvDialog::init()
{
    WarningFreeTest::init();
    m_directory = std::make_unique<QTemporaryDir>();
    m_file = m_directory->filePath(u"list.csv"_s);
    opened.clear();
    setDocumentOpener(record);
}

void TestCsvDialog::cleanup()
{
    setDocumentOpener(nullptr);
}

QString TestCsvDialog::exported(Dialog& dialog)
{
    const QSignalSpy accepted(&dialog, &QDialog::accepted);
    dialog.setFile(m_file);
    dialog.ok()->click();
    return accepted.size() == 1 ? QString::fromUtf8(contents(m_file)) : u"(not accepted)"_s;
}

void TestCsvDialog::startsWithDefaults()
{
    QTableWidget table;
    fill(table);
    Dialog dialog(&table);
    QCOMPARE(dialog.windowTitle(), u"Csv Export Dialog"_s);
    QCOMPARE(dialog.columns()->count(), 3);
    QCOMPARE(dialog.columns()->item(2)->text(), u"C"_s);
    QCOMPARE(dialog.columns()->item(2)->checkState(), Qt::Checked);
    QCOMPARE(dialog.GetDelimiter(), u';');
    QCOMPARE(dialog.GetTextQuote(), u'"');
    QVERIFY(dialog.AddColumnsAtTop());
    QVERIFY(dialog.part<QCheckBox>(u"checkBoxOpenExcel"_s)->isChecked());
    for (auto* widget : dialog.findChildren<QWidget*>())
        if (widget->focusPolicy() != Qt::NoFocus && widget->objectName().contains(u'E'))
            QVERIFY2(
                !QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).isEmpty(),
                qPrintable(widget->objectName()));
}

void TestCsvDialog::writesTree_data()
{
    QTest::addColumn<int>("delimiter");
    QTest::addColumn<int>("quote");
    QTest::addColumn<bool>("header");
    QTest::addColumn<QList<int>>("unchecked");
    QTest::addColumn<QString>("text");
    const QString all = u"'A';'B';'C'\n'a1';'b\"1';'ä;1'\n'a2';'';'c\n2'\n'a3';'b3';'c3'\n"
                        "'a4';'b4';'c4'\n"_s;
    const QChar delimiters[] = {u'\t', u';', u','};
    for (int delimiter = 0; delimiter < 3; ++delimiter) {
        const QString other =
            QString(all).replace(u"';'"_s, u"'"_s + delimiters[delimiter] + u"'"_s);
        QTest::addRow("delimiter %d", delimiter) << delimiter << 1 << true << QList<int>() << other;
    }
    QTest::newRow("double quotes")
        << 1 << 0 << true << QList<int>() << QString(all).replace(u'\'', u'"');
    QTest::newRow("no header") << 1 << 1 << false << QList<int>() << all.section(u'\n', 1);
    // The rule for delimiters looks at the column's number in the list.
    QTest::newRow("without the last") << 1 << 1 << true << QList<int>{2}
                                      << u"'A';'B'\n'a1';'b\"1'\n'a2';''\n'a3';'b3'\n'a4';'b4'\n"_s;
    QTest::newRow("without the first") << 1 << 1 << true << QList<int>{0}
                                       << u"'B''C'\n'b\"1''ä;1'\n'''c\n2'\n'b3''c3'\n'b4''c4'\n"_s;
    QTest::newRow("without the second")
        << 1 << 1 << false << QList<int>{1} << u"'a1';'ä;1'\n'a2';'c\n2'\n'a3';'c3'\n'a4';'c4'\n"_s;
    QTest::newRow("only the last")
        << 1 << 1 << true << QList<int>{0, 1} << u"'C'\n'ä;1'\n'c\n2'\n'c3'\n'c4'\n"_s;
    QTest::newRow("none") << 1 << 1 << true << QList<int>{0, 1, 2} << u"\n"_s;
}

void TestCsvDialog::writesTree()
{
    QFETCH(const int, delimiter);
    QFETCH(const int, quote);
    QFETCH(const bool, header);
    QFETCH(const QList<int>, unchecked);
    QTreeWidget tree;
    fill(tree);
    Dialog dialog(&tree);
    dialog.choose(u"comboBoxDelimiter"_s, delimiter);
    dialog.choose(u"comboBoxTextQuote"_s, quote);
    dialog.check(u"checkBoxAddColumns"_s, header);
    for (const int column : unchecked)
        dialog.uncheckColumn(column);
    QTEST(exported(dialog), "text");
}

void TestCsvDialog::writesSelectedCells_data()
{
    QTest::addColumn<QList<QRect>>("ranges"); // columns and rows
    QTest::addColumn<bool>("onlySecondColumn");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QList<QRect>() << false << QString();
    QTest::newRow("rows") << QList<QRect>{{0, 3, 3, 1}, {0, 0, 3, 1}} << false
                          << u"\"a1\";\"b1\";\"c1\"\n\"a4\";\"b4\";\"c4\"\n"_s;
    QTest::newRow("cells") << QList<QRect>{{1, 1, 2, 2}, {0, 2, 1, 1}} << false
                           << u"\"b2\";\"c2\"\n\"a3\";\"b3\";\"c3\"\n"_s;
    QTest::newRow("cells of a column left out")
        << QList<QRect>{{0, 0, 1, 4}, {1, 2, 1, 1}} << true << u"\"b3\"\n"_s;
}

void TestCsvDialog::writesSelectedCells()
{
    QFETCH(const QList<QRect>, ranges);
    QFETCH(const bool, onlySecondColumn);
    QTableWidget table;
    fill(table);
    table.hideRow(0);
    for (const QRect& range : ranges)
        table.setRangeSelected({range.top(), range.left(), range.bottom(), range.right()}, true);
    Dialog dialog(&table);
    dialog.check(u"checkBoxAddColumns"_s, false);
    if (onlySecondColumn) {
        dialog.uncheckColumn(0);
        dialog.uncheckColumn(2);
    }
    QTEST(exported(dialog), "text");
}

/// What is written agrees, cell for cell, with what the view says is selected.
void TestCsvDialog::followsRanges()
{
    QTableWidget table(12, 6);
    for (int cell = 0; cell < 72; ++cell)
        table.setItem(cell / 6, cell % 6, new QTableWidgetItem(QString::number(cell)));
    table.item(5, 3)->setFlags(Qt::ItemIsSelectable); // not enabled: never selected
    table.selectAll();
    QString expected;
    for (int step = 0; step < 60; ++step) {
        const QModelIndex first = table.model()->index(step * 7 % 12, step * 5 % 6);
        const QModelIndex last = table.model()->index(std::min(11, first.row() + step % 4),
                                                      std::min(5, first.column() + step % 3));
        table.selectionModel()->select(QItemSelection(first, last),
                                       step % 2 ? QItemSelectionModel::Deselect
                                                : QItemSelectionModel::Toggle);
        expected.clear();
        for (int row = 0; row < 12; ++row) {
            QString line;
            for (int column = 0; column < 6; ++column)
                if (table.selectionModel()->isSelected(table.model()->index(row, column)))
                    line += u"'%1'%2"_s.arg(table.item(row, column)->text(),
                                            column < 5 ? u";"_s : QString());
            expected += line.isEmpty() ? line : line + u'\n';
        }
        Dialog dialog(&table);
        dialog.check(u"checkBoxAddColumns"_s, false);
        dialog.choose(u"comboBoxTextQuote"_s, 1);
        QCOMPARE(exported(dialog), expected);
    }
    QVERIFY(!expected.isEmpty());
}

void TestCsvDialog::writesNothingWithoutList()
{
    QWidget parent;
    Dialog dialog(&parent);
    QCOMPARE(dialog.columns()->count(), 0);
    QCOMPARE(exported(dialog), QString());
    QTreeWidget empty;
    empty.setColumnCount(0);
    Dialog second(&empty);
    QCOMPARE(exported(second), u"\n"_s);
}

void TestCsvDialog::okFollowsTheFile()
{
    QTreeWidget tree;
    Dialog dialog(&tree);
    QVERIFY(!dialog.ok()->isEnabled());
    dialog.show();
    QVERIFY(!dialog.ok()->isEnabled());
    const std::pair<QString, bool> names[] = {{m_file, true},
                                              {m_file + u".CSV"_s, false},
                                              {m_directory->filePath(u"none/list.csv"_s), false},
                                              {m_file, true},
                                              {QString(), false}};
    for (const auto& [name, valid] : names) {
        dialog.setFile(name);
        QCOMPARE(dialog.ok()->isEnabled(), valid);
    }
}

void TestCsvDialog::browses()
{
    QTreeWidget tree;
    Dialog dialog(&tree);
    auto* button = dialog.part<QPushButton>(u"pushButtonExportToFile"_s);
    QFileDialog* chooser = nullptr;
    const auto answer = [&](bool choose) {
        whenShown<QFileDialog>(this, [&, choose](QFileDialog& shown) {
            chooser = &shown;
            QCOMPARE(shown.windowTitle(), u"Save file"_s);
            QCOMPARE(shown.nameFilters().constFirst(),
                     u"Comma Separated Values (CSV) File (*.csv)"_s);
            shown.selectFile(m_file);
            static_cast<QDialog&>(shown).done(choose);
        });
        button->click();
    };
    answer(false);
    QVERIFY(!dialog.ok()->isEnabled());
    answer(true);
    QVERIFY(chooser);
    QCOMPARE(dialog.part<QLineEdit>(u"lineEditExportToFile"_s)->text(),
             QDir::toNativeSeparators(m_file));
    QVERIFY(dialog.ok()->isEnabled());
}

void TestCsvDialog::opensTheFile()
{
    QTreeWidget tree;
    Dialog dialog(&tree);
    exported(dialog);
    QCOMPARE(opened, QStringList(m_file));
    Dialog closed(&tree);
    closed.check(u"checkBoxOpenExcel"_s, false);
    exported(closed);
    QCOMPARE(opened.size(), 1);
    setDocumentOpener([](const QString&) { return false; });
    QTest::ignoreMessage(QtWarningMsg, qPrintable(u"No program opens "_s + m_file));
    Dialog third(&tree);
    QVERIFY(exported(third) != u"(not accepted)"_s);
}

void TestCsvDialog::ownerMayGo()
{
    for (const bool choosing : {true, false}) {
        auto* tree = new QTreeWidget;
        auto* dialog = new Dialog(tree);
        QVERIFY(QDir().mkpath(m_file));
        dialog->setFile(m_file);
        const auto remove = [tree](auto&) {
            delete tree;
        };
        choosing ? whenShown<QFileDialog>(this, remove) : whenShown<QMessageBox>(this, remove);
        const QPointer<Dialog> alive(dialog);
        (choosing ? dialog->part<QPushButton>(u"pushButtonExportToFile"_s) : dialog->ok())->click();
        QVERIFY(!alive);
    }
}

void TestCsvDialog::keepsTheFileOnFailure_data()
{
    QTest::addColumn<Spoil>("spoil");
    QTest::newRow("directory") << Spoil([](const QString& file) { return QDir().mkpath(file); });
    QTest::newRow("/dev/full") << Spoil([](const QString& file) {
        return QFile::exists(u"/dev/full"_s) && QFile::link(u"/dev/full"_s, file);
    });
    QTest::newRow("read-only directory") << Spoil([](const QString& file) {
        const QString directory = QFileInfo(file).path();
        return write(file) &&
               QFile::setPermissions(directory, QFile::ReadOwner | QFile::ExeOwner) &&
               !QFileInfo(directory).isWritable();
    });
    QTest::newRow("full disk") << Spoil(
        [](const QString& file) { return write(file) && limitFiles(5'000); });
}

void TestCsvDialog::keepsTheFileOnFailure()
{
    QFETCH(const Spoil, spoil);
    QTreeWidget tree;
    fill(tree);
    tree.topLevelItem(0)->setText(0, QString(1'000'000, u'x'));
    Dialog dialog(&tree);
    dialog.show();
    dialog.setFile(m_file);
    if (!spoil(m_file))
        QSKIP("This cannot be had here, or the user may do everything");
    const QFileInfoList before = QFileInfo(m_file).dir().entryInfoList();
    QString text;
    whenShown<QMessageBox>(this, [&text](QMessageBox& box) {
        QCOMPARE(box.windowTitle(), QCoreApplication::applicationName());
        QCOMPARE(box.standardButtons(), QMessageBox::Ok);
        text = box.text();
        box.accept();
    });
    dialog.ok()->click();
    limitFiles(0);
    QFile::setPermissions(m_directory->path(),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QVERIFY2(text.startsWith(u"Cannot write file %1:\n"_s.arg(m_file)), qPrintable(text));
    QVERIFY2(!text.contains(u"Unknown"_s), qPrintable(text));
    QVERIFY(dialog.isVisible());
    QCOMPARE(opened.size(), 0);
    if (QFileInfo(m_file).isFile())
        QCOMPARE(contents(m_file), "old");
    QCOMPARE(QFileInfo(m_file).dir().entryInfoList(), before); // nothing is left beside it
}

QTEST_MAIN(TestCsvDialog)
#include "tst_csvdialog.moc"
