#include "platform/sim/sim_report_service.h"

#include <httplib.h>

namespace vistrel {

namespace {

constexpr char loopback[] = "127.0.0.1";
constexpr char anyPath[] = ".*";
constexpr int okStatus = 200;
constexpr int serverErrorStatus = 500;
constexpr char jsonType[] = "application/json";

std::string queryOf(const std::string& target) {
    const std::size_t mark = target.find('?');
    return mark == std::string::npos ? std::string() : target.substr(mark + 1);
}

}  // namespace

SimReportService::SimReportService(Answer answer, std::string body)
    : answer_(answer), body_(std::move(body)), server_(std::make_unique<httplib::Server>()) {
    const auto handle = [this](const httplib::Request& request, httplib::Response& response) {
        record({request.method, request.path, queryOf(request.target),
                request.get_header_value("Content-Type"), request.body});
        if (answer_ == Answer::hang) waitForRelease();
        if (answer_ == Answer::number) {
            response.status = okStatus;
            response.set_content(body_, jsonType);
        } else {
            response.status = serverErrorStatus;
        }
    };
    server_->Post(anyPath, handle);
    server_->Put(anyPath, handle);
    server_->Get(anyPath, handle);
    port_ = server_->bind_to_any_port(loopback);
    // The socket listens from here on, so a request made before the thread accepts waits.
    if (port_ > 0) {
        thread_ = std::thread([this] {
            server_->listen_after_bind();
            listening_ = false;
        });
    }
}

SimReportService::~SimReportService() {
    release();
    if (!thread_.joinable()) return;
    // A stop asked for before the thread has entered its accept loop would be lost and the
    // loop would never end, so wait (a moment at most) until the server runs.
    while (listening_ && !server_->is_running())
        std::this_thread::yield();
    server_->stop();
    thread_.join();
}

std::string SimReportService::baseURL() const {
    if (port_ <= 0) return {};
    return std::string("http://") + loopback + ":" + std::to_string(port_);
}

std::vector<ReceivedReport> SimReportService::received() const {
    std::lock_guard lock(mutex_);
    return received_;
}

void SimReportService::release() {
    {
        std::lock_guard lock(mutex_);
        releasing_ = true;
    }
    released_.notify_all();
}

void SimReportService::record(const ReceivedReport& report) {
    std::lock_guard lock(mutex_);
    received_.push_back(report);
}

void SimReportService::waitForRelease() {
    std::unique_lock lock(mutex_);
    released_.wait(lock, [this] { return releasing_; });
}

}  // namespace vistrel
