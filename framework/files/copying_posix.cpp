#include "framework/files/disk.h"
#include "framework/text/failures.h"

#include <algorithm>

namespace norvane::disk {

namespace {

constexpr std::size_t kBlock = std::size_t{1} << 16U;

/// Fills the block anew as far as the file goes; gives what it then holds.
std::string_view nextBlock(InputFile &file, Bytes &block) {
    block.clear();
    while (block.restSize() != 0 && file.readSome(block)) {
    }
    return block.view();
}

/// True when a file at `target` has the bytes and the permission bits of the one at `source`, and
/// lasts if it has to.
bool isCopied(const std::string &source, const std::string &target, Lasting lasting) {
    try {
        InputFile copy(target);
        InputFile original(source);
        if (copy.size() != original.size() || copy.permissions() != original.permissions())
            return false;
        const std::size_t room = std::min(copy.size(), kBlock);
        Bytes copyBlock(room);
        Bytes originalBlock(room);
        for (std::size_t left = copy.size(); left != 0;) {
            const std::string_view block = nextBlock(original, originalBlock);
            if (block.empty() || nextBlock(copy, copyBlock) != block)
                return false;
            left -= block.size();
        }
        if (lasting == Lasting::yes)
            copy.flush();
    } catch (const IOException &) {
        return false; // a new copy may fare better
    }
    return true;
}

} // namespace

void copyFile(const std::string &source, const std::string &target, Lasting lasting) {
    if (isCopied(source, target, lasting))
        return;
    try {
        InputFile original(source);
        NewFile copy(target, original.permissions());
        Bytes block(std::min(original.size(), kBlock));
        while (original.readSome(block)) {
            copy.write(block.view());
            block.clear();
        }
        copy.finish(lasting);
    } catch (const IOException &) {
        // The outcome of a copy is not reported; the target is as it was.
        return;
    }
}

} // namespace norvane::disk
