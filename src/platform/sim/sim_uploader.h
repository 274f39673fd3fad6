#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/executor.h"
#include "platform/uploader.h"

namespace vistrel {

// A real HTTP request made with libcurl. It runs on a serial queue of the simulation that
// plays the URL session's own queue, so a test decides when the network work happens; the
// completion is called there.
class SimUploader : public Uploader {
  public:
    static constexpr std::string_view sessionQueueLabel = "com.quillmarsh.vistrel.sim.urlsession";

    explicit SimUploader(Executor& executor);
    void upload(const UploadRequest& request, Completion completion) override;

    // Every request handed over, in order, as it was asked for.
    std::vector<UploadRequest> requests;
    // The simulated network gives up after this many real seconds when the request asked
    // for longer: a test of a hanging server waits a moment, not a minute.
    std::optional<double> timeoutCap;
    // The next request fails with this transport error without being sent.
    std::optional<std::string> failure;

  private:
    std::shared_ptr<SerialQueue> queue_;
};

}  // namespace vistrel
