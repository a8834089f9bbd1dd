#include "tests/support/Browser.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <stdexcept>

extern char** environ;

namespace {

constexpr const char* PROGRAM = "chromium-headless-shell";
// The numbers on which Chromium listens and answers.
constexpr int LISTENS = 3;
constexpr int ANSWERS = 4;
constexpr int LONGEST_WAIT = 60'000; // milliseconds; a machine may be busy

struct Pipe {
  int read = -1;
  int write = -1;
};

/// Beyond the numbers that the browser wants, and not handed to it by accident.
Pipe makePipe() {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) throw std::runtime_error(std::string("pipe: ") + std::strerror(errno));
  Pipe made{fcntl(ends[0], F_DUPFD_CLOEXEC, 10), fcntl(ends[1], F_DUPFD_CLOEXEC, 10)};
  close(ends[0]);
  close(ends[1]);
  return made;
}

std::string fromBase64(const std::string& text) {
  static const std::string DIGITS = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string bytes;
  unsigned bits = 0;
  int count = 0;
  for (const char c : text) {
    const std::size_t digit = DIGITS.find(c);
    if (digit == std::string::npos) break;
    bits = bits << 6 | static_cast<unsigned>(digit);
    count += 6;
    if (count < 8) continue;
    count -= 8;
    bytes += static_cast<char>(bits >> count & 0xFF);
  }
  return bytes;
}

}

Browser::Browser(const std::string& profileFolder) {
  start(profileFolder);
  const std::string target = call("Target.createTarget", {{"url", "about:blank"}}).at("targetId");
  mSession = call("Target.attachToTarget", {{"targetId", target}, {"flatten", true}}).at("sessionId");
  call("Page.enable");
  call("Network.enable");
}

Browser::~Browser() {
  close(mToBrowser); // it ends with its pipe
  close(mFromBrowser);
  for (int waited = 0; waited < 5000; waited += 10) {
    if (waitpid(mProcess, nullptr, WNOHANG) != 0) return;
    usleep(10'000);
  }
  kill(-mProcess, SIGKILL);
  waitpid(mProcess, nullptr, 0);
}

void Browser::start(const std::string& profileFolder) {
  signal(SIGPIPE, SIG_IGN);
  const Pipe commands = makePipe();
  const Pipe answers = makePipe();
  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_adddup2(&files, commands.read, LISTENS);
  posix_spawn_file_actions_adddup2(&files, answers.write, ANSWERS);
  posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);
  std::vector<std::string> arguments = {PROGRAM,
                                        "--no-sandbox", // it refuses to run as root with one
                                        "--disable-gpu",
                                        "--disable-dev-shm-usage",
                                        "--hide-scrollbars",
                                        "--force-device-scale-factor=1",
                                        "--host-resolver-rules=MAP * ~NOTFOUND",
                                        "--user-data-dir=" + profileFolder,
                                        "--remote-debugging-pipe"};
  std::vector<char*> raw;
  for (std::string& argument : arguments)
    raw.push_back(argument.data());
  raw.push_back(nullptr);
  const int fault = posix_spawnp(&mProcess, PROGRAM, &files, &attributes, raw.data(), environ);
  posix_spawn_file_actions_destroy(&files);
  posix_spawnattr_destroy(&attributes);
  close(commands.read);
  close(answers.write);
  mToBrowser = commands.write;
  mFromBrowser = answers.read;
  if (fault != 0) throw std::runtime_error(std::string(PROGRAM) + ": " + std::strerror(fault));
}

nlohmann::json Browser::call(const std::string& method, const nlohmann::json& parameters) {
  nlohmann::json command = {{"id", ++mLastId}, {"method", method}, {"params", parameters}};
  if (!mSession.empty()) command["sessionId"] = mSession;
  const std::string text = command.dump() + '\0';
  for (std::size_t sent = 0; sent < text.size();) {
    const ssize_t written = write(mToBrowser, text.data() + sent, text.size() - sent);
    if (written <= 0) throw std::runtime_error(std::string(PROGRAM) + " has ended");
    sent += static_cast<std::size_t>(written);
  }
  for (;;) {
    const nlohmann::json message = receive();
    if (!message.contains("id"))
      note(message);
    else if (message["id"] == mLastId && message.contains("error"))
      throw std::runtime_error(method + ": " + message["error"].dump());
    else if (message["id"] == mLastId)
      return message.at("result");
  }
}

nlohmann::json Browser::receive() {
  for (;;) {
    if (const std::size_t end = mReceived.find('\0'); end != std::string::npos) {
      const nlohmann::json message = nlohmann::json::parse(mReceived.substr(0, end));
      mReceived.erase(0, end + 1);
      return message;
    }
    pollfd waiting{mFromBrowser, POLLIN, 0};
    if (poll(&waiting, 1, LONGEST_WAIT) <= 0) throw std::runtime_error(std::string(PROGRAM) + " doesn't answer");
    std::array<char, 65536> bytes{};
    const ssize_t count = read(mFromBrowser, bytes.data(), bytes.size());
    if (count <= 0) throw std::runtime_error(std::string(PROGRAM) + " has ended");
    mReceived.append(bytes.data(), static_cast<std::size_t>(count));
  }
}

void Browser::note(const nlohmann::json& event) {
  if (event["method"] == "Page.loadEventFired") mLoaded = true;
  if (event["method"] == "Network.requestWillBeSent") mRequests.push_back(event["params"]["request"]["url"]);
}

void Browser::waitForLoad() {
  while (!mLoaded)
    if (const nlohmann::json message = receive(); message.contains("method")) note(message);
}

void Browser::resize(int width, int height) {
  call("Emulation.setDeviceMetricsOverride",
       {{"width", width}, {"height", height}, {"deviceScaleFactor", 1}, {"mobile", false}});
}

void Browser::prefer(const std::string& colourScheme) {
  call("Emulation.setEmulatedMedia", {{"features", {{{"name", "prefers-color-scheme"}, {"value", colourScheme}}}}});
}

void Browser::open(const std::string& url) {
  mLoaded = false;
  const nlohmann::json answer = call("Page.navigate", {{"url", url}});
  if (answer.contains("errorText")) throw std::runtime_error(url + ": " + answer["errorText"].dump());
  waitForLoad();
}

void Browser::reload() {
  mLoaded = false;
  call("Page.reload");
  waitForLoad();
}

nlohmann::json Browser::evaluate(const std::string& expression) {
  const nlohmann::json answer =
      call("Runtime.evaluate", {{"expression", expression}, {"returnByValue", true}, {"awaitPromise", true}});
  if (answer.contains("exceptionDetails")) throw std::runtime_error(answer["exceptionDetails"].dump());
  return answer["result"].contains("value") ? answer["result"]["value"] : nlohmann::json();
}

void Browser::type(const std::string& text) {
  for (const char c : text) {
    const std::string key(1, c);
    call("Input.dispatchKeyEvent", {{"type", "keyDown"}, {"key", key}, {"text", key}});
    call("Input.dispatchKeyEvent", {{"type", "keyUp"}, {"key", key}});
  }
}

void Browser::press(const std::string& key) {
  call("Input.dispatchKeyEvent", {{"type", "rawKeyDown"}, {"key", key}});
  call("Input.dispatchKeyEvent", {{"type", "keyUp"}, {"key", key}});
}

std::string Browser::screenshot() { return fromBase64(call("Page.captureScreenshot", {{"format", "png"}}).at("data")); }
