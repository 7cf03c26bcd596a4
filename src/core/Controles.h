// Controls of the main form as plain state.
//
// The logic reads and writes its controls here; the Qt layer mirrors this
// state onto widgets and feeds events back. So the whole board runs and is
// tested without a window, on any screen size a test chooses.
#pragma once

#include <cstdint>
#include <functional>

// A scroll bar: Value runs from Min to Max; a change of Value runs Change.
class BarraDesplazamiento {
  public:
    int32_t Left = 0;
    int32_t Top = 0;
    int32_t Width = 16;
    int32_t Height = 16;
    int32_t LargeChange = 1;
    int32_t SmallChange = 1;
    bool Visible = true;
    std::function<void()> Change;

    int32_t Min() const { return min_; }
    int32_t Max() const { return max_; }
    int32_t Value() const { return value_; }
    // Setting Max below Value brings Value down to it, which is a change.
    void PonMax(int32_t max);
    // A new value is kept within Min..Max; Change runs when it differs.
    void PonValue(int32_t value);

  private:
    int32_t min_ = 0;
    int32_t max_ = 0;
    int32_t value_ = 0;
};

// A plain rectangle control whose place and size other code reads.
struct Marco {
    int32_t Left = 0;
    int32_t Top = 0;
    int32_t Width = 0;
    int32_t Height = 0;
    bool Visible = true;
};
