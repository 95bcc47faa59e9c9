// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <CorvelGui/PCsvDialog>

#include <QFileDialog>
#include <QTreeWidget>

namespace {

QStringList opened;
bool hasProgram;

struct PCsvDialog : CorvelGui::PCsvDialog
{
    using CorvelGui::PCsvDialog::PCsvDialog;
    bool openFile(const QString& fileName) override
    {
        opened += fileName;
        return hasProgram;
    }
};

/// Holds the file open.
std::unique_ptr<QFile> otherProgram;

bool isWindows()
{
    return QSysInfo::kernelType() == u"winnt"_s;
}

template <typename Part>
Part* part(const PCsvDialog& dialog, const QString& name)
{
    return dialog.findChild<Part*>(name);
}

QPushButton* ok(const PCsvDialog& dialog)
{
    return buttonOf(dialog, QDialogButtonBox::Ok);
}

QLineEdit* field(const PCsvDialog& dialog)
{
    return part<QLineEdit>(dialog, u"lineEditExportToFile"_s);
}

/// Makes writing a file fail; false if that cannot be done here.
bool spoil(const QString& file, const QString& how)
{
    if (how == u"directory")
        return QDir().mkpath(file);
    if (how == u"/dev/full")
        return QFile::exists(how) && QFile::link(how, file);
    writeFile(file, "old");
    // A small file reaches the disk only when it is flushed.
    if (how == u"small, full disk" || how == u"large, full disk")
        return limitFiles(how.startsWith(u"small") ? 5 : 5'000);
    const QString directory = QFileInfo(file).path();
    if (how == u"read-only directory")
        return QFile::setPermissions(directory, QFile::ReadOwner | QFile::ExeOwner) &&
               !QFileInfo(directory).isWritable();
    otherProgram = std::make_unique<QFile>(file);
    return isWindows() && otherProgram->open(QIODevice::ReadOnly);
}

} // namespace

class TestCsvDialog : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        WarningFreeTest::init();
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        m_directory = std::make_unique<QTemporaryDir>();
        m_file = QDir::toNativeSeparators(m_directory->filePath(u"list.csv"_s));
        opened.clear();
        hasProgram = true;
    }

    void writesTree()
    {
        QTreeWidget tree;
        tree.setHeaderLabels({u"A"_s, u"B"_s, u"C"_s});
        tree.setSelectionMode(QAbstractItemView::ExtendedSelection);
        auto* site = new QTreeWidgetItem(&tree, {u"a1"_s, u"b\"1"_s, u"ä;1"_s});
        new QTreeWidgetItem(site, {u"a2"_s, QString(), u"c\n2"_s}); // collapsed
        new QTreeWidgetItem(&tree, {u"a3"_s, u"b3"_s, u"c3"_s});
        tree.topLevelItem(1)->setHidden(true);
        for (QTreeWidgetItemIterator item(&tree); *item; ++item)
            (*item)->setSelected(true);

        const QString all = u"'A';'B';'C'\n'a1';'b\"1';'ä;1'\n'a2';'';'c\n2'\n'a3';'b3';'c3'\n"_s;
        const std::tuple<int, int, bool, QList<int>, QString> rows[] = {
            {0, 1, true, {}, QString(all).replace(u"';'"_s, u"'\t'"_s)},
            {1, 1, true, {}, all},
            {2, 1, true, {}, QString(all).replace(u"';'"_s, u"','"_s)},
            {1, 0, true, {}, QString(all).replace(u'\'', u'"')},
            {1, 1, false, {}, all.section(u'\n', 1)},
            // Delimiters are missing where an unwritten column stands before written ones.
            {1, 1, true, {2}, u"'A';'B'\n'a1';'b\"1'\n'a2';''\n'a3';'b3'\n"_s},
            {1, 1, true, {0}, u"'B''C'\n'b\"1''ä;1'\n'''c\n2'\n'b3''c3'\n"_s},
            {1, 1, false, {1}, u"'a1';'ä;1'\n'a2';'c\n2'\n'a3';'c3'\n"_s},
            {1, 1, true, {0, 1, 2}, u"\n"_s}};
        for (const auto& [delimiter, quote, header, unchecked, text] : rows) {
            PCsvDialog dialog(&tree);
            part<QComboBox>(dialog, u"comboBoxDelimiter"_s)->setCurrentIndex(delimiter);
            part<QComboBox>(dialog, u"comboBoxTextQuote"_s)->setCurrentIndex(quote);
            part<QCheckBox>(dialog, u"checkBoxAddColumns"_s)->setChecked(header);
            for (const int column : unchecked)
                part<QListWidget>(dialog, u"listWidgetColumns"_s)
                    ->item(column)
                    ->setCheckState(Qt::Unchecked);
            QCOMPARE(exported(dialog), text);
        }
        PCsvDialog wellFormed(&tree);
        wellFormed.setWellFormed(true);
        part<QListWidget>(wellFormed, u"listWidgetColumns"_s)
            ->item(0)
            ->setCheckState(Qt::Unchecked);
        tree.selectionModel()->select(tree.model()->index(0, 1),
                                      QItemSelectionModel::ClearAndSelect);
        QCOMPARE(exported(wellFormed), u"\"B\";\"C\"\n\"b\"\"1\";\"\"\n"_s);
    }

    /// What is written agrees, cell for cell, with what the table says is selected.
    void writesSelectedCells()
    {
        QTableWidget other(1, 1);
        QTableWidget table(12, 6);
        for (int cell = 0; cell < 72; ++cell)
            table.setItem(cell / 6, cell % 6, new QTableWidgetItem(QString::number(cell)));
        table.item(5, 3)->setFlags(Qt::ItemIsSelectable); // not enabled: never selected
        table.hideRow(2);
        PCsvDialog named(&table);
        table.setHorizontalHeaderItem(1, new QTableWidgetItem(u"Named"_s));
        QCOMPARE(part<QListWidget>(named, u"listWidgetColumns"_s)->item(1)->text(), u"Named"_s);
        delete table.takeHorizontalHeaderItem(1);
        for (int step = 0; step < 60; ++step) {
            QString expected = u"\"1\";\"2\";\"3\";\"4\";\"5\";\"6\"\n"_s;
            for (int row = 0; row < 12; ++row) {
                QString line;
                for (int column = 0; column < 6; ++column)
                    if (table.selectionModel()->isSelected(table.model()->index(row, column)))
                        line +=
                            u"\"%1\""_s.arg(row * 6 + column) + (column < 5 ? u";"_s : QString());
                expected += line.isEmpty() ? line : line + u'\n';
            }
            PCsvDialog dialog(&table);
            QCOMPARE(exported(dialog), expected);
            PCsvDialog ofRows;
            ofRows.InitWithRows(table.model(), table.selectionModel()->selection());
            ofRows.InitWithTableWidget(&other);
            ofRows.InitWithTreeWidget(nullptr);
            QCOMPARE(exported(ofRows), expected);
            const QModelIndex first = table.model()->index(step * 7 % 12, step * 5 % 6);
            const QModelIndex last = table.model()->index(11 - step % 4, 5 - step % 3);
            table.selectionModel()->select({first, last}, QItemSelectionModel::Toggle);
        }
    }

    void needsAFile()
    {
        QWidget parent;
        PCsvDialog dialog(&parent);
        dialog.show();
        for (const bool choosing : {false, true}) {
            QVERIFY(!ok(dialog)->isEnabled() && field(dialog)->styleSheet().isEmpty());
            whenShown<QFileDialog>(this, [&](QFileDialog& chooser) {
                QCOMPARE(chooser.windowTitle(), u"Save file"_s);
                QCOMPARE(chooser.defaultSuffix(), u"csv"_s);
                QCOMPARE(chooser.acceptMode(), QFileDialog::AcceptSave);
                chooser.selectFile(m_file);
                static_cast<QDialog&>(chooser).done(choosing);
            });
            part<QPushButton>(dialog, u"pushButtonExportToFile"_s)->click();
            QCOMPARE(field(dialog)->text(), choosing ? m_file : QString());
        }
        QVERIFY(ok(dialog)->isEnabled());
        field(dialog)->setText(m_file + u".CSV"_s);
        QVERIFY(!ok(dialog)->isEnabled() && !field(dialog)->styleSheet().isEmpty());
        QCOMPARE(exported(dialog), QString()); // without a list
    }

    void opensTheFile()
    {
        QTreeWidget tree;
        tree.setColumnCount(0);
        PCsvDialog dialog(&tree);
        QCOMPARE(exported(dialog), u"\n"_s);
        QCOMPARE(std::exchange(opened, {}), QStringList(m_file));
        hasProgram = false;
        QTest::ignoreMessage(QtWarningMsg, qPrintable(u"No program opens "_s + m_file));
        QCOMPARE(exported(dialog), u"\n"_s);
        QVERIFY(dialog.opensFile());
        dialog.setOpensFile(false);
        opened.clear();
        QCOMPARE(exported(dialog), u"\n"_s);
        QCOMPARE(opened, QStringList());
    }

    void keepsTheFileOnFailure_data()
    {
        QTest::addColumn<int>("size");
        for (const char* how : {"directory", "/dev/full", "read-only directory", "small, full disk",
                                "large, full disk", "open in another program"})
            QTest::newRow(how) << (how[0] == 'l' ? 1'000'000 : 10);
    }

    void keepsTheFileOnFailure()
    {
        QFETCH(const int, size);
        QTableWidget table(1, 1);
        table.setItem(0, 0, new QTableWidgetItem(QString(size - 3, u'x')));
        table.selectAll();
        PCsvDialog dialog(&table);
        part<QCheckBox>(dialog, u"checkBoxAddColumns"_s)->setChecked(false);
        dialog.show();
        field(dialog)->setText(m_file);
        if (!spoil(m_file, QString::fromLatin1(QTest::currentDataTag())))
            QSKIP("This cannot be had here, or this user may write everywhere");
        const QFileInfoList before = QDir(m_directory->path()).entryInfoList();
        QString text;
        whenShown<QMessageBox>(this, [&text](QMessageBox& box) {
            QCOMPARE(box.standardButtons(), QMessageBox::Ok);
            text = box.windowTitle() + u'|' + box.text();
            box.accept();
        });
        ok(dialog)->click();
        limitFiles(0);
        otherProgram.reset();
        QFile::setPermissions(m_directory->path(),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QVERIFY2(text.startsWith(QCoreApplication::applicationName() +
                                 u"|Cannot write file %1:\n"_s.arg(m_file)),
                 qPrintable(text));
        QVERIFY2(!text.contains(u"Unknown"_s), qPrintable(text));
        QVERIFY(dialog.isVisible());
        QVERIFY(opened.isEmpty());
        QVERIFY(!QFileInfo(m_file).isFile() || readFile(m_file) == "old");
        QCOMPARE(QDir(m_directory->path()).entryInfoList(), before); // nothing is left beside it
    }

    void ownerMayGo()
    {
        QVERIFY(QDir().mkpath(m_file));
        for (const bool choosing : {true, false}) {
            auto* tree = new QTreeWidget;
            const QPointer<PCsvDialog> dialog(new PCsvDialog(tree));
            field(*dialog)->setText(m_file);
            const auto remove = [tree](QDialog&) {
                delete tree;
            };
            choosing ? whenShown<QFileDialog>(this, remove) : whenShown<QMessageBox>(this, remove);
            (choosing ? part<QPushButton>(*dialog, u"pushButtonExportToFile"_s) : ok(*dialog))
                ->click();
            QVERIFY(!dialog);
        }
    }

private:
    QString exported(PCsvDialog& dialog)
    {
        const QSignalSpy accepted(&dialog, &QDialog::accepted);
        dialog.setFileName(m_file);
        ok(dialog)->click();
        const QByteArray bytes = accepted.size() == 1 ? readFile(m_file) : "(not accepted)";
        const QByteArray lineEnd = isWindows() ? "\r\n" : "\n";
        return bytes.count('\n') == bytes.count(lineEnd) ? QString::fromUtf8(bytes).remove(u'\r')
                                                         : u"(wrong line ends)"_s;
    }

    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_file;
};

QTEST_MAIN(TestCsvDialog)
#include "tst_csvdialog.moc"
