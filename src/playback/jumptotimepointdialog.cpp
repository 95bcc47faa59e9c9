#include "jumptotimepointdialog.h"

#include "localmoments.h"
#include "ui_jumptotimepointdialog.h"

#include <Hueloft/PIconHelper16x16>
#include <Hueloft/PIconHelper>
#include <Hueloft/POrvGuiTheme>
#include <Hueloft/PPlayerIconHelper>

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QPainter>
#include <QWindow>

#include <initializer_list>
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

/// A part that is full moves on to the next by itself: the separator behind it has been passed
/// then.
bool isPassedSeparator(const QDateTimeEdit& edit, const QKeyEvent& event)
{
    const auto* line = edit.findChild<QLineEdit*>();
    const int place = line->hasSelectedText() ? line->selectionStart() : line->cursorPosition();
    return event.text().size() == 1 && !event.text()[0].isLetterOrNumber() && place > 0 &&
           line->text()[place - 1] == event.text()[0];
}

/// The locale's short date, with all digits of the year.
QString dateFormat()
{
    QString format = QLocale().dateFormat(QLocale::ShortFormat);
    if (!format.contains(u"yyyy"_s))
        format.replace(u"yy"_s, u"yyyy"_s);
    return format;
}

QString clockOffset(const QDateTime& moment)
{
    return moment.toOffsetFromUtc(moment.offsetFromUtc()).timeZoneAbbreviation();
}

} // namespace

struct JumpToTimepointDialog::Private
{
    Ui::JumpToTimepointDialog ui;
    QDateTime zone; ///< the moment that was shown first
    QList<QDateTime> moments;
    QDateTime earliest;
    QDateTime latest;
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
    d->ui.dateEdit->setDisplayFormat(dateFormat());

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

    for (QDateTimeEdit* edit :
         std::initializer_list<QDateTimeEdit*>{d->ui.dateEdit, d->ui.timeEdit}) {
        edit->installEventFilter(this);
        connect(edit, &QDateTimeEdit::dateTimeChanged, this, &JumpToTimepointDialog::findMoments);
    }
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
        metrics.elidedText(name, Qt::ElideMiddle, longestZoneName * metrics.averageCharWidth()));
}

void JumpToTimepointDialog::setDateFormat(const QString& format)
{
    d->ui.dateEdit->setDisplayFormat(format.isEmpty() ? dateFormat() : format);
}

void JumpToTimepointDialog::setLimits(const QDateTime& earliest, const QDateTime& latest)
{
    d->earliest = earliest;
    d->latest = latest;
    findMoments();
}

void JumpToTimepointDialog::setMoment(const QDateTime& moment)
{
    d->zone = moment;
    d->moments.clear();
    // The editors count in UTC, where every date and time exists.
    d->ui.dateEdit->setDate(moment.date());
    d->ui.timeEdit->setTime(moment.time());
    findMoments();
}

QDateTime JumpToTimepointDialog::moment() const
{
    if (!isWithinLimits())
        return {};
    if (d->moments.size() < 2)
        return d->moments.value(0);
    return d->moments.value(d->ui.comboOccurrence->currentIndex());
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
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    if (!isEnter(static_cast<QKeyEvent*>(event)))
        return isPassedSeparator(*static_cast<QDateTimeEdit*>(watched),
                                 *static_cast<QKeyEvent*>(event)) ||
               QDialog::eventFilter(watched, event);
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
    explainMoments();
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

void JumpToTimepointDialog::findMoments()
{
    const bool chosenBefore = d->moments.size() == 2;
    d->moments = localMoments(d->ui.dateEdit->date(), d->ui.timeEdit->time(), d->zone);
    const int chosen = chosenBefore ? d->ui.comboOccurrence->currentIndex()
                                    : int(d->moments.size() == 2 && d->moments.at(1) == d->zone);
    explainMoments();
    d->ui.comboOccurrence->setCurrentIndex(chosen);
}

bool JumpToTimepointDialog::isWithinLimits() const
{
    return d->moments.isEmpty() || ((!d->earliest.isValid() || d->moments.last() >= d->earliest) &&
                                    (!d->latest.isValid() || d->moments.first() <= d->latest));
}

// Empty for what needs no explanation.
QString JumpToTimepointDialog::explanation() const
{
    if (!isWithinLimits()) {
        const QString format =
            d->ui.dateEdit->displayFormat() + u' ' + d->ui.timeEdit->displayFormat();
        return tr("There is nothing at this time. Choose one from %1 to %2.")
            .arg(d->earliest.toString(format), d->latest.toString(format));
    }
    if (d->moments.isEmpty())
        return tr("The clocks are put forward here, so this time does not exist.");
    if (d->moments.size() == 2)
        return tr("The clocks are put back here, so this time comes twice. Choose one:");
    return {};
}

void JumpToTimepointDialog::explainMoments()
{
    const bool twice = d->moments.size() == 2 && isWithinLimits();
    const QString text = explanation();
    d->ui.labelClockChange->setText(text);
    d->ui.labelClockChange->setVisible(!text.isEmpty());

    const int chosen = d->ui.comboOccurrence->currentIndex();
    d->ui.comboOccurrence->clear();
    if (twice) {
        d->ui.comboOccurrence->addItem(tr("The first (%1)").arg(clockOffset(d->moments.at(0))));
        d->ui.comboOccurrence->addItem(tr("The second (%1)").arg(clockOffset(d->moments.at(1))));
        d->ui.comboOccurrence->setCurrentIndex(chosen);
    }
    d->ui.comboOccurrence->setVisible(twice);
    d->ui.buttonApply->setEnabled(!d->moments.isEmpty() && isWithinLimits());
    if (!text.isEmpty() && isVisible()) {
        QAccessibleEvent alert(d->ui.labelClockChange, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
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
