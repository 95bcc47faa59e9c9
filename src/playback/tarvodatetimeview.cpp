// SPDX-License-Identifier: MIT
#include "tarvodatetimeview.h"

#include "accessibledatetimeview.h"
#include "jumptotimepointdialog.h"

#include <Hueloft/POrvGuiTheme>

#include <QApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QTimeZone>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <array>
#include <utility>

using Hueloft::POrvGuiTheme;
using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

enum Field { Day, Hour, Minute, Second, Millisecond, FieldCount };

// Column 1 stays empty: it sets the day apart.
constexpr int emptyColumn = 1;
constexpr std::array<int, FieldCount> columnOfField{0, 2, 3, 4, 5};
constexpr int margin = 4;

QDateTime nothing()
{
    return QDateTime::fromSecsSinceEpoch(0);
}

int applicationPointSize()
{
    return QFontInfo(QApplication::font()).pointSize(); // also where the font is set in pixels
}

int valuePointSize()
{
    return applicationPointSize() * 18 / 10;
}

/// Whether both are on clocks that never differ.
bool sameZone(const QDateTime& a, const QDateTime& b)
{
    return a.timeSpec() == b.timeSpec() && a.offsetFromUtc() == b.offsetFromUtc() &&
           (a.timeSpec() != Qt::TimeZone || a.timeZone() == b.timeZone());
}

} // namespace

struct TarvoDateTimeView::Private
{
    bool showsNothing() const { return shown == nothing(); }
    void showDay(const QDateTime& moment)
    {
        values[Day]->setText(QLocale().toString(moment, u"dd MMM"_s));
    }

    std::array<QPointer<QLabel>, FieldCount> values;
    std::array<QPointer<QLabel>, FieldCount> captions;
    QDateTime shown = nothing();
    bool playMode = true;
    bool showMilliseconds = true;
    QString deviceName;
    QString dateFormat;
    QDateTime earliest;
    QDateTime latest;
    QPointer<JumpToTimepointDialog> dialog;
    QPointer<QWindow> followedWindow;
    QDeadlineTimer pressClosedDialog;
};

TarvoDateTimeView::TarvoDateTimeView(QWidget* parent)
    : QFrame(parent), d(std::make_unique<Private>())
{
    installAccessibleDateTimeView();
    setProperty("tarvo", true);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::MinimumExpanding);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    // Digits of a clock run from left to right in every language.
    setLayoutDirection(Qt::LeftToRight);

    auto* layout = new QGridLayout(this);
    layout->setHorizontalSpacing(0);
    layout->setVerticalSpacing(0);
    layout->setContentsMargins(margin, margin, margin, margin);
    // Takes what the view is wider, so that the digits stay together.
    layout->setColumnStretch(emptyColumn, 1);
    for (size_t field = 0; field < FieldCount; ++field) {
        auto* value = new QLabel(this);
        value->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
        value->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(value, 0, columnOfField[field]);
        d->values[field] = value;

        auto* caption = new QLabel(this);
        caption->setAlignment(Qt::AlignCenter);
        layout->addWidget(caption, 1, columnOfField[field]);
        d->captions[field] = caption;
    }
    retranslate();
    applyStyle();
    showNothing();

    QTimer::singleShot(10, this, [this] {
        updateMinimumWidth();
        followScreen();
    });
}

TarvoDateTimeView::~TarvoDateTimeView() = default;

void TarvoDateTimeView::updateDateTime(const QDateTime& dateTime)
{
    if (!dateTime.isValid()) {
        showNothing();
        return;
    }
    if (dateTime == d->shown && (d->showsNothing() || sameZone(dateTime, d->shown)))
        return;
    const bool first = d->showsNothing();
    if (d->showMilliseconds)
        d->values[Millisecond]->setText(dateTime.toString(u"zzz"_s));
    if (dateTime.toSecsSinceEpoch() == d->shown.toSecsSinceEpoch() && sameZone(dateTime, d->shown))
        return;
    if (first || dateTime.date() != d->shown.date())
        d->showDay(dateTime);
    d->values[Hour]->setText(dateTime.toString(u"HH:"_s));
    d->values[Minute]->setText(dateTime.toString(u"mm:"_s));
    d->values[Second]->setText(dateTime.toString(u"ss"_s));
    // Stays that of the first call within a second.
    d->shown = dateTime;
    update();
    if (first)
        updateMinimumWidth();
}

QDateTime TarvoDateTimeView::dateTime() const
{
    return d->showsNothing() ? QDateTime() : d->shown;
}

bool TarvoDateTimeView::isPlayMode() const
{
    return d->playMode;
}

void TarvoDateTimeView::setPlayMode(bool play)
{
    d->playMode = play;
    applyStyle();
}

bool TarvoDateTimeView::showsMilliseconds() const
{
    return d->showMilliseconds;
}

void TarvoDateTimeView::setShowMilliseconds(bool show)
{
    d->showMilliseconds = show;
    d->values[Millisecond]->setVisible(show);
    d->captions[Millisecond]->setVisible(show);
    updateMinimumWidth();
    if (!d->showsNothing())
        updateDateTime(std::exchange(d->shown, nothing()));
}

QString TarvoDateTimeView::deviceName() const
{
    return d->deviceName;
}

void TarvoDateTimeView::setDeviceName(const QString& name)
{
    d->deviceName = name;
}

QString TarvoDateTimeView::dateFormat() const
{
    return d->dateFormat;
}

void TarvoDateTimeView::setDateFormat(const QString& format)
{
    d->dateFormat = format;
}

void TarvoDateTimeView::setJumpLimits(const QDateTime& earliest, const QDateTime& latest)
{
    d->earliest = earliest;
    d->latest = latest;
}

QDateTime TarvoDateTimeView::earliestJump() const
{
    return d->earliest;
}

QDateTime TarvoDateTimeView::latestJump() const
{
    return d->latest;
}

QString TarvoDateTimeView::shownText() const
{
    QString text = d->values[Day]->text() + u' ';
    for (const Field field : {Hour, Minute, Second})
        text += d->values[field]->text();
    return text.trimmed();
}

bool TarvoDateTimeView::event(QEvent* event)
{
    const bool handled = QFrame::event(event);
    if (event->type() == QEvent::ApplicationFontChange) {
        applyStyle();
        updateMinimumWidth();
    }
    return handled;
}

void TarvoDateTimeView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled()) {
        showNothing();
        if (d->dialog)
            d->dialog->reject();
    } else if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QFrame::changeEvent(event);
}

void TarvoDateTimeView::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    followScreen();
}

void TarvoDateTimeView::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawRect(rect().adjusted(1, 1, -2, -2));
}

void TarvoDateTimeView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QFrame::mousePressEvent(event);
        return;
    }
    if (std::exchange(d->pressClosedDialog, {}).hasExpired())
        openJumpDialog();
}

void TarvoDateTimeView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Select:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat())
            openJumpDialog();
        break;
    default:
        QFrame::keyPressEvent(event);
    }
}

void TarvoDateTimeView::showNothing()
{
    const std::array<QString, FieldCount> texts{QString(), u"--:"_s, u"--:"_s, u"--"_s, QString()};
    for (size_t field = 0; field < FieldCount; ++field)
        d->values[field]->setText(texts[field]);
    d->shown = nothing();
}

void TarvoDateTimeView::applyStyle()
{
    const QString color =
        (d->playMode ? POrvGuiTheme::colorYellow : POrvGuiTheme::colorGreen).name();
    const QString disabled = POrvGuiTheme::colorTuna.name();
    const int size = applicationPointSize();
    const QString caption =
        u"QLabel{  font-size: %1pt; text-align: bottom center;  }  "_s.arg(size * 9 / 10);
    const QString value =
        u"QLabel {  color: %1; font-size: %2pt; text-align: bottom center; font-weight: bold; padding: 0 0 0 0; margin: 0 0 0 0;} \t\t\t\t\t\t\t\t  QLabel:disabled { color: %3; }   "_s
            .arg(color, QString::number(valuePointSize()), disabled);
    const QString millisecond =
        u"QLabel {  color: %1; font-size: %2pt; text-align: bottom center; font-weight: bold;} \t\t\t\t\t\t\t\t  QLabel:disabled { color: %3; }"_s
            .arg(color, QString::number(size), disabled);
    // Polishing is slow, and clients may repeat the mode at every tick.
    const auto style = [](QLabel* label, const QString& sheet) {
        if (label->styleSheet() != sheet)
            label->setStyleSheet(sheet);
    };
    for (size_t field = 0; field < FieldCount; ++field) {
        style(d->values[field], field == Millisecond ? millisecond : value);
        style(d->captions[field], caption);
    }
}

void TarvoDateTimeView::retranslate()
{
    const std::array<QString, FieldCount> texts{tr("DAY"), tr("HR"), tr("MIN"), tr("SEC"),
                                                tr("MS")};
    for (size_t field = 0; field < FieldCount; ++field)
        d->captions[field]->setText(texts[field]);
    if (!d->showsNothing())
        d->showDay(d->shown);
    setAccessibleName(tr("Playback time"));
    setAccessibleDescription(tr("Jump to timepoint"));
}

void TarvoDateTimeView::updateMinimumWidth()
{
    QFont digits = font();
    digits.setBold(true);
    QFont smallDigits = digits;
    digits.setPointSize(valuePointSize());
    smallDigits.setPointSize(applicationPointSize());
    const QFontMetrics metrics(digits);
    // Also while nothing is shown: no column is narrower than its digits.
    auto* grid = static_cast<QGridLayout*>(layout());
    grid->setColumnMinimumWidth(emptyColumn, metrics.horizontalAdvance(u"  "_s));
    for (const Field field : {Hour, Minute})
        grid->setColumnMinimumWidth(columnOfField[field], metrics.horizontalAdvance(u"00:"_s));
    grid->setColumnMinimumWidth(columnOfField[Second], metrics.horizontalAdvance(u"00"_s));
    grid->setColumnMinimumWidth(
        columnOfField[Millisecond],
        d->showMilliseconds ? QFontMetrics(smallDigits).horizontalAdvance(u"000"_s) : 0);

    const QString sample =
        d->showMilliseconds ? u"18 Aug    00:00:00.000"_s : u"18 Aug    00:00:00"_s;
    setMinimumWidth(metrics.boundingRect(sample).width() + 2);
}

void TarvoDateTimeView::followScreen()
{
    QWindow* topLevel = window()->windowHandle();
    if (topLevel == d->followedWindow)
        return;
    if (d->followedWindow)
        d->followedWindow->disconnect(this);
    d->followedWindow = topLevel;
    if (topLevel)
        connect(topLevel, &QWindow::screenChanged, this, &TarvoDateTimeView::updateMinimumWidth);
}

void TarvoDateTimeView::openJumpDialog()
{
    if (d->dialog)
        return;
    d->dialog = new JumpToTimepointDialog(this);
    connect(d->dialog, &QDialog::finished, this, &TarvoDateTimeView::onJumpDialogFinished);
    d->dialog->setDeviceName(d->deviceName);
    d->dialog->setDateFormat(d->dateFormat);
    d->dialog->setLimits(d->earliest, d->latest);
    d->dialog->setMoment(d->shown);
    d->dialog->show();
    placeJumpDialog();
    d->dialog->activateWindow();
}

void TarvoDateTimeView::placeJumpDialog()
{
    const QSize size = d->dialog->frameGeometry().size();
    const QRect view(mapToGlobal(QPoint(0, 0)), this->size());
    const QRect free = screen()->availableGeometry();
    QPoint place(view.left(), view.bottom() + 1);
    if (place.y() + size.height() > free.bottom() + 1)
        place.setY(view.top() - size.height());
    place.setX(
        std::clamp(place.x(), free.left(), std::max(free.left(), free.right() + 1 - size.width())));
    place.setY(std::max(place.y(), free.top()));
    d->dialog->move(place);
}

void TarvoDateTimeView::onJumpDialogFinished(int result)
{
    // The dialog is still handling an event, which it must survive even if a receiver deletes this
    // view.
    JumpToTimepointDialog* dialog = std::exchange(d->dialog, nullptr);
    const QDateTime moment = dialog->moment();
    dialog->setParent(nullptr);
    dialog->deleteLater();
    if (result == QDialog::Accepted) {
        Q_EMIT jumoToTime(moment);
    } else if (dialog->wasLeft() && QApplication::activeWindow() == window() &&
               rect().contains(mapFromGlobal(QCursor::pos()))) {
        // Closed by the press that activated this window again: it must not open a second one.
        d->pressClosedDialog.setRemainingTime(QApplication::doubleClickInterval());
    }
}

} // namespace CorvelGui
