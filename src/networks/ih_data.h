#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "link/list_commands.h"
#include "link/list_size.h"

namespace corvalis {

inline constexpr int kIhPages = 14;

/// The in-house pages. The configuration file holds where each page's own file is; the texts are in
/// those files. Pages count from 0; an index outside the 14 is `std::out_of_range`.
class IhData {
 public:
  /// Loads itself from the file.
  IhData();

  /// Pages in force, 1 to 14.
  [[nodiscard]] std::int16_t PagesCount() const { return size_.Count(); }
  /// In the Coder's own units, 0 to 9999 on the line. Only the file and the Coder set it.
  [[nodiscard]] std::int16_t RotationTime(std::int16_t i) const { return At(i).rotation_time; }
  // Where the page's file is, in the file system's own bytes.
  [[nodiscard]] const std::string& Drive(std::int16_t i) const { return At(i).drive; }
  void SetDrive(std::int16_t i, const std::string& text) { At(i).drive = text; }
  [[nodiscard]] const std::string& Path(std::int16_t i) const { return At(i).path; }
  void SetPath(std::int16_t i, const std::string& text) { At(i).path = text; }
  [[nodiscard]] const std::string& FileName(std::int16_t i) const { return At(i).file_name; }
  void SetFileName(std::int16_t i, const std::string& text) { At(i).file_name = text; }
  /// The file's whole name: the folder, a "/" unless it ends in one, and the name.
  [[nodiscard]] std::string FullName(std::int16_t i) const;
  /// Always 2048 characters, line ends included; what is set is cut, or filled with blanks.
  [[nodiscard]] const std::string& Page(std::int16_t i) const { return At(i).page; }
  void SetPage(std::int16_t i, const std::string& text);
  /// The text of a page that is new.
  [[nodiscard]] static const std::string& NewPage();

  /// Reads the page from its file, which is made if it is missing, but not while writes are caught
  /// (`ProfileStore::Catch`): its first 2048 bytes. A file that can't be read, or that is no plain
  /// file, leaves the page; false then.
  bool ReadFile(std::int16_t i);
  /// True if the page's file is the station's own: what the configuration is loaded from or the
  /// texts of the screens, or the default file.
  [[nodiscard]] bool NamesStationsFile(std::int16_t i) const;
  /// Writes all 2048 characters and a line end in the place of its file, as one whole operation;
  /// false if that can't be done, or if it is the station's own.
  [[nodiscard]] bool WriteFile(std::int16_t i) const;

  /// What OPEN would make of the page's file: blanks where it can't be read. Makes no file.
  [[nodiscard]] std::string PageInFile(std::int16_t i) const;

  /// Reads the page from the Coder. A failure leaves text and rotation.
  void GetOneRds(std::int16_t i);
  void SetOneRds(std::int16_t i) const;

  /// Loads the pages, as many as the Coder or the file says, and their texts from their files; a
  /// file that can't be read gives blanks. A missing key gives a page as it is when new.
  void GetIni();
  void SetIni() const;

 private:
  struct IhPage {
    std::int16_t rotation_time = 1;
    std::string page = std::string(kIhCharacters, ' ');
    std::string drive, path, file_name;
  };
  [[nodiscard]] const IhPage& At(std::int16_t i) const {
    return pages_.at(static_cast<std::size_t>(i));
  }
  [[nodiscard]] IhPage& At(std::int16_t i) { return pages_.at(static_cast<std::size_t>(i)); }

  ListSize size_;
  IhPage default_;
  std::array<IhPage, kIhPages> pages_;
};

/// The pages; null before `MainForm` has created them.
extern IhData* ihData;

}  // namespace corvalis
