#pragma once

#include "platform/uploader.h"

namespace vistrel {

// An upload task of URLSession.shared.
class MacUploader : public Uploader {
  public:
    void upload(const UploadRequest& request, Completion completion) override;
};

}  // namespace vistrel
