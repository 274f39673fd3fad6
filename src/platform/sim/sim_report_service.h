#pragma once

#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace httplib {
class Server;
}

namespace vistrel {

// One request as the report service received it.
struct ReceivedReport {
    std::string method;
    std::string path;
    std::string query;  // as sent, still percent-encoded
    std::string contentType;
    std::string body;
};

// A report service on this machine's loopback address, for tests and sessions: a real
// HTTP server on its own thread that records every request and answers as told: with a
// report number, with a server error, or not at all until released.
class SimReportService {
  public:
    enum class Answer { number, serverError, hang };

    explicit SimReportService(Answer answer, std::string body = R"({"number": 4711})");
    // Releases a hanging answer, then stops the server and waits for its thread.
    ~SimReportService();
    SimReportService(const SimReportService&) = delete;
    SimReportService& operator=(const SimReportService&) = delete;

    // "http://127.0.0.1:<port>"; empty when no port could be bound.
    std::string baseURL() const;
    std::vector<ReceivedReport> received() const;
    // Lets a hanging answer go (it then answers with a server error).
    void release();

  private:
    void record(const ReceivedReport& report);
    void waitForRelease();

    Answer answer_;
    std::string body_;
    std::unique_ptr<httplib::Server> server_;
    int port_ = -1;
    std::thread thread_;
    // Until the server thread has left its accept loop.
    std::atomic<bool> listening_{true};
    mutable std::mutex mutex_;
    std::condition_variable released_;
    bool releasing_ = false;
    std::vector<ReceivedReport> received_;
};

}  // namespace vistrel
