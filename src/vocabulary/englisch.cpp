#include "vocabulary/englisch.h"

namespace vocabulary {

const std::array<const char*, 48> kBuiltinWords = {
    "afternoon", "apple",    "basket",    "brother",    "boat",      "bottle",     "cherry",
    "cheese",    "computer", "birthday",  "flower",     "friend",    "holiday",    "kitchen",
    "postcard",  "ladder",   "crocodile", "mouse",      "newspaper", "neighbour",  "nonsense",
    "lipstick",  "ocean",    "orange",    "needle",     "paper",     "picture",    "pigeon",
    "player",    "pleasure", "pocket",    "potatoes",   "puzzle",    "question",   "roastbeef",
    "pepper",    "ruler",    "school",    "secretary",  "shadow",    "pencil",     "shoulder",
    "sister",    "frostel",  "mother",    "television", "snowflake", "vegetables",
};

void WortlisteFuellen(QStringList& list)
{
    for (const char* w : kBuiltinWords) list.append(QString::fromLatin1(w));
}

} // namespace vocabulary
