// SPDX-License-Identifier: MIT
#pragma once

#include "look/translated.h"

#include <CorvelGui/Info3rdLicences>
#include <CorvelGui/PBaseDialog>

class QTabWidget;

namespace CorvelGui {
class AboutInfo7;
} // namespace CorvelGui

namespace Review {

/// What the client is, what it is made of, and on which machine it runs.
class AboutDialog : public Translated<CorvelGui::PBaseDialog>
{
    Q_OBJECT

public:
    explicit AboutDialog(QWidget* parent = nullptr);

    /// What the client is linked with by itself, with the versions that run.
    static QList<CorvelGui::Info3rdLicences::Component> components();

protected:
    void retranslate() final;

private:
    CorvelGui::AboutInfo7* m_about;
    CorvelGui::Info3rdLicences* m_licences;
    QTabWidget* m_tabs;
};

} // namespace Review
