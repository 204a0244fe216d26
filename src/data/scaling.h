#pragma once

namespace tessaplot::data {

/// How data become scene units: what the axis dialog asks for and the factors that the last fill of the data set gave.
struct Scaling {
    int ScaleMode = 1;  ///< 1 "Square", 2 "Equal", 3 "Custom".
    double ScaleRatioX = 1;
    double ScaleRatioY = 0;
    double ScaleRatioZ = 0;
    double ZoomZ = 1;
    double ScaleX = 0;
    double ScaleY = 0;
    double ScaleZ = 0;
    double ScaleV = 0;
};

/// Which method brings scattered points to a grid.
struct GriddingChoice {
    int SurfaceGridMethod = 2;   ///< 1 to 5.
    int VolumeGridMethod = 102;  ///< 101 to 103.
};

}  // namespace tessaplot::data
