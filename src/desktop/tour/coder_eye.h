#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace corvalis::desktop {

/// A look at what the simulated Coder took and what it holds, through what the program
/// corvalis-coder prints (started with --print and --dump).
class CoderEye {
 public:
  /// `log` is the file that the program prints into; `pid` its process.
  CoderEye(QString log, int pid);

  /// The lines printed since the last call, without the memory: what arrived, in words.
  [[nodiscard]] QStringList Arrived();
  /// The memory as it is now: "PI 00" and the like, with the body as a text.
  [[nodiscard]] QMap<QString, QString> Memory();

 private:
  [[nodiscard]] QString Log() const;

  QString log_;
  int pid_;
  qsizetype read_ = 0;
};

}  // namespace corvalis::desktop
