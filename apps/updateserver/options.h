// SPDX-License-Identifier: MIT
#pragma once

#include "updatesite.h"

namespace UpdateServer {

/// What the command line says.
class Options
{
    Q_DECLARE_TR_FUNCTIONS(UpdateServer::Options)

public:
    enum class Outcome { Run, Answered, Refused };

    Outcome parse(const QStringList& arguments);

    Offer offer;
    quint16 port = 8480;
    QString message; ///< for the console, unless the outcome is to run
};

} // namespace UpdateServer
