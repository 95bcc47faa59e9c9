// SPDX-License-Identifier: MIT
#include "inspector.h"

#include "codewriter.h"
#include "knownwidgets.h"
#include "propertydelegate.h"
#include "propertymodel.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

/// "RangeSlider", or with what the widget says: "PErrorLabel: No such host".
QString captionOf(const QWidget& widget)
{
    constexpr int longest = 32;
    const QString className = knownWidget(widget)->name();
    for (const QString& text : {widget.accessibleName(), widget.property("text").toString(),
                                widget.property("placeholderText").toString()}) {
        const QString line = text.section(u'\n', 0, 0).simplified();
        if (!line.isEmpty())
            return className + u": "_s + (line.size() > longest ? line.left(longest) + u'…' : line);
    }
    return className;
}

} // namespace

Inspector::Inspector(QWidget* parent)
    : QWidget(parent)
    , m_model(new PropertyModel(this))
    , m_choice(new QComboBox)
    , m_pick(new QToolButton)
    , m_code(new QPlainTextEdit)
{
    m_choice->setAccessibleName(tr("Widget"));
    m_choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_choice->setMinimumContentsLength(20);
    m_pick->setText(tr("&Pick"));
    m_pick->setCheckable(true);
    m_pick->setFocusPolicy(Qt::StrongFocus);
    m_pick->setToolTip(tr("Inspect the widget that is clicked next; Escape ends it"));
    connect(m_choice, &QComboBox::currentIndexChanged, this, &Inspector::showCurrent);
    connect(m_pick, &QToolButton::toggled, this, &Inspector::setPicking);

    auto* table = new QTableView;
    table->setAccessibleName(tr("Properties"));
    table->setModel(m_model);
    table->setItemDelegate(new PropertyDelegate(table));
    // Not on every change of the current one: arrow keys would end in the first editor.
    table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
                           QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
    table->setTabKeyNavigation(false);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setSectionResizeMode(PropertyModel::NameColumn,
                                                    QHeaderView::ResizeToContents);
    table->horizontalHeader()->setStretchLastSection(true);

    m_code->setAccessibleName(tr("Code"));
    m_code->setReadOnly(true);
    m_code->setTabChangesFocus(true);
    m_code->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_code->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    auto* copy = new QPushButton(tr("&Copy"));
    copy->setToolTip(tr("Copy the code"));
    connect(copy, &QPushButton::clicked, this, &Inspector::copyCode);
    connect(m_model, &PropertyModel::valuesChanged, this, &Inspector::writeCode);

    auto* codePart = new QWidget;
    auto* codeLayout = new QVBoxLayout(codePart);
    codeLayout->setContentsMargins(0, 0, 0, 0);
    codeLayout->addWidget(m_code);
    codeLayout->addWidget(copy, 0, Qt::AlignRight);
    auto* parts = new QSplitter(Qt::Vertical);
    parts->setChildrenCollapsible(false);
    parts->addWidget(table);
    parts->addWidget(codePart);
    parts->setStretchFactor(0, 3);
    parts->setStretchFactor(1, 2);

    auto* top = new QHBoxLayout;
    top->addWidget(m_choice, 1);
    top->addWidget(m_pick);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(parts, 1);
}

Inspector::~Inspector() = default;

void Inspector::setPage(QWidget* page)
{
    m_pick->setChecked(false);
    m_page = page;
    listWidgets();
    showCurrent();
}

QList<QWidget*> Inspector::widgets() const
{
    QList<QWidget*> alive;
    for (const QPointer<QWidget>& widget : m_widgets) {
        if (widget)
            alive.append(widget);
    }
    return alive;
}

void Inspector::showEvent(QShowEvent* event)
{
    writeCode();
    QWidget::showEvent(event);
}

// Not all that a page does is told by signals.
void Inspector::enterEvent(QEnterEvent* event)
{
    m_model->refresh();
    QWidget::enterEvent(event);
}

void Inspector::listWidgets()
{
    const QSignalBlocker blocker(m_choice);
    m_choice->clear();
    m_widgets.clear();
    if (!m_page)
        return;
    for (QWidget* widget : m_page->findChildren<QWidget*>()) {
        if (!knownWidget(*widget))
            continue;
        m_widgets.append(widget);
        m_choice->addItem(captionOf(*widget));
    }
}

void Inspector::inspect(const QWidget* widget)
{
    listWidgets(); // there may be others by now
    const qsizetype index = widgets().indexOf(widget);
    if (index >= 0)
        m_choice->setCurrentIndex(int(index));
    showCurrent();
}

void Inspector::showCurrent()
{
    m_inspected = m_widgets.value(m_choice->currentIndex());
    m_writer = m_inspected ? std::make_unique<CodeWriter>(*m_inspected) : nullptr;
    m_model->setObject(m_inspected);
}

void Inspector::setPicking(bool on)
{
    if (on) {
        QApplication::setOverrideCursor(Qt::CrossCursor);
        QCoreApplication::instance()->installEventFilter(this);
    } else {
        QApplication::restoreOverrideCursor();
        QCoreApplication::instance()->removeEventFilter(this);
    }
}

bool Inspector::eventFilter(QObject* watched, QEvent* event)
{
    const auto* target = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        m_pick->setChecked(false);
        return true;
    }
    if (event->type() != QEvent::MouseButtonPress || !target || target == m_pick)
        return QWidget::eventFilter(watched, event);
    pickAt(static_cast<QMouseEvent*>(event)->globalPosition().toPoint());
    return true;
}

/// The innermost that is known; the picking ends wherever the press was.
void Inspector::pickAt(const QPoint& globalPosition)
{
    m_pick->setChecked(false);
    if (!m_page)
        return;
    const QWidget* widget = m_page->childAt(m_page->mapFromGlobal(globalPosition));
    while (widget && widget != m_page && !knownWidget(*widget))
        widget = widget->parentWidget();
    if (widget && widget != m_page)
        inspect(widget);
}

void Inspector::writeCode()
{
    if (!isVisible())
        return;
    // A widget that is being deleted has no properties any more, but may still be pointed to.
    const bool hasWidget = m_model->rowCount() > 0;
    m_code->setPlainText(hasWidget ? m_writer->code() : QString());
}

void Inspector::copyCode()
{
    QGuiApplication::clipboard()->setText(m_code->toPlainText());
}

} // namespace Gallery
