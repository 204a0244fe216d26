#include "scene/material.h"

namespace tessaplot::scene {

namespace {

using Reflectance = std::array<float, 4>;

struct Values {
    Reflectance ambient;
    Reflectance diffuse;
    Reflectance specular;
    Reflectance emission;
    float shininess;
};

constexpr std::array<std::string_view, 13> names{"Artdeco", "Autumn",   "Glass", "Metal", "Neon",
                                                 "Recoco",  "Santefe",  "Sheen", "Silky", "Spring",
                                                 "Summer",  "Tropical", "Winter"};

constexpr std::array<Values, names.size()> materials{{
    {{0.936975F, 0.0923259F, 0.42843F, 0},
     {0.536861F, 0.0529003F, 0.24549F, 0.832432F},
     {0.805292F, 0.765198F, 0.747416F, 0},
     {0, 0, 0, 0},
     106.551F},
    {{0.098983F, 0.0565609F, 0.0320604F, 0},
     {0.395932F, 0.226244F, 0.128242F, 0},
     {1, 0.464407F, 0.4753F, 0},
     {0, 0, 0, 0},
     127.308F},
    {{0.187004F, 0.0748842F, 0, 0.34747F},
     {0.748016F, 0.299537F, 0, 0.34747F},
     {0.836364F, 0.836364F, 0.836364F, 0.34747F},
     {0, 0, 0, 0.34747F},
     117.915F},
    {{0.133333F, 0.0925319F, 0, 0}, {0.49697F, 0.344891F, 0, 0}, {1, 0.887978F, 0, 0}, {0, 0, 0, 0}, 118.691F},
    {{0, 0, 0, 0}, {0, 0, 0, 0}, {0.622449F, 0.622449F, 0.622449F, 0}, {0.0188407F, 0.940276F, 1, 0}, 6.53061F},
    {{0.187004F, 0.180659F, 0.0672271F, 0},
     {0.748016F, 0.722635F, 0.268909F, 0},
     {0.412121F, 0.412121F, 0.412121F, 0},
     {0, 0, 0, 0},
     103.176F},
    {{0.20373F, 0.0832482F, 0.0832482F, 0},
     {0.799639F, 0.326749F, 0.326749F, 0},
     {0.327377F, 0.135466F, 0, 0},
     {0, 0, 0, 0},
     9.79592F},
    {{0, 0.00107338F, 0.0785714F, 0},
     {0, 0.00429352F, 0.314286F, 0},
     {0.364672F, 0.833805F, 0.909091F, 0},
     {0, 0, 0, 0},
     81.4546F},
    {{0.171143F, 0.170799F, 0.171534F, 0},
     {0.684572F, 0.683198F, 0.686136F, 0},
     {0.693878F, 0.0335554F, 0.313623F, 0},
     {0, 0, 0, 0},
     9.14286F},
    {{0.253968F, 0.228701F, 0.0798059F, 0},
     {1, 0.900511F, 0.314236F, 0},
     {0.872449F, 0.247119F, 0.254214F, 0},
     {0, 0, 0, 0},
     128},
    {{0.098983F, 0.0565609F, 0.0320604F, 0},
     {0.395932F, 0.226244F, 0.128242F, 0},
     {0.192616F, 0.110064F, 0.0623879F, 0},
     {0, 0, 0, 0},
     3.45946F},
    {{0.226102F, 0.193685F, 0.0207668F, 0},
     {0.904409F, 0.774741F, 0.0830671F, 0},
     {0.0955906F, 0.0955906F, 0.0955906F, 0},
     {0, 0, 0, 0},
     10},
    {{0.0486486F, 0.0486486F, 0.0486486F, 0},
     {0.205405F, 0.205405F, 0.205405F, 0},
     {0.686486F, 0.676818F, 0.684159F, 0},
     {0, 0, 0, 0},
     128},
}};

}  // namespace

void Cls11::SetMaterial(gl::DisplayList& list, int type) {
    if (type >= 1 && type <= static_cast<int>(materials.size())) {
        const Values& values = materials[static_cast<std::size_t>(type) - 1];
        Ambient = values.ambient;
        Diffuse = values.diffuse;
        Specular = values.specular;
        Emission = values.emission;
        Shininess[0] = values.shininess;
    }
    list.glMaterialfv(GL_FRONT_AND_BACK, GL_DIFFUSE, Diffuse);
    list.glMaterialfv(GL_FRONT_AND_BACK, GL_SPECULAR, Specular);
    list.glMaterialfv(GL_FRONT_AND_BACK, GL_SHININESS, std::span(Shininess).first(1));
    list.glMaterialfv(GL_FRONT_AND_BACK, GL_EMISSION, Emission);
    list.glMaterialfv(GL_FRONT_AND_BACK, GL_AMBIENT, Ambient);
}

std::span<const std::string_view> materialNames() {
    return names;
}

}  // namespace tessaplot::scene
