#include "pcsvdialog.h"

#include "base/wholefile.h"
#include "csvbody.h"
#include "documentopener.h"
#include "ui_pcsvdialog.h"

#include <Hueloft/PIconHelper>
#include <Hueloft/PMessageBox>

#include <QDir>
#include <QFileDialog>
#include <QPushButton>
#include <QTableWidget>
#include <QTextStream>
#include <QTreeWidget>

using Hueloft::PIconHelper;
using Hueloft::PMessageBox;
using namespace Qt::StringLiterals;

namespace CorvelGui {

PCsvDialog::PCsvDialog(QWidget* parent) : PBaseDialog(parent), ui(new Ui::PCsvDialog)
{
    ui->setupUi(this);
    ui->pushButtonExportToFile->setIcon(PIconHelper::GetOpenIcon_32x32(true));
    ui->comboBoxDelimiter->addItem(tr("  Tabulation"), QChar(u'\t'));
    ui->comboBoxDelimiter->addItem(tr("; Semicolon"), QChar(u';'));
    ui->comboBoxDelimiter->addItem(tr(", Comma"), QChar(u','));
    ui->comboBoxDelimiter->setCurrentIndex(1);
    ui->comboBoxTextQuote->addItem(tr("\"...\" Double Quotation Marks"), QChar(u'"'));
    ui->comboBoxTextQuote->addItem(tr("'...' Single Quotation Marks"), QChar(u'\''));
    ui->lineEditExportToFile->addExtensionToCheck(u"csv"_s);
    // The field judges itself when it is shown; until then it holds no name.
    slotFileNameValidate(false);

    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &PCsvDialog::slotAccept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &PCsvDialog::reject);
    connect(ui->lineEditExportToFile, &FileNameValidatingLineEdit::signalValidate, this,
            &PCsvDialog::slotFileNameValidate);
    connect(ui->pushButtonExportToFile, &QPushButton::clicked, this, &PCsvDialog::slotBrowsed);

    if (auto* table = qobject_cast<QTableWidget*>(parent))
        InitWithTableWidget(table);
    else if (auto* tree = qobject_cast<QTreeWidget*>(parent))
        InitWithTreeWidget(tree);
}

PCsvDialog::~PCsvDialog() = default;

void PCsvDialog::InitWithTableWidget(QTableWidget* table)
{
    m_table = table;
    if (table)
        listColumns(*table);
}

void PCsvDialog::InitWithTreeWidget(QTreeWidget* tree)
{
    m_tree = tree;
    if (tree && !m_table)
        listColumns(*tree);
}

QChar PCsvDialog::GetDelimiter() const
{
    return ui->comboBoxDelimiter->currentData().toChar();
}

QChar PCsvDialog::GetTextQuote() const
{
    return ui->comboBoxTextQuote->currentData().toChar();
}

bool PCsvDialog::AddColumnsAtTop() const
{
    return ui->checkBoxAddColumns->isChecked();
}

void PCsvDialog::slotAccept()
{
    const QString fileName = ui->lineEditExportToFile->text();
    const QString failure = writeWholeFile(fileName, csv(), QIODevice::Text);
    if (!failure.isEmpty()) {
        PMessageBox::Warning(this, QCoreApplication::applicationName(),
                             tr("Cannot write file %1:\n%2.").arg(fileName, failure),
                             QMessageBox::Ok, QMessageBox::Ok);
        return;
    }
    // The shell may handle other events meanwhile.
    const QPointer<PCsvDialog> alive(this);
    if (ui->checkBoxOpenExcel->isChecked() && !documentOpener()(fileName))
        qWarning("No program opens %s", qUtf8Printable(fileName));
    if (alive)
        accept();
}

void PCsvDialog::slotBrowsed()
{
    const QPointer<QFileDialog> chooser =
        new QFileDialog(this, tr("Save file"), QString(),
                        tr("Comma Separated Values (CSV) File (*.csv);; All (*.*)"));
    chooser->setAcceptMode(QFileDialog::AcceptSave);
    chooser->setDefaultSuffix(u"csv"_s);
    const bool chosen = chooser->exec() == QDialog::Accepted;
    // The list may be deleted meanwhile, and with it this dialog and the chooser.
    if (!chooser)
        return;
    const QStringList files = chooser->selectedFiles();
    delete chooser;
    if (chosen && !files.isEmpty())
        ui->lineEditExportToFile->setText(QDir::toNativeSeparators(files.constFirst()));
}

void PCsvDialog::slotFileNameValidate(bool valid)
{
    ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(valid);
}

int PCsvDialog::GetCheckedColumnCount() const
{
    int count = 0;
    for (int column = 0; column < ui->listWidgetColumns->count(); ++column)
        count += isChecked(column);
    return count;
}

bool PCsvDialog::isChecked(int column) const
{
    return ui->listWidgetColumns->item(column)->checkState() == Qt::Checked;
}

void PCsvDialog::CreateCsv(QTextStream& stream, QTableWidget* table) const
{
    writeSelection(stream, *table);
}

void PCsvDialog::CreateCsv(QTextStream& stream, QTreeWidget* tree) const
{
    writeSelection(stream, *tree);
}

void PCsvDialog::listColumns(const QAbstractItemView& list)
{
    ui->listWidgetColumns->clear();
    const QAbstractItemModel& model = *list.model();
    for (int column = 0; column < model.columnCount(); ++column) {
        auto* item = new QListWidgetItem(model.headerData(column, Qt::Horizontal).toString(),
                                         ui->listWidgetColumns);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Checked);
    }
}

void PCsvDialog::writeSelection(QTextStream& stream, const QAbstractItemView& list) const
{
    QBitArray columns(ui->listWidgetColumns->count());
    for (int column = 0; column < columns.size(); ++column)
        columns.setBit(column, isChecked(column));
    const CsvFormat format{GetDelimiter(), GetTextQuote(), AddColumnsAtTop(), columns,
                           GetCheckedColumnCount()};
    writeCsv(stream, *list.model(), list.selectionModel()->selection(), format);
}

QByteArray PCsvDialog::csv() const
{
    QByteArray body;
    QTextStream stream(&body);
    if (m_table)
        CreateCsv(stream, m_table);
    else if (m_tree)
        CreateCsv(stream, m_tree);
    return body;
}

} // namespace CorvelGui
