// SPDX-License-Identifier: MIT
#pragma once

#include "answer.h"

#include <QStringList>

namespace LocalHttp {

/// What can go wrong between a server and its clients.
enum class Misbehaviour {
    None,
    Never,
    Slow,
    Endless,
    Cut,
    Length,
    NotFound,
    ServerError,
    RedirectLoop,
    RedirectFile,
    Portal,
};

/// The names that misbehaviourNamed() knows, in the order of their values.
QStringList misbehaviourNames();
/// The misbehaviour of that name: "never", "slow", "404" and so on.
std::optional<Misbehaviour> misbehaviourNamed(const QString& name);

/// Makes of a good @p answer to @p request one that misbehaves.
Answer misbehave(Misbehaviour how, const Request& request, Answer answer);

} // namespace LocalHttp
