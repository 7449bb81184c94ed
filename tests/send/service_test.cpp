// The service as a process, at a socket.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <csignal>
#include <stdexcept>

#include "desktop/coder_process.h"
#include "support/places.h"

namespace corvalis::test {
namespace {

sockaddr_un AddressOf(const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path.copy(static_cast<char*>(address.sun_path), sizeof address.sun_path - 1);
  return address;
}

// A client that says all and reads until the other side ends.
std::string Ask(const std::string& path, const std::string& lines) {
  const int client = socket(AF_UNIX, SOCK_STREAM, 0);
  const sockaddr_un address = AddressOf(path);
  std::string answers;
  if (connect(client, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
      write(client, lines.data(), lines.size()) == static_cast<ssize_t>(lines.size())) {
    shutdown(client, SHUT_WR);
    char byte = 0;
    while (read(client, &byte, 1) == 1) answers += byte;
  }
  close(client);
  return answers;
}

class ServiceTest : public testing::Test {
 protected:
  // Starts the service and returns when it has said that it is ready.
  void Start(const QStringList& options) {
    const std::string name = Path("notify");
    unlink(name.c_str());
    const int notified = socket(AF_UNIX, SOCK_DGRAM, 0);
    const sockaddr_un address = AddressOf(name);
    ASSERT_EQ(bind(notified, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    const timeval patience{10, 0};
    setsockopt(notified, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("NOTIFY_SOCKET", name.c_str());
    service.setProcessEnvironment(environment);
    service.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    service.start(CORVALIS_SEND_PROGRAM,
                  QStringList{"--file", QString(kExamples) + "/station.rds", "--port",
                              Path("line").c_str(), "--listen", Path("socket").c_str()} +
                      options);
    std::string state(16, '\0');
    state.resize(static_cast<std::size_t>(
        std::max<ssize_t>(recv(notified, state.data(), state.size(), 0), 0)));
    EXPECT_EQ(state, "READY=1");
    close(notified);
  }
  int End(int signal) {
    kill(static_cast<pid_t>(service.processId()), signal);
    service.waitForFinished();
    return service.exitCode();
  }
  [[nodiscard]] std::string Path(const char* name) const {
    return folder.filePath(name).toStdString();
  }

  QTemporaryDir folder;
  QProcess service;
};

TEST_F(ServiceTest, ServesASocketAndStartsAgainAfterEveryEnd) {
  CoderProcess coder({"--link", Path("line").c_str(), "--print", "--dump"});
  Start({});
  struct stat status {};
  ASSERT_EQ(stat(Path("socket").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0660U);
  EXPECT_EQ(Ask(Path("socket"), "rt 1 x\nread rt 1\nraw 0F0031"),
            "ok\nrt 1 \"x\" --time 15\nok\n"
            "error: frames are not taken here, as they can lock a Coder away\n");
  End(SIGKILL);
  Start({"--allow-raw"});
  EXPECT_EQ(Ask(Path("socket"), "TA=1\nraw 0F0030\n"), "OK\nok\n");
  EXPECT_EQ(End(SIGTERM), 0);
  EXPECT_NE(stat(Path("socket").c_str(), &status), 0);
}

TEST_F(ServiceTest, FollowsAFile) {
  CoderProcess coder({"--link", Path("line").c_str(), "--print", "--dump"});
  Start({"--follow", Path("now").c_str(), "--as", "rt 1 ", "--cut", "--replace"});
  const auto write = [](const std::string& path, const char* text) {
    QFile file(path.c_str());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
  };
  write(Path("now"), "\xEF\xBB\xBFOne\r\nnot this\r\n");
  coder.WaitForLine("RT 1 <- 15One");
  write(Path("new"), "Tw\xC5\x8D");
  ASSERT_EQ(rename(Path("new").c_str(), Path("now").c_str()), 0);
  coder.WaitForLine("RT 1 <- 15Two");
  write(Path("now"), "Three");
  coder.WaitForLine("RT 1 <- 15Three");
  EXPECT_EQ(End(SIGTERM), 0);
}

// So many bytes from a line; fewer once it is gone.
std::string Take(int line, std::size_t count) {
  std::string bytes;
  for (pollfd polled{line, POLLIN, 0}; bytes.size() < count && poll(&polled, 1, 10'000) > 0;) {
    char byte = 0;
    if (read(line, &byte, 1) != 1) break;
    bytes += byte;
  }
  return bytes;
}

TEST_F(ServiceTest, SharesTheLineWithAnotherProgram) {
  CoderProcess coder({"--link", Path("line").c_str(), "--print", "--dump"});
  Start({"--share", Path("shared").c_str()});
  // Opens, writes, and ends; `meanwhile` is before the answers are taken.
  int line = -1;
  const auto exchange = [&](const std::string& bytes, std::size_t count, auto meanwhile) {
    line = open(Path("shared").c_str(), O_RDWR | O_NOCTTY);
    EXPECT_EQ(write(line, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    meanwhile();
    std::string answers = Take(line, count);
    close(line);
    return answers;
  };
  const std::string enq = "\5";
  EXPECT_EQ(exchange(enq, 1, [] {}), "\6");
  EXPECT_EQ(exchange("\2\10" + std::string(1, '\0') + "?????\3\66", 1, [] {}), "\6");
  const std::string answer = exchange("\2\15" + std::string(1, '\0') + "\3\14", 8, [&] {
    EXPECT_EQ(Ask(Path("socket"), "rt 1 x\nread rt 1\n"), "ok\nrt 1 \"x\" --time 15\nok\n");
  });
  EXPECT_EQ(answer.substr(0, 3), "\6\2\15");
  EXPECT_EQ(answer.size(), 8U);
  EXPECT_EQ(exchange(enq, 2,
                     [&] {
                       EXPECT_EQ(Take(line, 1), "\6");
                       End(SIGKILL);
                     }),
            "")
      << "gone with the service";
  // What a killed service has left is taken over, what is something else is not.
  Start({"--share", Path("shared").c_str()});
  EXPECT_EQ(exchange(enq, 1, [] {}), "\6");
  EXPECT_EQ(End(SIGTERM), 0);
  QFile one_way(folder.filePath("one_way.rds"));
  ASSERT_TRUE(one_way.open(QIODevice::WriteOnly));
  one_way.write("[Serial Setup]\r\nSatellite=On\r\n");
  one_way.close();
  const QString station = QString(kExamples) + "/station.rds";
  for (const auto& [file, share, words] :
       {std::tuple{station, one_way.fileName(), "it stays as it is"},
        {one_way.fileName(), folder.filePath("shared"), "needs a Coder that answers"},
        {station, folder.filePath("line"), "is the line of this service"}}) {
    QProcess process;
    process.start(CORVALIS_SEND_PROGRAM, {"--file", file, "--port", folder.filePath("line"),
                                          "--follow", "x", "--as", "rt 1", "--share", share});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 2);
    EXPECT_TRUE(process.readAllStandardError().contains(words)) << words;
  }
}

}  // namespace
}  // namespace corvalis::test
