#version 440

// Rings of dots. Those up to the lit share grow and brighten outward and shine towards the end of
// the share; the others are tiny.

layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform buf {
    mat4 qt_Matrix;
    float qt_Opacity;
    vec4 deep;
    vec4 primary;
    vec4 soft;
    float extent;       // of the item, in points
    float diameter;     // of the outermost ring's edge, in points
    float innerRadius;
    float rings;
    float lit;          // share of the circle, from the top to the right
    float pixel;        // size of a device pixel in points
};

const float turn = 6.28318530718;

vec4 dots(vec2 p, float angle, float outerRadius) {
    float spacing = (outerRadius - innerRadius) / rings;
    float ring = floor((length(p) - innerRadius) / spacing);
    if (ring < 0.0 || ring >= rings) return vec4(0.0);

    float ringRadius = innerRadius + (ring + 0.5) * spacing;
    float count = floor(turn * ringRadius / (spacing * 1.04));
    float dotAngle = (floor(angle * count) + 0.5) / count;
    float d = length(p - ringRadius * vec2(sin(dotAngle * turn), -cos(dotAngle * turn)));
    float outward = (ring + 0.5) / rings;

    if (dotAngle > lit) {
        float body = clamp((spacing * 0.20 - d) / pixel + 0.5, 0.0, 1.0);
        return vec4(0.10) * body * mix(0.5, 1.0, outward);
    }
    float shine = smoothstep(lit - 0.10, lit, dotAngle);
    float body = clamp((spacing * mix(0.25, 0.36, outward) - d) / pixel + 0.5, 0.0, 1.0);
    vec3 rgb = mix(deep.rgb, primary.rgb, smoothstep(0.0, 0.7, dotAngle / max(lit, 0.01)));
    rgb = mix(rgb, soft.rgb, shine * 0.9) * mix(0.55, 1.0, outward);
    float halo = (0.16 + 0.5 * shine) * exp(-d * d / (spacing * spacing * 0.22));
    return vec4(rgb, 1.0) * body + vec4(rgb * halo, halo * 0.3) * (1.0 - body);
}

// The coloured light around the lit part.
vec4 air(vec2 p, float angle, float outerRadius) {
    float r = length(p);
    float outside = max(r - outerRadius, 0.0) + max(innerRadius - r, 0.0) * 1.4;
    float reach = (extent - diameter) * 0.5;
    float light = 0.22 * exp(-outside * outside / (reach * reach * 0.30));
    light *= clamp((extent * 0.5 - r) / reach, 0.0, 1.0);
    float whole = step(0.999, lit);
    light *= max(whole, smoothstep(lit + 0.03, lit - 0.06, angle) * smoothstep(-0.02, 0.08, angle));
    return vec4(primary.rgb * light, light * 0.35);
}

void main() {
    vec2 p = (qt_TexCoord0 - 0.5) * extent;
    float angle = fract(atan(p.x, -p.y) / turn + 1.0);
    vec4 color = dots(p, angle, diameter * 0.5);
    color += air(p, angle, diameter * 0.5) * (1.0 - color.a);
    fragColor = color * qt_Opacity;
}
