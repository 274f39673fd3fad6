#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "settings/command_channel.h"

namespace vistrel {

class Engine;
class StatusMenuController;

// The agent's start-up and its answers to the system: decides whether this process should
// run at all (a test host, a second copy, a copy that is being moved), then builds the
// long-lived parts in a fixed order — fonts, status menu, command channel, first run and
// the Accessibility prompt, the published status, the engine and where it reads Mission
// Control, the watch on the displays, the start-up line, updates.
// Main thread only; lives for the whole run.
class AppDelegate {
  public:
    // Set by the test runner that hosts the app; the agent then starts nothing.
    static constexpr std::string_view testHostVariable = "XCTestConfigurationFilePath";
    // Why the agent stays out of App Nap: an accessory agent with no window on screen is
    // napped, and its Mission Control detector would then poll seconds late.
    static constexpr std::string_view timersReason = "Vistrel watches for Mission Control";

    AppDelegate();
    ~AppDelegate();
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;

    // The whole start-up sequence.
    void applicationDidFinishLaunching();
    // The user opened the agent again while it runs: brings back a hidden status item, then
    // opens the Settings app. Always true.
    bool applicationShouldHandleReopen();
    // The system hands over URLs of the agent's scheme (application(_:open:)); those that
    // come before start-up has finished wait for it, and a process that does not start
    // drops them.
    void openURLs(const std::vector<std::string>& urls);

    // "Vistrel <version> (<build>) started on macOS <version>, accessibility <true|false>".
    static std::string startedLine();

    StatusMenuController* statusMenu() const { return statusMenu_.get(); }
    Engine* engine() const { return engine_.get(); }

  private:
    bool isSecondInstance() const;
    void makeStatusMenu();
    void firstRunOrPrompt() const;
    void showStatusItem() const;

    std::shared_ptr<StatusMenuController> statusMenu_;
    CommandChannel commands_;
    std::shared_ptr<Engine> engine_;
    bool started_ = false;
    std::vector<std::string> waitingURLs_;
};

}  // namespace vistrel
