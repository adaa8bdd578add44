// SPDX-License-Identifier: Apache-2.0
// Shapes with soft edges: the last coordinate tells how far a vertex lies outside of the edge, in pixels.
#version 440

layout(location = 0) in vec2 position;
layout(location = 1) in vec4 color;
layout(location = 2) in float edge;

layout(location = 0) out vec4 shapeColor;
layout(location = 1) out float shapeEdge;

layout(std140, binding = 0) uniform Uniforms {
    mat4 matrix;
    float opacity;
};

void main()
{
    shapeColor = color * opacity;
    shapeEdge = edge;
    gl_Position = matrix * vec4(position, 0.0, 1.0);
}
