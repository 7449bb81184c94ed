#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace corvalis::coder {

/// What is thrown for a path that cannot be written, with a sentence for people.
class CannotWrite : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Where something that never pauses is written to: a file, a FIFO, a device or "-", the standard
/// output. It never waits for who reads. A FIFO is open while it has a reader; each new reader gets
/// what comes from then on.
class Outlet {
 public:
  /// A file is made or emptied. Throws `CannotWrite` if it cannot be written. That a FIFO has no
  /// reader yet is no reason.
  explicit Outlet(std::string path);
  ~Outlet();
  Outlet(Outlet&& other) noexcept;
  Outlet(const Outlet&) = delete;
  Outlet& operator=(const Outlet&) = delete;
  Outlet& operator=(Outlet&&) = delete;

  enum class State {
    kReady,   ///< takes the next bytes
    kBusy,    ///< what it was given has not all left yet; poll `Descriptor` for writing
    kUnread,  ///< a FIFO that has had no reader yet
    kGone,    ///< the reader went away, or the disk is full
  };
  /// Passes on what is left, looks for a reader, and says how it stands.
  State Look();
  /// Only when ready or busy: takes all bytes, whatever of them can leave at once.
  void Put(std::string_view bytes);
  /// True once for each reader (a file has one), and only when ready: it has got nothing yet.
  [[nodiscard]] bool TakeFresh();
  /// Writes over what stands at the front, if this is a file.
  void PutOver(std::string_view front) const;
  /// How long this file is by now; 0 if it is none.
  [[nodiscard]] std::uint64_t FileBytes() const;

  [[nodiscard]] const std::string& Path() const { return path_; }
  /// To be polled for writing while busy.
  [[nodiscard]] int Descriptor() const { return descriptor_; }

 private:
  void OpenFifo();
  void Opened();
  void Flush();

  std::string path_;
  int descriptor_ = -1;
  bool is_fifo_ = false;
  bool is_file_ = false;
  bool was_read_ = false;
  bool fresh_ = false;
  bool stuck_ = false;  // the last write failed
  std::string left_;    // taken and not written yet
};

}  // namespace corvalis::coder
