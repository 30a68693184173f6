#include "h5/journal/WriterLock.h"

#include <cstdint>
#include <map>
#include <utility>

#include "common/console.h"
#include "h5/journal/Refused.h"

namespace h5 {

namespace {

using Identity = std::pair<std::uint64_t, std::uint64_t>;

// A second descriptor of this process would not get the lock.
std::map<Identity, std::weak_ptr<const Descriptor>>& locksOfThisProcess() {
  static std::map<Identity, std::weak_ptr<const Descriptor>> locks;
  return locks;
}

}  // namespace

WriterLock::WriterLock(const Descriptor& file) {
  std::weak_ptr<const Descriptor>& known = locksOfThisProcess()[file.identity()];
  held = known.lock();
  if (held) return;
  held = std::make_shared<const Descriptor>(file.duplicate());
  switch (held->lockForWriting()) {
    case Descriptor::Lock::Taken:
      break;
    case Descriptor::Lock::HeldByAnother:
      throw Refused("another process is writing to file " + file.name() +
                    ": wait for its end, or give this one another file");
    case Descriptor::Lock::Unknown:
      common::console::error("note: file ", file.name(), " lies where files cannot be locked: ",
                             "take care that no other run writes to it");
  }
  known = held;
}

}  // namespace h5
