#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vistrel {

// One HTTP request whose body is a file's bytes.
struct UploadRequest {
    std::string url;
    std::string method;
    std::vector<std::pair<std::string, std::string>> headers;
    std::string body;
    double timeout = 60;  // URLRequest.timeoutInterval, in seconds
};

// How a request ended: a transport error's localizedDescription, or the status code and
// the body of the response.
struct UploadResponse {
    std::optional<std::string> error;
    int status = 0;
    std::string body;
};

// URLSession.shared.uploadTask(with:fromFile:completionHandler:), resumed at once. The
// completion runs once, on the session's own queue, never on the main thread.
class Uploader {
  public:
    virtual ~Uploader() = default;
    using Completion = std::function<void(UploadResponse)>;
    virtual void upload(const UploadRequest& request, Completion completion) = 0;
};

}  // namespace vistrel
