// SPDX-License-Identifier: MIT
#include "jumptotimepointdialog.h"

#include "frame/stringhelper.h"
#include "localmoments.h"
#include "momententry.h"
#include "ui_jumptotimepointdialog.h"

#include <Hueloft/PIconHelper16x16>
#include <Hueloft/PIconHelper>
#include <Hueloft/POrvGuiTheme>
#include <Hueloft/PPlayerIconHelper>

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QWindow>

#include <utility>

using namespace Hueloft;
using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr QSize headerIconSize(32, 32);
constexpr int longestZoneName = 40; // in average characters

bool isEnter(const QKeyEvent* event)
{
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

} // namespace

struct JumpToTimepointDialog::Private
{
    Ui::JumpToTimepointDialog ui;
    MomentEntry* entry = nullptr;
    bool wasActive = false;
    bool wasLeft = false;
    bool isDone = false;
};

JumpToTimepointDialog::JumpToTimepointDialog(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), d(std::make_unique<Private>())
{
    d->ui.setupUi(this);
    // The dark surface of the view, whose child this is, must not reach into the dialog.
    setStyleSheet(u"QLabel { color: palette(window-text); background-color: transparent; }"_s);
    d->ui.labelIcon->setPixmap(PPlayerIconHelper::GetDateTimeIcon_32x32(false).pixmap(
        headerIconSize, devicePixelRatioF()));
    d->ui.line->setStyleSheet(
        u"QFrame[frameShape=\"4\"]\n\t\t\t{ \n\t\t\t\tborder: none; \n\t\t\t\tbackground-color: %1; \n\t\t\t}"_s
            .arg(POrvGuiTheme::colorBlue.name()));
    d->entry = new MomentEntry({.date = d->ui.dateEdit,
                                .time = d->ui.timeEdit,
                                .note = d->ui.labelClockChange,
                                .occurrence = d->ui.comboOccurrence},
                               this);
    connect(d->entry, &MomentEntry::edited, this, &JumpToTimepointDialog::enableApply);

    const auto prepare = [](QToolButton* button, QAction* action, const QIcon& icon) {
        action->setIcon(icon);
        button->setDefaultAction(action);
    };
    prepare(d->ui.buttonClose, d->ui.actionClose, PIconHelper16x16::GetTabCloseIcon());
    prepare(d->ui.buttonPrevDay, d->ui.actionPreviousDay, PIconHelper::GetMinusIcon_32x32(true));
    prepare(d->ui.buttonNextDay, d->ui.actionNextDay, PIconHelper::GetPlusIcon_32x32(true));
    connect(d->ui.actionClose, &QAction::triggered, this, &QDialog::reject);
    connect(d->ui.actionPreviousDay, &QAction::triggered, this, [this] { moveDate(-1); });
    connect(d->ui.actionNextDay, &QAction::triggered, this, [this] { moveDate(1); });
    connect(d->ui.buttonApply, &QPushButton::clicked, this, &QDialog::accept);

    d->ui.dateEdit->installEventFilter(this);
    d->ui.timeEdit->installEventFilter(this);
    connect(qApp, &QGuiApplication::focusWindowChanged, this,
            &JumpToTimepointDialog::rejectWhenLeft);
    setMoment(QDateTime::fromSecsSinceEpoch(0));
    d->ui.timeEdit->setFocus();
}

JumpToTimepointDialog::~JumpToTimepointDialog() = default;

void JumpToTimepointDialog::setDeviceName(const QString& name)
{
    const QFontMetrics metrics(d->ui.labelName->font());
    d->ui.labelName->setText(
        StringHelper::elidedInMiddle(name, metrics, longestZoneName * metrics.averageCharWidth()));
}

void JumpToTimepointDialog::setDateFormat(const QString& format)
{
    d->ui.dateEdit->setDisplayFormat(format.isEmpty() ? shortDateFormat() : format);
}

void JumpToTimepointDialog::setLimits(const QDateTime& earliest, const QDateTime& latest)
{
    d->entry->setLimits({earliest, latest});
    enableApply();
}

void JumpToTimepointDialog::setMoment(const QDateTime& moment)
{
    d->entry->setMoment(moment);
    enableApply();
}

QDateTime JumpToTimepointDialog::moment() const
{
    return d->entry->moment();
}

bool JumpToTimepointDialog::wasLeft() const
{
    return d->wasLeft;
}

void JumpToTimepointDialog::accept()
{
    if (moment().isValid())
        QDialog::accept();
}

void JumpToTimepointDialog::done(int result)
{
    // Hiding makes another window active.
    if (!std::exchange(d->isDone, true))
        QDialog::done(result);
}

void JumpToTimepointDialog::keyPressEvent(QKeyEvent* event)
{
    if (!isEnter(event)) {
        QDialog::keyPressEvent(event);
        return;
    }
    event->accept();
    // The key that opened the dialog may still be held.
    if (!event->isAutoRepeat())
        accept();
}

bool JumpToTimepointDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !isEnter(static_cast<QKeyEvent*>(event)))
        return QDialog::eventFilter(watched, event);
    // What is half typed counts.
    static_cast<QAbstractSpinBox*>(watched)->interpretText();
    keyPressEvent(static_cast<QKeyEvent*>(event));
    return true;
}

void JumpToTimepointDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange)
        rejectWhenLeft();
}

void JumpToTimepointDialog::retranslate()
{
    d->ui.retranslateUi(this);
    d->entry->explain();
}

void JumpToTimepointDialog::paintEvent(QPaintEvent* event)
{
    QDialog::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void JumpToTimepointDialog::moveDate(int days)
{
    d->ui.dateEdit->setDate(d->ui.dateEdit->date().addDays(days));
}

void JumpToTimepointDialog::enableApply()
{
    d->ui.buttonApply->setEnabled(moment().isValid());
}

void JumpToTimepointDialog::rejectWhenLeft()
{
    if (isActiveWindow()) {
        d->wasActive = true;
        return;
    }
    // The calendar and the list of choices belong to the dialog.
    const QWidget* active = QApplication::activePopupWidget();
    if (!active)
        active = QApplication::activeWindow();
    while (active && active != this)
        active = active->parentWidget();
    if (active || !d->wasActive || d->isDone)
        return;
    d->wasLeft = true;
    reject();
}

} // namespace CorvelGui
