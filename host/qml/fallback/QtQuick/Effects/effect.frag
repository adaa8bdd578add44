// SPDX-License-Identifier: Apache-2.0
#version 440

// Colour, blur, shadow and mask of a picture with premultiplied alpha.
layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform buf
{
    mat4 qt_Matrix;
    float qt_Opacity;
    vec4 levels; // brightness, contrast, saturation, colorization
    vec4 tint;
    vec4 shade;
    vec4 shadow; // offset x, offset y, scale, on
    vec4 thresholds; // of the mask: minimum and its spread, maximum and its spread
    vec4 modes; // blur, mask, inverted mask
    vec4 inner; // the source's part of the drawing
};
layout(binding = 1) uniform sampler2D source;
layout(binding = 2) uniform sampler2D soft;
layout(binding = 3) uniform sampler2D mask;

const vec3 LumaWeights = vec3(0.299, 0.587, 0.114);

vec4 colored(vec4 color)
{
    vec3 rgb = color.a > 0.0 ? color.rgb / color.a : vec3(0.0);
    rgb = (rgb - 0.5) * (1.0 + levels.y) + 0.5;
    rgb += levels.x;
    float luma = dot(rgb, LumaWeights);
    rgb = mix(vec3(luma), rgb, 1.0 + levels.z);
    rgb = mix(rgb, luma * tint.rgb, levels.w * tint.a);
    return vec4(clamp(rgb, 0.0, 1.0) * color.a, color.a);
}

void main()
{
    vec4 color = colored(modes.x > 0.5 ? texture(soft, qt_TexCoord0) : texture(source, qt_TexCoord0));
    if (shadow.w > 0.5) {
        vec2 at = (qt_TexCoord0 - shadow.xy - 0.5) / shadow.z + 0.5;
        float alpha = texture(soft, at).a * shade.a;
        color += vec4(shade.rgb * alpha, alpha) * (1.0 - color.a);
    }
    if (modes.y > 0.5) {
        vec2 at = (qt_TexCoord0 - inner.xy) / inner.zw;
        float alpha = texture(mask, at).a;
        float low = thresholds.x - thresholds.y;
        float high = thresholds.z + thresholds.w;
        float kept = thresholds.x <= 0.0 ? 1.0 : smoothstep(low, max(thresholds.x, low + 0.0001), alpha);
        kept *= thresholds.z >= 1.0 ? 1.0 : 1.0 - smoothstep(thresholds.z, max(high, thresholds.z + 0.0001), alpha);
        // Without thresholds the mask's own opacity counts.
        if (thresholds.x <= 0.0 && thresholds.z >= 1.0)
            kept = alpha;
        color *= modes.z > 0.5 ? 1.0 - kept : kept;
    }
    fragColor = color * qt_Opacity;
}
