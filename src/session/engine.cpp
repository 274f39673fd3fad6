#include "session/engine.h"

#include <algorithm>
#include <string>

#include "base/hotkey.h"
#include "base/log.h"
#include "platform/platform.h"
#include "session/layouts_controller.h"
#include "settings/settings.h"
#include "tracking/ax.h"
#include "tracking/health.h"
#include "windows/window_actions.h"

namespace vistrel {

namespace {

constexpr std::string_view appeared = "mission control appeared";
constexpr std::string_view wentAway = "mission control went away";
constexpr std::string_view listening = "did start listening for events";
constexpr std::string_view tapFailed = "could not create event tap (permission missing?)";

}  // namespace

struct Engine::Private {};

// What a hit-test asks and what it found. The main thread fills in the question only while
// no hit-test runs, and the hover queue the answer while it runs one; every hand-over goes
// through a queue. Queued work refers to the job without owning it, which keeps each
// hand-over small enough to need no allocation: the engine owns the job, and hands it on
// when it goes while a hit-test is under way (see ~Engine).
struct Engine::HitTest {
    std::weak_ptr<Engine> engine;
    Point point;
    std::uint64_t generation = 0;
    Pid ownPid = 0;
    Pid dockPid = 0;
    std::string maximizeMode;
    std::shared_ptr<const ThumbnailTargets> targets;
    std::optional<Target> candidate;
};

std::shared_ptr<Engine> Engine::make() {
    return make(std::make_unique<LayoutsController>());
}

std::shared_ptr<Engine> Engine::make(std::unique_ptr<EngineLayouts> layouts) {
    return std::make_shared<Engine>(Private{}, std::move(layouts));
}

Engine::Engine(Private, std::unique_ptr<EngineLayouts> layouts)
    : layouts_(std::move(layouts)),
      ownPid_(platform().workspace.ownPid()),
      axQueue_(platform().executor.makeQueue(std::string(hoverQueueLabel),
                                             QualityOfService::userInteractive)),
      grant_(axQueue_),
      hitTest_(std::make_shared<HitTest>()),
      targets_(std::make_shared<ThumbnailTargets>()),
      moves_(
          {.moved = [this](Point point,
                           bool dragged) { dragged ? pointerDragged(point) : pointerMoved(point); },
           .released = [this](Point point) { layouts_->mouseUp(point); },
           .flagsChanged = [this](std::uint64_t flags) { modifiersChanged(flags); }}) {
    hitTest_->targets = targets_;
}

Engine::~Engine() {
    if (!lookupBusy_) return;
    // The hit-test under way and its answer on the main queue still refer to the job: keep
    // it until both have run. The hover queue runs this after the hit-test, which has then
    // queued its answer ahead of the job's release on the main queue.
    axQueue_->async([job = std::move(hitTest_)]() mutable {
        platform().executor.main().async([job = std::move(job)] {});
    });
}

void Engine::start() {
    std::weak_ptr<Engine> weak = weak_from_this();
    tap_.delegate = weak;
    layouts_->setOnWindowsMoved([weak] {
        if (auto engine = weak.lock()) engine->windowsMoved();
    });
    detector_.onTick = [weak](bool open) {
        if (auto engine = weak.lock()) engine->tick(open);
    };
    detector_.schedule(MissionControlDetector::startDelay);
}

void Engine::tick(bool open) {
    Settings::shared().publishTrustIfChanged();
    grant_.check();
    if (!open) {
        if (active_) closed();
        return;
    }
    if (active_) {
        ++ticks_;
    } else {
        opened();
    }
    ensureTap();
    if (ticks_ < eagerRefreshTicks || ticks_ % refreshEvery == 0) refreshThumbnails();
}

void Engine::opened() {
    active_ = true;
    ticks_ = 0;
    reading_ = {};
    readThisOpening_ = false;
    Log::info(appeared);
    layouts_->missionControlOpened();
}

void Engine::closed() {
    active_ = false;
    ++generation_;
    Health::shared().openingEnded(readThisOpening_ ? std::optional(reading_) : std::nullopt,
                                  tap_.disablesSinceStart());
    tap_.stop();
    clearTarget();
    lastPoint_.reset();
    thumbs_.clear();
    layouts_->missionControlClosed();
    Log::info(wentAway);
}

// Starts the tap unless it runs; a failure is logged once per run of failures and the
// start is tried again on the next tick.
void Engine::ensureTap() {
    if (tap_.isRunning()) return;
    if (tap_.start()) {
        Log::info(listening);
        tapFailureLogged_ = false;
    } else if (!tapFailureLogged_) {
        Log::info(tapFailed);
        tapFailureLogged_ = true;
    }
}

void Engine::refreshThumbnails() {
    if (thumbsBusy_) return;
    thumbsBusy_ = true;
    const std::uint64_t generation = generation_;
    std::weak_ptr<Engine> weak = weak_from_this();
    axQueue_->async([weak, generation, targets = targets_, ownPid = ownPid_] {
        auto engine = weak.lock();
        if (!engine) return;
        auto read = engine->thumbnails_.read();
        std::vector<Rect> frames;
        for (const MissionControlThumbnail& thumbnail : read.thumbnails)
            frames.push_back(thumbnail.frame);
        const MissionControlReading reading = targets->update(generation, std::move(read), ownPid);
        const Pid dockPid = engine->thumbnails_.dockPid();
        platform().executor.main().async(
            [weak, generation, frames = std::move(frames), dockPid, reading] {
                auto engine = weak.lock();
                if (!engine) return;
                engine->thumbsBusy_ = false;
                engine->dockPid_ = dockPid;
                if (generation != engine->generation_ || !engine->active_) return;
                engine->thumbnailsRead(frames, reading);
            });
    });
}

void Engine::thumbnailsRead(const std::vector<Rect>& frames, const MissionControlReading& reading) {
    thumbs_ = frames;
    targetThumbRead_ =
        targetThumb_ && std::find(frames.begin(), frames.end(), *targetThumb_) != frames.end();
    reading_ = reading;
    readThisOpening_ = true;
    if (!hostLogged_ && reading.host) {
        Log::info(MissionControlHosts::startLine(*reading.host));
        hostLogged_ = true;
    }
    if (lastPoint_ && !target_) lookUp(*lastPoint_);
}

void Engine::lookUp(Point point) {
    if (lookupBusy_) {
        pendingLookup_ = point;
        return;
    }
    lookupBusy_ = true;
    HitTest& job = *hitTest_;
    job.engine = weak_from_this();
    job.point = point;
    job.generation = generation_;
    job.ownPid = ownPid_;
    job.dockPid = dockPid_;
    job.maximizeMode = Settings::shared().maximizeMode();
    axQueue_->async([job = &job] { runHitTest(*job); });
}

// On the hover queue.
void Engine::runHitTest(HitTest& job) {
    job.candidate.reset();
    if (const auto hit = job.targets->hovered(job.point, job.generation, job.ownPid, job.dockPid)) {
        job.candidate =
            Target{hit->window, hit->pid, AX::availableButtons(hit->window, job.maximizeMode)};
    }
    platform().executor.main().async([job = &job] { hitTestAnswered(*job); });
}

void Engine::hitTestAnswered(HitTest& job) {
    auto engine = job.engine.lock();
    if (!engine) return;
    engine->lookupBusy_ = false;
    if (auto pending = engine->pendingLookup_) {
        engine->pendingLookup_.reset();
        engine->lookUp(*pending);
        return;
    }
    if (job.generation == engine->generation_ && engine->active_ &&
        engine->lastPoint_ == job.point) {
        engine->apply(job.candidate, job.point);
    }
}

std::optional<Rect> Engine::smallestThumbAt(Point point) const {
    std::optional<Rect> winner;
    for (const Rect& thumb : thumbs_) {
        if (thumb.contains(point) && (!winner || thumb.area() < winner->area())) winner = thumb;
    }
    return winner;
}

void Engine::apply(const std::optional<Target>& candidate, Point point) {
    const auto shelf = layouts_->shelfFrame();
    if ((shelf && shelf->contains(point)) || layouts_->pressDragging() || !candidate) {
        clearTarget();
        return;
    }
    const auto winner = smallestThumbAt(point);
    if (!winner) {
        clearTarget();
        return;
    }
    std::vector<OverlayButton> enabled;
    for (OverlayButton button : Settings::shared().enabledButtons()) {
        if (candidate->buttons.contains(button)) enabled.push_back(button);
    }
    OverlayLayout strip =
        OverlayLayout::make(*winner, Settings::shared().buttonSize(), enabled, buttonGap);
    if (strip.items.empty()) {
        clearTarget();
        return;
    }
    target_ = candidate;
    targetThumb_ = winner;
    targetThumbRead_ = true;
    layout_ = std::move(strip);
    overlay_.show(*layout_);
}

bool Engine::insideStrip(Point point) const {
    if (!target_ || !layout_ || layout_->items.empty()) return false;
    Rect strip;
    for (const auto& item : layout_->items)
        strip = strip.unite(item.rect);
    return strip.contains(point) || polygonContains(layout_->safeZone, point);
}

void Engine::tapMouseMoved(Point point) {
    moves_.post(point, false);
}

void Engine::tapMouseDragged(Point point) {
    moves_.post(point, true);
}

void Engine::pointerMoved(Point point) {
    if (lastPoint_ == point) return;
    lastPoint_ = point;
    // A plain move means the button is up: a press still dragging lost its release.
    if (layouts_->pressDragging()) layouts_->mouseUp(point);
    if (layouts_->pointerMoved(point)) {
        if (target_) clearTarget();
        return;
    }
    if (insideStrip(point)) {
        std::optional<OverlayButton> hovered;
        for (const auto& item : layout_->items) {
            if (item.rect.contains(point)) {
                hovered = item.kind;
                break;
            }
        }
        overlay_.setHovered(hovered);
        return;
    }
    const bool overTarget = targetThumbRead_ && targetThumb_->contains(point);
    if (!overTarget && !smallestThumbAt(point)) {
        clearTarget();
        return;
    }
    if (targetThumb_ && !targetThumb_->contains(point)) clearTarget();
    lookUp(point);
}

void Engine::pointerDragged(Point point) {
    if (!layouts_->mouseDragged(point)) {
        pointerMoved(point);
        return;
    }
    if (target_) clearTarget();
    lastPoint_ = point;
}

bool Engine::tapMouseDown(Point point, std::uint64_t flags) {
    moves_.flush();
    if (layouts_->shelfClick(point, flags)) {
        clearTarget();
        return true;
    }
    if (target_ && layout_) {
        for (const auto& item : layout_->items) {
            if (!item.rect.contains(point)) continue;
            const Hotkey action = hotkey(item.kind);
            Log::info("will " + std::string(name(action)) +
                      " window using mouse click, mimicking keyboard");
            WindowActions::perform(target_->window, target_->pid, action);
            afterAction();
            return true;
        }
    }
    if (!layouts_->isOpen()) return false;
    std::optional<EngineLayouts::Pick> pick;
    if (target_)
        pick = EngineLayouts::Pick{target_->window, target_->pid, targetThumb_.value_or(Rect{})};
    if (layouts_->isComposing()) {
        // Only a click that puts a known window into the layout is kept from Mission Control.
        if (!pick) return false;
        layouts_->pick(*pick);
        return true;
    }
    layouts_->recordPress(pick, point);
    return false;
}

void Engine::tapMouseUp(Point point) {
    moves_.postRelease(point);
}

void Engine::tapFlagsChanged(std::uint64_t flags) {
    moves_.postFlags(flags);
}

void Engine::modifiersChanged(std::uint64_t flags) {
    const bool held = (flags & ModifierFlag::option) != 0;
    if (held != layouts_->optionHeld()) layouts_->setOptionHeld(held);
}

void Engine::clearTarget() {
    target_.reset();
    layout_.reset();
    targetThumb_.reset();
    targetThumbRead_ = false;
    overlay_.hide();
}

void Engine::afterAction() {
    clearTarget();
    lastPoint_.reset();
}

// The moved windows' thumbnails take new shapes, which the windows enumerated at the
// opening no longer have: the hover queue ties them afresh from the next read on.
void Engine::windowsMoved() {
    clearTarget();
    ticks_ = 0;
    axQueue_->async([targets = targets_] { targets->windowsMoved(); });
}

}  // namespace vistrel
