#include "explain/walk/entry_remarks.h"

#include "explain/walk/remark_list.h"

namespace norvane {

void remarkOn(const SccLine &line, const LineWalk &walk, bool wantsAdvice,
              std::vector<EntryRemark> &remarks) {
    RemarkList list(line, walk, wantsAdvice, remarks);
    remarkOnCrossings(list);
    remarkOnDigits(list);
    if (walk.entry())
        remarkOnScreen(list);
}

} // namespace norvane
