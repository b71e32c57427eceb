#pragma once

#include <optional>

#include "pipeline/Judgement.h"

class QJsonObject;

namespace tavrin {

/// Adds a judgement to a line of JSON, as reports, the journal and what `--json` prints have it: `confidence`,
/// `doubts`, `place`, `measures`.
void addJudgement(QJsonObject& object, const Judgement& judgement);

/// The judgement that such a line holds, without its measures; nothing where there is none, as in lines of older
/// versions, or none that makes sense.
std::optional<Judgement> judgementOf(const QJsonObject& object);

}  // namespace tavrin
