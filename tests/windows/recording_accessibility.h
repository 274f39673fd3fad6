#pragma once

#include <string>
#include <vector>

#include "platform/accessibility.h"
#include "platform/platform.h"

namespace vistrel::testing {

// The simulated accessibility interface with a record of every attribute write, in order,
// so a test can see the sequence in which a window was moved. Installed for its lifetime
// in place of the desktop's own; the desktop's platform comes back afterwards.
class RecordingAccessibility : public Accessibility {
  public:
    struct Write {
        std::string attribute;
        AXValue value;
        friend bool operator==(const Write&, const Write&) = default;
    };

    explicit RecordingAccessibility(Platform& inner)
        : inner_(inner),
          recording_{.accessibility = *this,
                     .windowServer = inner.windowServer,
                     .workspace = inner.workspace,
                     .screens = inner.screens,
                     .displayWatch = inner.displayWatch,
                     .defaults = inner.defaults,
                     .eventTap = inner.eventTap,
                     .executor = inner.executor,
                     .clock = inner.clock,
                     .systemLog = inner.systemLog,
                     .loginItem = inner.loginItem,
                     .windowHost = inner.windowHost,
                     .text = inner.text,
                     .notifications = inner.notifications,
                     .updates = inner.updates,
                     .application = inner.application,
                     .systemInfo = inner.systemInfo,
                     .infoDictionary = inner.infoDictionary,
                     .files = inner.files,
                     .alert = inner.alert,
                     .reportDialog = inner.reportDialog,
                     .savePanel = inner.savePanel,
                     .pasteboard = inner.pasteboard,
                     .archiver = inner.archiver,
                     .uploader = inner.uploader,
                     .fonts = inner.fonts,
                     .statusBar = inner.statusBar,
                     .panels = inner.panels,
                     .eventMonitors = inner.eventMonitors,
                     .menus = inner.menus,
                     .appearance = inner.appearance,
                     .launch = inner.launch,
                     .processes = inner.processes,
                     .scripts = inner.scripts,
                     .fileWriter = inner.fileWriter} {
        installPlatform(&recording_);
    }
    ~RecordingAccessibility() override { installPlatform(&inner_); }
    RecordingAccessibility(const RecordingAccessibility&) = delete;
    RecordingAccessibility& operator=(const RecordingAccessibility&) = delete;

    std::vector<Write> writes;

    AXElement systemWide() override { return a().systemWide(); }
    AXElement application(Pid pid) override { return a().application(pid); }
    AXError setMessagingTimeout(const AXElement& element, float seconds) override {
        return a().setMessagingTimeout(element, seconds);
    }
    AXError attributeNames(const AXElement& element, std::vector<std::string>& names) override {
        return a().attributeNames(element, names);
    }
    AXError copyAttribute(const AXElement& element, std::string_view attribute,
                          AXValue& value) override {
        return a().copyAttribute(element, attribute, value);
    }
    AXError setAttribute(const AXElement& element, std::string_view attribute,
                         const AXValue& value) override {
        writes.push_back({std::string(attribute), value});
        return a().setAttribute(element, attribute, value);
    }
    AXError isSettable(const AXElement& element, std::string_view attribute,
                       bool& settable) override {
        return a().isSettable(element, attribute, settable);
    }
    AXError performAction(const AXElement& element, std::string_view action) override {
        return a().performAction(element, action);
    }
    AXError elementAtPosition(const AXElement& root, Point point, AXElement& hit) override {
        return a().elementAtPosition(root, point, hit);
    }
    AXError pid(const AXElement& element, Pid& pid) override { return a().pid(element, pid); }
    bool isProcessTrusted() override { return a().isProcessTrusted(); }
    bool promptForTrust() override { return a().promptForTrust(); }

  private:
    Accessibility& a() { return inner_.accessibility; }

    Platform& inner_;
    Platform recording_;
};

}  // namespace vistrel::testing
