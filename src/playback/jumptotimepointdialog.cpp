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
constexpr int longestName = 40; // in average characters

bool isEnter(const QKeyEvent* event)
{
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
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

JumpToTimepointDialog::JumpToTimepointDialog(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , m_ui(std::make_unique<Ui::JumpToTimepointDialog>())
{
    m_ui->setupUi(this);
    // The dark surface of the view, whose child this is, must not reach into the dialog.
    setStyleSheet(u"QLabel { color: palette(window-text); background-color: transparent; }"_s);
    m_ui->labelIcon->setPixmap(PPlayerIconHelper::GetDateTimeIcon_32x32(false).pixmap(
        headerIconSize, devicePixelRatioF()));
    m_ui->line->setStyleSheet(
        u"QFrame[frameShape=\"4\"]\n\t\t\t{ \n\t\t\t\tborder: none; \n\t\t\t\tbackground-color: %1; \n\t\t\t}"_s
            .arg(POrvGuiTheme::colorBlue.name()));
    m_ui->dateEdit->setDisplayFormat(dateFormat());

    const auto prepare = [](QToolButton* button, QAction* action, const QIcon& icon) {
        action->setIcon(icon);
        button->setDefaultAction(action);
    };
    prepare(m_ui->buttonClose, m_ui->actionClose, PIconHelper16x16::GetTabCloseIcon());
    prepare(m_ui->buttonPrevDay, m_ui->actionPreviousDay, PIconHelper::GetMinusIcon_32x32(true));
    prepare(m_ui->buttonNextDay, m_ui->actionNextDay, PIconHelper::GetPlusIcon_32x32(true));
    connect(m_ui->actionClose, &QAction::triggered, this, &QDialog::reject);
    connect(m_ui->actionPreviousDay, &QAction::triggered, this, [this] { moveDate(-1); });
    connect(m_ui->actionNextDay, &QAction::triggered, this, [this] { moveDate(1); });
    connect(m_ui->buttonApply, &QPushButton::clicked, this, &QDialog::accept);

    for (QDateTimeEdit* edit :
         std::initializer_list<QDateTimeEdit*>{m_ui->dateEdit, m_ui->timeEdit}) {
        edit->installEventFilter(this);
        connect(edit, &QDateTimeEdit::dateTimeChanged, this, &JumpToTimepointDialog::findMoments);
    }
    connect(qApp, &QGuiApplication::focusWindowChanged, this,
            &JumpToTimepointDialog::rejectWhenLeft);
    setMoment(QDateTime::fromSecsSinceEpoch(0));
    m_ui->timeEdit->setFocus();
}

JumpToTimepointDialog::~JumpToTimepointDialog() = default;

void JumpToTimepointDialog::setDeviceName(const QString& name)
{
    const QFontMetrics metrics(m_ui->labelName->font());
    m_ui->labelName->setText(
        metrics.elidedText(name, Qt::ElideMiddle, longestName * metrics.averageCharWidth()));
}

void JumpToTimepointDialog::setMoment(const QDateTime& moment)
{
    m_zone = moment;
    m_moments.clear();
    // The editors count in UTC, where every date and time exists.
    m_ui->dateEdit->setDate(moment.date());
    m_ui->timeEdit->setTime(moment.time());
    findMoments();
}

QDateTime JumpToTimepointDialog::moment() const
{
    if (m_moments.size() < 2)
        return m_moments.value(0);
    return m_moments.value(m_ui->comboOccurrence->currentIndex());
}

void JumpToTimepointDialog::accept()
{
    if (moment().isValid())
        QDialog::accept();
}

void JumpToTimepointDialog::done(int result)
{
    // Hiding makes another window active.
    if (!std::exchange(m_isDone, true))
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
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        explainMoments();
    } else if (event->type() == QEvent::ActivationChange) {
        rejectWhenLeft();
    }
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
    m_ui->dateEdit->setDate(m_ui->dateEdit->date().addDays(days));
}

void JumpToTimepointDialog::findMoments()
{
    const bool chosenBefore = m_moments.size() == 2;
    m_moments = localMoments(m_ui->dateEdit->date(), m_ui->timeEdit->time(), m_zone);
    const int chosen = chosenBefore ? m_ui->comboOccurrence->currentIndex()
                                    : int(m_moments.size() == 2 && m_moments.at(1) == m_zone);
    explainMoments();
    m_ui->comboOccurrence->setCurrentIndex(chosen);
}

void JumpToTimepointDialog::explainMoments()
{
    const bool unique = m_moments.size() == 1;
    const bool twice = m_moments.size() == 2;
    m_ui->labelClockChange->setText(
        unique  ? QString()
        : twice ? tr("The clocks are put back here, so this time comes twice. Choose one:")
                : tr("The clocks are put forward here, so this time does not exist."));
    m_ui->labelClockChange->setVisible(!unique);

    const int chosen = m_ui->comboOccurrence->currentIndex();
    m_ui->comboOccurrence->clear();
    if (twice) {
        m_ui->comboOccurrence->addItem(tr("The first (%1)").arg(clockOffset(m_moments.at(0))));
        m_ui->comboOccurrence->addItem(tr("The second (%1)").arg(clockOffset(m_moments.at(1))));
        m_ui->comboOccurrence->setCurrentIndex(chosen);
    }
    m_ui->comboOccurrence->setVisible(twice);
    m_ui->buttonApply->setEnabled(!m_moments.isEmpty());
    if (!unique && isVisible()) {
        QAccessibleEvent alert(m_ui->labelClockChange, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

void JumpToTimepointDialog::rejectWhenLeft()
{
    if (isActiveWindow()) {
        m_wasActive = true;
        return;
    }
    // The calendar and the list of choices belong to the dialog.
    const QWidget* active = QApplication::activePopupWidget();
    if (!active)
        active = QApplication::activeWindow();
    while (active && active != this)
        active = active->parentWidget();
    if (active || !m_wasActive || m_isDone)
        return;
    m_wasLeft = true;
    reject();
}

} // namespace CorvelGui
