// SPDX-License-Identifier: MIT
#pragma once

#include "checkappupdate.h"
#include "internalexport.h"

namespace Corvel {

struct UpdateAnswer
{
    CheckAppUpdate::AppUpdateInfoResult result;
    QString fault; ///< for the user; when it is not empty, there is no result
};

/// Reads the JSON answer to an update query. It says what is wrong with an answer, and takes none
/// that breaks the protocol in part.
CORVEL_INTERNAL_EXPORT UpdateAnswer parseUpdateAnswer(const QByteArray& json);

} // namespace Corvel
