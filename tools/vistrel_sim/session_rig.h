#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "app/app_delegate.h"
#include "platform/platform.h"
#include "platform/sim/sim_desktop.h"
#include "session/engine.h"
#include "sim_command.h"

namespace vistrel {

// The unified log of a session: every line goes to the desktop's log and is printed the
// moment the agent writes it, stamped with the virtual time since the session began.
class EchoingLog : public SystemLog {
  public:
    EchoingLog(SimDesktop& desktop, std::ostream& out)
        : desktop_(desktop), out_(out), started_(desktop.clock().now()) {}

    void write(std::string_view subsystem, std::string_view category, LogLevel level,
               std::string_view message) override;

  private:
    SimDesktop& desktop_;
    std::ostream& out_;
    double started_;
};

// The desktop's platform with the echoing log in place of its own, installed for the
// lifetime of this object.
class EchoingPlatform {
  public:
    EchoingPlatform(SimDesktop& desktop, SystemLog& log);
    ~EchoingPlatform() { installPlatform(nullptr); }
    EchoingPlatform(const EchoingPlatform&) = delete;
    EchoingPlatform& operator=(const EchoingPlatform&) = delete;

  private:
    Platform platform_;
};

// Points HOME at an empty folder of the session's own while it plays, so the agent's file
// log lands next to the pictures, holding this session only, instead of in the user's
// real log folder.
class ScopedHome {
  public:
    explicit ScopedHome(const std::filesystem::path& home);
    ~ScopedHome();
    ScopedHome(const ScopedHome&) = delete;
    ScopedHome& operator=(const ScopedHome&) = delete;

  private:
    std::optional<std::string> saved_;
};

// What a scripted session plays on: the default scene with the real engine started, the
// event stream, and the pictures. Pictures are named "<name>-<number>-<picture>.png" and
// the agent's file log goes under "<name>-home" in the output folder.
class SessionRig {
  public:
    // The user's pause before each step. It is long enough for the engine's detector ticks
    // to read the thumbnails again after a window left Mission Control, so the next hover
    // is tested against the new rows.
    static constexpr double userPause = 0.5;

    // One step of a session: what the user does, and the picture taken after it.
    struct Step {
        std::string_view picture;
        std::string_view summary;
        std::function<bool()> run;
    };

    // Whether the rig starts an engine of its own, or the session launches the whole agent
    // and lets the rig watch the engine the agent started.
    enum class Start { engine, nothing };

    SessionRig(SimCommandContext& context, std::string_view name, Start start = Start::engine);

    // Plays the steps in order, each after the user's pause and followed by its picture
    // (with `hovered()`'s thumbnail ringed); 1 when a step fails, else 0.
    int play(std::string_view title, const std::vector<Step>& steps,
             const std::function<std::optional<SimWindowId>()>& hovered);

    // The whole agent as macOS starts it: its process among the running applications, its
    // delegate through start-up, `settle` seconds of the delayed work that follows, and the
    // rig watching the engine it started.
    struct Agent {
        std::unique_ptr<AppDelegate> delegate;
        Pid pid = 0;
    };
    Agent launchAgent(double settle);

    SimDesktop& desktop() { return desktop_; }
    Engine& engine() { return *engine_; }
    // The engine Mission Control is opened and closed for; the rig's own by default.
    void watch(Engine& engine) { engine_ = &engine; }
    std::ostream& out() { return context_.out; }
    std::filesystem::path home() const;

    // Delivers an event through the tap and runs the work it starts; answers whether it
    // went on to the system.
    bool deliver(const InputEvent& event);
    // A key pressed and released; answers whether the press went on to the system.
    bool press(std::int64_t keyCode, std::uint64_t flags);
    // A click: the pointer moves there, then a press and a release; answers whether the
    // press went on to the system.
    bool click(Point point);
    // Lets the user's pause go by in virtual time.
    void pause();
    // Opens or closes Mission Control and waits for the engine's detector to notice.
    bool openMissionControl();
    bool closeMissionControl();

    // The status item's panel, once a click made one; nothing before.
    SimKeyPanel* statusPanel();
    // Clicks the status item unless its panel is open already; false (saying why) when no
    // panel opened.
    bool openStatusPanel();
    // Clicks the row of the open status panel with this label and runs what it starts; false
    // (saying why) when the panel is closed or has no such row.
    bool clickPanelRow(const std::string& label);

    bool takePicture(int number, std::string_view picture, std::optional<SimWindowId> hovered);
    // Pictures outside Mission Control show every display as arranged, not the primary alone.
    void showEveryDisplay() { everyDisplay_ = true; }
    std::string titleOf(SimWindowId id);
    // Prints why the session stopped; false, to return from the step.
    bool fail(std::string_view why);

  private:
    SimCommandContext& context_;
    std::string name_;
    ScopedHome home_;
    SimDesktop desktop_;
    EchoingLog log_{desktop_, context_.out};
    EchoingPlatform installed_{desktop_, log_};
    std::shared_ptr<Engine> ownEngine_;
    Engine* engine_ = nullptr;
    std::optional<Point> pointer_;
    bool everyDisplay_ = false;
};

}  // namespace vistrel
