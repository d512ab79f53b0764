// A flag that is set for the length of a scope.
#pragma once

namespace mainwindow {

class While {
 public:
  explicit While(bool& flag) : flag_(flag), old_(flag) { flag_ = true; }
  While(const While&) = delete;
  While& operator=(const While&) = delete;
  ~While() { flag_ = old_; }

 private:
  bool& flag_;
  bool old_;
};

}  // namespace mainwindow
