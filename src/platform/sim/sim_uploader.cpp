#include "platform/sim/sim_uploader.h"

#include <curl/curl.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

namespace vistrel {

namespace {

constexpr double millisecondsPerSecond = 1000;

size_t collect(char* data, size_t size, size_t count, void* body) {
    static_cast<std::string*>(body)->append(data, size * count);
    return size * count;
}

// The descriptions URLSession gives the same failures, so alerts and log lines read as on
// a Mac.
std::string describe(CURLcode code) {
    switch (code) {
        case CURLE_OPERATION_TIMEDOUT:
            return "The request timed out.";
        case CURLE_COULDNT_CONNECT:
            return "Could not connect to the server.";
        case CURLE_COULDNT_RESOLVE_HOST:
            return "A server with the specified hostname could not be found.";
        default:
            return curl_easy_strerror(code);
    }
}

std::optional<std::string> readBody(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

UploadResponse perform(const UploadRequest& request, double timeout) {
    const std::optional<std::string> body = readBody(request.body);
    if (!body) return {"The file couldn’t be opened.", 0, ""};
    CURL* curl = curl_easy_init();
    if (curl == nullptr) return {"The network connection was lost.", 0, ""};

    // curl asks the server for permission before a large body; URLSession does not.
    curl_slist* headers = curl_slist_append(nullptr, "Expect:");
    for (const auto& [name, value] : request.headers)
        headers = curl_slist_append(headers, (name + ": " + value).c_str());
    UploadResponse response;
    curl_easy_setopt(curl, CURLOPT_URL, request.url.c_str());
    curl_easy_setopt(curl, CURLOPT_CUSTOMREQUEST, request.method.c_str());
    curl_easy_setopt(curl, CURLOPT_POSTFIELDS, body->data());
    curl_easy_setopt(curl, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(body->size()));
    curl_easy_setopt(curl, CURLOPT_HTTPHEADER, headers);
    curl_easy_setopt(curl, CURLOPT_TIMEOUT_MS, static_cast<long>(timeout * millisecondsPerSecond));
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, collect);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, &response.body);
    const CURLcode code = curl_easy_perform(curl);
    if (code != CURLE_OK) {
        response.error = describe(code);
    } else {
        long status = 0;
        curl_easy_getinfo(curl, CURLINFO_RESPONSE_CODE, &status);
        response.status = static_cast<int>(status);
    }
    curl_slist_free_all(headers);
    curl_easy_cleanup(curl);
    return response;
}

}  // namespace

SimUploader::SimUploader(Executor& executor)
    : queue_(executor.makeQueue(std::string(sessionQueueLabel), QualityOfService::utility)) {
    static const CURLcode initialized = curl_global_init(CURL_GLOBAL_DEFAULT);
    (void)initialized;
}

void SimUploader::upload(const UploadRequest& request, Completion completion) {
    requests.push_back(request);
    std::optional<std::string> failed = std::exchange(failure, std::nullopt);
    const double timeout = std::min(request.timeout, timeoutCap.value_or(request.timeout));
    queue_->async([request, timeout, failed, completion = std::move(completion)] {
        completion(failed ? UploadResponse{failed, 0, ""} : perform(request, timeout));
    });
}

}  // namespace vistrel
