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
  /// All that has been printed so far.
  const QString& Log();

  QString path_;
  int pid_;
  QString log_;
  qsizetype told_ = 0;  // of it, by Arrived
};

}  // namespace corvalis::desktop
