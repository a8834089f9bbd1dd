#pragma once
#include <nlohmann/json.hpp>

#include <string>
#include <vector>

/// A Chromium without a window, for pages that are made to be looked at. It is steered over pipes, keeps its profile in
/// a folder of its own, finds no host by any name, and goes with this object. Throws std::runtime_error when it doesn't
/// start, doesn't answer, or a script in a page faults.
class Browser {
public:
  explicit Browser(const std::string& profileFolder);
  ~Browser();
  Browser(const Browser&) = delete;
  Browser& operator=(const Browser&) = delete;

  /// Size of the page's view in pixels.
  void resize(int width, int height);
  /// "dark" or "light", as the reader's system would ask for it.
  void prefer(const std::string& colourScheme);
  /// Returns when the page is loaded.
  void open(const std::string& url);
  void reload();
  /// Value of an expression in the page.
  nlohmann::json evaluate(const std::string& expression);
  /// Keys that a person presses: a text's letters, or one key by its name ("Escape").
  void type(const std::string& text);
  void press(const std::string& key);
  /// The view as a PNG file; its size in pixels stands in it.
  std::string screenshot();
  /// All that pages have asked for, the pages themselves included.
  const std::vector<std::string>& requests() const { return mRequests; }

private:
  void start(const std::string& profileFolder);
  /// Sends a command to the page and waits for its answer.
  nlohmann::json call(const std::string& method, const nlohmann::json& parameters = nlohmann::json::object());
  nlohmann::json receive();
  void note(const nlohmann::json& event);
  void waitForLoad();

  int mProcess = -1;
  int mToBrowser = -1;
  int mFromBrowser = -1;
  int mLastId = 0;
  std::string mSession;
  std::string mReceived;
  bool mLoaded = false;
  std::vector<std::string> mRequests;
};
