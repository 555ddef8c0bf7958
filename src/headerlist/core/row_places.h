// The list's own copy of what the view holds per row that the list needs
// again: each row's lParam (its index in the store) and image, in the view's
// order. Every message that changes rows passes the list's window procedure,
// which keeps the copy in step, so that the fill and the sort need not ask
// the view row by row. A change the copy cannot follow marks it stale; it is
// then read anew from the view when next needed.
#pragma once

#include <cstdint>
#include <vector>

namespace zk::hdr {

class RowPlaces {
public:
    bool Fresh() const { return fresh_; }
    void MarkStale() { fresh_ = false; }
    int32_t Count() const { return static_cast<int32_t>(params_.size()); }

    bool Param(int32_t row, intptr_t &param) const {
        if (row < 0 || row >= Count())
            return false;
        param = params_[static_cast<size_t>(row)];
        return true;
    }
    intptr_t ParamAt(int32_t row) const { return params_[static_cast<size_t>(row)]; }
    int32_t ImageAt(int32_t row) const { return images_[static_cast<size_t>(row)]; }

    // A row the view inserted at `row`; a position past the copy marks it stale.
    void Insert(int32_t row, intptr_t param, int32_t image) {
        if (!fresh_ || row < 0 || row > Count()) {
            fresh_ = false;
            return;
        }
        params_.insert(params_.begin() + row, param);
        images_.insert(images_.begin() + row, image);
    }
    void Erase(int32_t row) {
        if (!fresh_ || row < 0 || row >= Count()) {
            fresh_ = false;
            return;
        }
        params_.erase(params_.begin() + row);
        images_.erase(images_.begin() + row);
    }
    void SetParam(int32_t row, intptr_t param) {
        if (fresh_ && row >= 0 && row < Count())
            params_[static_cast<size_t>(row)] = param;
        else
            fresh_ = false;
    }
    void SetImage(int32_t row, int32_t image) {
        if (fresh_ && row >= 0 && row < Count())
            images_[static_cast<size_t>(row)] = image;
        else
            fresh_ = false;
    }
    void Clear() {
        params_.clear();
        images_.clear();
        fresh_ = true;
    }
    // The copy as read from the view.
    void Reload(std::vector<intptr_t> params, std::vector<int32_t> images) {
        params_ = std::move(params);
        images_ = std::move(images);
        fresh_ = params_.size() == images_.size();
    }

private:
    std::vector<intptr_t> params_;
    std::vector<int32_t> images_;
    bool fresh_ = true;
};

} // namespace zk::hdr
