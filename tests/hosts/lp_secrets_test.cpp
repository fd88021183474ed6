// How kesto-lp takes secrets: from files, standard input and the terminal, and where they must not be seen.
#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

#include "platform/descriptor.h"
#include "tests/support/hostile_server.h"
#include "tests/support/lp_program.h"

namespace kesto::test {
namespace {

const QString pin1234 = u"jobSuspend2Key=3F3FA6A226B041DE0CA8F37F0E03543E"_s;

class LpSecrets : public LpTest {};

TEST_F(LpSecrets, TheFirstLineOfAFileOrOfStandardInput) {
  using Case = std::pair<QByteArray, Text>;  // the bytes, and what is wrong with them
  for (const auto& [bytes, fault] :
       {Case{"1234\n", ""}, Case{"1234", ""}, Case{"1234\r\nmore\n", ""}, Case{"", "the line is empty"},
        Case{"\n1234\n", "the line is empty"}, Case{QByteArray(1025, 'x'), "the line is too long"},
        Case{"12\xFF", "the line is not UTF-8"}}) {
    m_folder.write(u"code"_s, bytes);
    for (const QString& source : {u"-"_s, m_folder.path(u"code"_s)}) {
      const LpRun run = dryRun(u"--hold only --pin-file "_s + source, bytes);
      EXPECT_EQ(run.code, fault.isEmpty() ? 0 : 1) << bytes;
      EXPECT_EQ(run.values(u"jobSuspend2Key"_s), fault.isEmpty() ? pin1234 : u"jobSuspend2Key"_s);
      EXPECT_EQ(run.err, fault.isEmpty() ? u""_s : u"kesto-lp: --pin-file: %1\n"_s.arg(fault));
    }
  }
  EXPECT_EQ(dryRun(u"--password-file /no/file"_s).err,
            u"kesto-lp: --password-file: /no/file: No such file or directory\n"_s);
  EXPECT_EQ(dryRun(u"--password-file /"_s).err, u"kesto-lp: --password-file: Is a directory\n"_s);
}

TEST_F(LpSecrets, TheListOfProcessesDoesNotShowThem) {
  // A library waits for this file while it is initialized, before anything of the program's own runs.
  const QByteArray fifo = QFile::encodeName(m_folder.path(u"priorities"_s));
  ASSERT_EQ(::mkfifo(fifo.constData(), 0600), 0);
  m_environment.insert(u"GNUTLS_SYSTEM_PRIORITY_FILE"_s, m_folder.path(u"priorities"_s));
  const auto lp = process(dry(u"--hold only --pin 1234 --folder X --folder-pin=1234"_s));
  lp->start();
  Descriptor writer;
  waitFor([&] {
    writer.reset(::open(fifo.constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC));
    return bool(writer);
  });
  const QByteArray line = bytesOf(u"/proc/%1/cmdline"_s.arg(lp->processId()));
  EXPECT_TRUE(line.contains("--pin") && line.contains("--folder-pin=")) << line;
  EXPECT_FALSE(line.contains("1234")) << line;
  ::unlink(fifo.constData());
  writer.reset();
  const LpRun run = finish(*lp);
  EXPECT_EQ(run.values(u"jobSuspend2Key"_s), pin1234) << run.err;
  EXPECT_EQ(run.values(u"folderPassword2"_s).section(u'=', 1), pin1234.section(u'=', 1));
}

// A terminal at which a program asks for a pass code.
class LpAtATerminal : public LpSecrets {
 protected:
  void SetUp() override {
    m_master = ::posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_TRUE(m_master >= 0 && ::grantpt(m_master) == 0 && ::unlockpt(m_master) == 0);
    m_terminal = ::open(::ptsname(m_master), O_RDWR | O_NOCTTY);  // so that its modes outlive a program
  }
  void TearDown() override {
    ::close(m_terminal);
    ::close(m_master);
  }
  std::unique_ptr<QProcess> ask(const QString& arguments) {
    auto lp = process(arguments);
    lp->setWorkingDirectory(m_folder.path(u""_s));
    lp->setChildProcessModifier([name = std::string(::ptsname(m_master))] {
      ::setsid();
      ::ioctl(::open(name.c_str(), O_RDWR), TIOCSCTTY, 0);
    });
    lp->start();
    return lp;
  }
  std::unique_ptr<QProcess> ask() {
    auto lp = ask(dry(u"--hold only --ask-pin"_s));
    expectShown("Pass code: ");
    return lp;
  }
  // What the program writes next. One read may return less than that, or the following text as well.
  void expectShown(const QByteArray& text) const {
    QByteArray seen;
    for (char each = 0; seen.size() < text.size() && ::read(m_master, &each, 1) == 1;)
      seen += each;
    EXPECT_EQ(seen, text);
  }
  void expectEcho(bool isOn, int after) const {
    termios modes{};
    for (int tries = 0; tries < 500; ++tries, ::usleep(10000)) {
      ASSERT_EQ(::tcgetattr(m_master, &modes), 0);
      if (((modes.c_lflag & ECHO) != 0) == isOn) return;
    }
    ADD_FAILURE() << "echo " << (isOn ? "stays off" : "comes back") << " after signal " << after;
  }

  int m_master = -1;
  int m_terminal = -1;
};

TEST_F(LpAtATerminal, AnswersWithoutShowingThem) {
  const auto lp = ask();
  expectEcho(false, 0);
  ASSERT_EQ(::write(m_master, "1234\n", 5), 5);
  EXPECT_EQ(finish(*lp).values(u"jobSuspend2Key"_s), pin1234);
  expectShown("\r\n");
  expectEcho(true, 0);
}

TEST_F(LpAtATerminal, TheEchoIsRestoredHoweverAProgramEnds) {
  for (const int signal : {SIGTERM, SIGALRM, SIGSEGV, SIGKILL}) {
    const auto lp = ask();
    expectEcho(false, 0);
    ASSERT_EQ(::kill(static_cast<pid_t>(lp->processId()), signal), 0);
    ASSERT_TRUE(lp->waitForFinished());
    expectEcho(true, signal);
    ::tcflush(m_master, TCIOFLUSH);
  }
  const auto lp = ask();
  ::kill(static_cast<pid_t>(lp->processId()), SIGSTOP);
  expectEcho(true, SIGSTOP);
  ::kill(static_cast<pid_t>(lp->processId()), SIGCONT);
  expectEcho(false, SIGCONT);
  ASSERT_EQ(::write(m_master, "1234\n", 5), 5);
  EXPECT_EQ(finish(*lp).values(u"jobSuspend2Key"_s), pin1234);
}

TEST_F(LpAtATerminal, APasswordForThePrintServerMayBeTriedThreeTimes) {
  const HostileServer server("anna:open sesame");
  m_folder.write(u"right"_s, "open sesame\n");
  m_folder.write(u"wrong"_s, "0815\n");
  const QString asks = u"kesto-lp: the print server %1 asks for a password: "_s.arg(server.address());
  const QString wrong =
      u"kesto-lp: wrong user name or password for the print server %1\n"_s.arg(server.address());
  using Case = std::tuple<Text, QByteArrayList, Text>;  // options, what is typed, the message
  for (const auto& [options, typed, message] :
       {Case{"--server-password-file right", {}, ""}, Case{"--server-password-file wrong", {}, wrong},
        Case{"--server-password-file none",
             {},
             asks + u"--server-password-file: none: No such file or directory\n"_s},
        Case{"", {"open sesame"}, ""}, Case{"", {"0815", "4711", "open sesame"}, ""},
        Case{"", {"0815", "4711", "1234"}, wrong}}) {
    const auto lp = ask(u"-h %1 -U anna -d q %2 %3"_s.arg(server.address(), options, m_ppd.path()));
    for (const QByteArray& password : typed) {
      const QByteArray again = password == typed.first() ? "" : "Wrong password. ";
      expectShown(again + "Password of anna for " + server.address().toUtf8() + ": ");
      expectEcho(false, 0);
      ASSERT_GT(::write(m_master, (password + '\n').constData(), password.size() + 1), 0);
      expectShown("\r\n");
    }
    const LpRun run = finish(*lp);
    EXPECT_EQ(run.err, message) << options;
    EXPECT_EQ(run.out, message.isEmpty() ? u"request id is q-1 (1 file(s))\n"_s : u""_s) << options;
  }
  const auto lp = process(u"-h %1 --list"_s.arg(server.address()));
  lp->setChildProcessModifier([] { ::setsid(); });
  lp->start();
  EXPECT_EQ(finish(*lp).err, asks + u"no terminal to ask at; set it with --server-password-file\n"_s);
}

TEST_F(LpSecrets, WithoutATerminalNothingIsAsked) {
  const auto lp = process(dry(u"--hold only --ask-pin"_s));
  lp->setChildProcessModifier([] { ::setsid(); });
  lp->start();
  EXPECT_EQ(finish(*lp).err, u"kesto-lp: --ask-pin: no terminal to ask at\n"_s);
}

}  // namespace
}  // namespace kesto::test
