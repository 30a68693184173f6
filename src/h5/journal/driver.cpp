#include "h5/journal/driver.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdint>
#include <exception>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

#include "h5/journal/JournaledFile.h"

namespace h5 {

namespace {

using Identity = std::pair<std::uint64_t, std::uint64_t>;

Identity identityOf(const char* name) {
  struct stat status {};
  if (::stat(name, &status) != 0) return {};
  return {static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino)};
}

// The library opens a file once more before it finds that it has it already. Nothing can fail then.
std::shared_ptr<JournaledFile> openOnce(const char* name, int flags) {
  static std::vector<std::weak_ptr<JournaledFile>> opened;
  std::erase_if(opened, [](const auto& file) { return file.expired(); });
  const Identity wanted = identityOf(name);
  for (const auto& known : opened) {
    std::shared_ptr<JournaledFile> file = known.lock();
    const bool suffices = file->isWritable() || (flags & O_RDWR) == 0;
    if (suffices && (flags & O_TRUNC) == 0 && file->identity() == wanted) return file;
  }
  auto file = std::make_shared<JournaledFile>(name, flags);
  opened.push_back(file);
  return file;
}

// What the library hands around as H5FD_t.
struct OpenFile : H5FD_t {
  OpenFile(const char* name, int flags) : H5FD_t{}, journaled(openOnce(name, flags)) {}

  haddr_t allocated = 0;  // end of the space that the library has given out
  std::shared_ptr<JournaledFile> journaled;
};

JournaledFile& journaled(const H5FD_t* file) {
  return *static_cast<const OpenFile*>(file)->journaled;
}

// The library flushes the empty file that it makes; nothing is in it yet that could be of worth.
bool isCreating = false;

// No exception may pass through the library.
template <class Work>
herr_t guarded(hid_t major, hid_t minor, Work work) {
  try {
    work();
    return 0;
  } catch (const std::exception& error) {
    H5Epush2(H5E_DEFAULT, __FILE__, __func__, __LINE__, H5E_ERR_CLS, major, minor, "%s",
             error.what());
    return -1;
  }
}

int openFlags(unsigned flags) {
  int mode = (flags & H5F_ACC_RDWR) != 0 ? O_RDWR : O_RDONLY;
  if ((flags & H5F_ACC_TRUNC) != 0) mode |= O_TRUNC;
  if ((flags & H5F_ACC_CREAT) != 0) mode |= O_CREAT;
  if ((flags & H5F_ACC_EXCL) != 0) mode |= O_EXCL;
  return mode;
}

H5FD_t* open(const char* name, unsigned flags, hid_t /*list*/, haddr_t /*maximum*/) {
  OpenFile* file = nullptr;
  guarded(H5E_FILE, H5E_CANTOPENFILE, [&] { file = new OpenFile(name, openFlags(flags)); });
  return file;
}

void commitUnlessHeld(H5FD_t* file) {
  JournaledFile& target = journaled(file);
  if (isCreating) return;
  if (target.isWritable() && !target.isHeld()) target.commit();
}

// A file that is still held is closed by the end of a process that has failed. A failure here is
// not told: the library would keep the identifier of a file that is gone and fall over it at its
// exit. All that was flushed is in the file.
herr_t close(H5FD_t* file) {
  auto* const last = static_cast<OpenFile*>(file);
  if (last->journaled.use_count() == 1) {
    guarded(H5E_IO, H5E_CANTCLOSEFILE, [&] { commitUnlessHeld(file); });
  }
  delete last;
  return 0;
}

int compare(const H5FD_t* one, const H5FD_t* other) {
  const Identity left = journaled(one).identity();
  const Identity right = journaled(other).identity();
  if (left == right) return 0;
  return left < right ? -1 : 1;
}

herr_t query(const H5FD_t* /*file*/, unsigned long* flags) {
  *flags = H5FD_FEAT_AGGREGATE_METADATA | H5FD_FEAT_ACCUMULATE_METADATA | H5FD_FEAT_DATA_SIEVE |
           H5FD_FEAT_AGGREGATE_SMALLDATA | H5FD_FEAT_DEFAULT_VFD_COMPATIBLE;
  return 0;
}

haddr_t allocatedEnd(const H5FD_t* file, H5FD_mem_t /*type*/) {
  return static_cast<const OpenFile*>(file)->allocated;
}

herr_t setAllocatedEnd(H5FD_t* file, H5FD_mem_t /*type*/, haddr_t address) {
  static_cast<OpenFile*>(file)->allocated = address;
  return 0;
}

haddr_t endOfFile(const H5FD_t* file, H5FD_mem_t /*type*/) {
  return journaled(file).end();
}

herr_t handle(H5FD_t* file, hid_t /*list*/, void** result) {
  *result = &journaled(file);
  return 0;
}

herr_t read(H5FD_t* file, H5FD_mem_t /*type*/, hid_t /*list*/, haddr_t address, std::size_t size,
            void* bytes) {
  return guarded(H5E_IO, H5E_READERROR,
                 [&] { journaled(file).read(address, static_cast<char*>(bytes), size); });
}

herr_t write(H5FD_t* file, H5FD_mem_t /*type*/, hid_t /*list*/, haddr_t address, std::size_t size,
             const void* bytes) {
  return guarded(H5E_IO, H5E_WRITEERROR,
                 [&] { journaled(file).write(address, static_cast<const char*>(bytes), size); });
}

// What the library still writes when it closes a file belongs to the same commit.
herr_t flush(H5FD_t* file, hid_t /*list*/, hbool_t isClosing) {
  if (isClosing) return 0;
  return guarded(H5E_IO, H5E_WRITEERROR, [&] { commitUnlessHeld(file); });
}

herr_t truncate(H5FD_t* file, hid_t /*list*/, hbool_t /*isClosing*/) {
  journaled(file).setEnd(allocatedEnd(file, H5FD_MEM_DEFAULT));
  return 0;
}

herr_t lock(H5FD_t* file, hbool_t isWriter) {
  return guarded(H5E_FILE, H5E_CANTLOCKFILE, [&] {
    journaled(file).descriptor().lock((isWriter ? LOCK_EX : LOCK_SH) | LOCK_NB);
  });
}

herr_t unlock(H5FD_t* file) {
  return guarded(H5E_FILE, H5E_CANTUNLOCKFILE, [&] { journaled(file).descriptor().lock(LOCK_UN); });
}

H5FD_class_t describe() {
  constexpr haddr_t LARGEST = (haddr_t{1} << 63) - 1;
  constexpr H5FD_mem_t KINDS[] = H5FD_FLMAP_DICHOTOMY;
  H5FD_class_t driver{};
  driver.name = "h5journal";
  driver.maxaddr = LARGEST;
  driver.fc_degree = H5F_CLOSE_WEAK;
  driver.open = open;
  driver.close = close;
  driver.cmp = compare;
  driver.query = query;
  driver.get_eoa = allocatedEnd;
  driver.set_eoa = setAllocatedEnd;
  driver.get_eof = endOfFile;
  driver.get_handle = handle;
  driver.read = read;
  driver.write = write;
  driver.flush = flush;
  driver.truncate = truncate;
  driver.lock = lock;
  driver.unlock = unlock;
  std::copy(std::begin(KINDS), std::end(KINDS), driver.fl_map);
  return driver;
}

hid_t createList() {
  // A link to another file would be followed with the library's own driver, to anywhere.
  H5Lunregister(H5L_TYPE_EXTERNAL);
  static const H5FD_class_t driver = describe();
  const hid_t id = H5FDregister(&driver);
  if (id < 0) return id;
  const hid_t list = H5Pcreate(H5P_FILE_ACCESS);
  if (H5Pset_driver(list, id, nullptr) < 0) return H5I_INVALID_HID;
  return list;
}

}  // namespace

hid_t accessList() {
  static const hid_t list = createList();
  return list;
}

hid_t createFile(const char* name) {
  isCreating = true;
  const hid_t file = H5Fcreate(name, H5F_ACC_TRUNC, H5P_DEFAULT, accessList());
  isCreating = false;
  return file;
}

const JournaledFile* journaledOf(hid_t file) {
  void* source = nullptr;
  return H5Fget_vfd_handle(file, H5P_DEFAULT, &source) < 0 ? nullptr
                                                           : static_cast<JournaledFile*>(source);
}

std::uint64_t baseOf(hid_t file) {
  const hid_t plan = H5Fget_create_plist(file);
  hsize_t userBlock = 0;
  H5Pget_userblock(plan, &userBlock);
  H5Pclose(plan);
  return userBlock;
}

}  // namespace h5
