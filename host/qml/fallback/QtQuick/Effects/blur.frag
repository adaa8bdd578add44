// SPDX-License-Identifier: Apache-2.0
#version 440

// One direction of a Gaussian blur.
layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform buf
{
    mat4 qt_Matrix;
    float qt_Opacity;
    vec2 stride;
};
layout(binding = 1) uniform sampler2D source;

void main()
{
    vec4 sum = vec4(0.0);
    float weights = 0.0;
    for (int i = -12; i <= 12; ++i) {
        float at = float(i);
        float weight = exp(-at * at / 50.0);
        sum += texture(source, qt_TexCoord0 + stride * at) * weight;
        weights += weight;
    }
    fragColor = sum / weights * qt_Opacity;
}
