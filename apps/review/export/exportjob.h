// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <functional>

namespace Review {

/// Something that is exported while the window goes on. Texts are in the language of the moment.
class ExportJob : public QObject
{
    Q_OBJECT

public:
    enum class Outcome { Complete, Cancelled, Failed };

    using QObject::QObject;

    virtual void start() = 0;
    /// Does nothing when the export has ended.
    virtual void cancel() = 0;
    /// How many steps there are.
    virtual int count() const = 0;
    virtual QString folder() const = 0;

    virtual QString title() const = 0;
    /// What is going on.
    virtual QString activity() const = 0;
    /// What is not done as yet.
    virtual QString remainder() const = 0;
    /// Says what came of it, also when the job is no longer there.
    virtual std::function<QString()> report(Outcome outcome) const = 0;
    /// What could not be exported although the export is complete, in lines; mostly empty.
    virtual QString leftOut() const { return {}; }

    /// What went wrong, after Outcome::Failed.
    const QString& error() const { return m_error; }

Q_SIGNALS:
    void progressed(int done);
    /// Emitted once. The export may be deleted then.
    void ended(Review::ExportJob::Outcome outcome);

protected:
    QString m_error;
};

} // namespace Review
